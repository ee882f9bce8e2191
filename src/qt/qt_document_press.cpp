// Files and pictures; printing stands in a file of its own.
#include "qt/qt_document_press.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <cmath>
#include <stdexcept>

#include "qt/document_bookmarks.h"
#include "qt/document_pages.h"
#include "qt/document_printing.h"

namespace lorvane {

namespace {

constexpr double pointsPerInch = 72;
constexpr double dotsPerInch = 150;
constexpr double metresPerInch = 0.0254;
constexpr const char* failed = "The document could not be drawn.";

std::string fileOf(DocumentPages& pages, const std::string& title) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setPageSize(QPageSize(pages.paper(), QPageSize::Point, QString(), QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF());
    pdf.setTitle(QString::fromStdString(title));
    pdf.setCreator(QStringLiteral("Lorvane"));
    QPainter painter;
    if (!painter.begin(&pdf))
        throw std::runtime_error(failed);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.scale(pdf.resolution() / pointsPerInch, pdf.resolution() / pointsPerInch);
    for (int page = 1; page <= pages.pages(); ++page) {
        if (page > 1)
            pdf.newPage();
        pages.paint(painter, page);
    }
    painter.end();
    return buffer.data().toStdString();
}

}  // namespace

std::unique_ptr<DocumentSurface> QtDocumentPress::start(const PageSetup& page) {
    application_.ensure();
    return std::make_unique<DocumentPages>(page);
}

std::string QtDocumentPress::pdf(const Document& document) {
    application_.ensure();
    DocumentPages pages(document);
    return withBookmarks(fileOf(pages, document.page.title), pages);
}

std::string QtDocumentPress::picture(const Document& document, int page) {
    application_.ensure();
    DocumentPages pages(document);
    if (page < 1 || page > pages.pages())
        throw std::runtime_error("The document has no page " + std::to_string(page) + ".");
    QImage image((pages.paper() * dotsPerInch / pointsPerInch).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(dotsPerInch / pointsPerInch, dotsPerInch / pointsPerInch);
    pages.paint(painter, page);
    painter.end();
    image.setDotsPerMeterX(static_cast<int>(std::lround(dotsPerInch / metresPerInch)));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    QBuffer buffer;
    if (!image.save(&buffer, "PNG"))
        throw std::runtime_error(failed);
    return buffer.data().toStdString();
}

bool QtDocumentPress::print(const Document& document, std::optional<int> page) {
    if (!OffscreenApplication::hasWindows())
        throw std::runtime_error("There is no screen to choose a printer on.");
    DocumentPages pages(document);
    return printPages(pages, document.page, page);
}

}  // namespace lorvane
