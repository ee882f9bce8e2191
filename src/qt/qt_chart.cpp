// The formats of pictures.
#include "qt/qt_chart.h"

#include <QBuffer>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <cmath>
#include <stdexcept>

#include "qt/chart_sheet.h"

namespace lorvane {

namespace {

constexpr double dotsPerInch = 300;
constexpr double metresPerInch = 0.0254;
constexpr double pixelsPerInch = 96;
constexpr int jpegQuality = 95;
constexpr const char* failed = "The picture could not be drawn.";

/// The pixels of a sheet, and how much larger they are than 1/96 inch. Text of 12 pixels has 8 points on a
/// page and 12 on a slide, where the footer stands back.
struct SizeRow {
    PictureSizes size;
    QSize pixels;
    double scale;
    double footer;  ///< the size of the footer beside that on the screen

    QSizeF inches() const { return QSizeF(pixels) * scale / pixelsPerInch; }
};

constexpr SizeRow sizeRows[] = {{PictureSizes::page, QSize(702, 486), 624.0 / 702, 1},
                                {PictureSizes::slide, QSize(720, 405), 960.0 / 720, 0.85}};

const SizeRow& rowOf(PictureSizes size) { return sizeRows[size == PictureSizes::page ? 0 : 1]; }

/// Paints with so many dots of the device to a pixel of the sheet.
void paintOn(QPaintDevice& device, const ChartContent& content, const SizeRow& row, double dots) {
    QCPPainter painter;
    if (!painter.begin(&device))
        throw std::runtime_error(failed);
    // Else lines of one pixel would be as thin as a dot.
    painter.setModes(QCPPainter::pmVectorized | QCPPainter::pmNoCaching);
    painter.scale(dots, dots);
    ChartSheet(content, row.pixels, row.footer).paint(painter);
}

void dotPicture(QBuffer& buffer, const ChartContent& content, const SizeRow& row, PictureFormats format) {
    QImage image((row.inches() * dotsPerInch).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    paintOn(image, content, row, row.scale * dotsPerInch / pixelsPerInch);
    const int dotsPerMetre = static_cast<int>(std::lround(dotsPerInch / metresPerInch));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    const bool jpeg = format == PictureFormats::jpg;
    if (!image.save(&buffer, jpeg ? "JPG" : "PNG", jpeg ? jpegQuality : -1))
        throw std::runtime_error(failed);
}

QString titleOf(const ChartContent& content) {
    return content.header.empty() ? QString() : QString::fromStdString(content.header.front());
}

void svgPicture(QBuffer& buffer, const ChartContent& content, const SizeRow& row) {
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(static_cast<int>(pixelsPerInch));
    svg.setSize((QSizeF(row.pixels) * row.scale).toSize());
    svg.setViewBox(QRectF(QPointF(), QSizeF(row.pixels) * row.scale));
    svg.setTitle(QStringLiteral("chart"));
    svg.setDescription(QStringLiteral("Lorvane"));
    paintOn(svg, content, row, row.scale);
    // The generator writes a title as it is, and one family of fonts, which may be missing where it is shown.
    const QString title = QStringLiteral("<title>%1</title>").arg(titleOf(content).toHtmlEscaped());
    buffer.buffer().replace("<title>chart</title>", title.toUtf8());
    buffer.buffer().replace("\" font-size=", ", sans-serif\" font-size=");
}

void pdfPicture(QBuffer& buffer, const ChartContent& content, const SizeRow& row) {
    QPdfWriter pdf(&buffer);
    pdf.setPageSize(QPageSize(row.inches(), QPageSize::Inch, QString(), QPageSize::ExactMatch));
    pdf.setPageMargins(QMarginsF());
    pdf.setTitle(titleOf(content));
    pdf.setCreator(QStringLiteral("Lorvane"));
    paintOn(pdf, content, row, row.scale * pdf.resolution() / pixelsPerInch);
}

}  // namespace

std::string QtChart::picture(const ChartContent& content, PictureFormats format, PictureSizes size) {
    application_.ensure();
    const SizeRow& row = rowOf(size);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    if (format == PictureFormats::svg)
        svgPicture(buffer, content, row);
    else if (format == PictureFormats::pdf)
        pdfPicture(buffer, content, row);
    else
        dotPicture(buffer, content, row, format);
    return buffer.data().toStdString();
}

}  // namespace lorvane
