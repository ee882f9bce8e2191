// The dialog of printers, and what goes to the printer.
#include "qt/document_printing.h"

#include <QApplication>
#include <QPageSize>
#include <QPainter>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <stdexcept>

#include "qt/window_in_use.h"

namespace lorvane {

namespace {

constexpr double pointsPerInch = 72;
// The dialog is Qt's own and has no room for buttons with much air.
constexpr const char* tightButtons = "QPushButton { padding: 3px 6px; min-width: 72px; }";
constexpr const char* failed = "The document could not be printed.";

void setUp(QPrinter& printer, const DocumentPages& pages, const PageSetup& setup) {
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(pages.paper(), QPageSize::Point));
    printer.setDocName(QString::fromStdString(setup.title));
    printer.setCreator(QStringLiteral("Lorvane"));
}

bool isChosen(QPrinter& printer, int pages, std::optional<int> page) {
    const QPointer<QWidget> over = QApplication::activeWindow();
    QPrintDialog dialog(&printer, over);
    dialog.setStyleSheet(QString::fromLatin1(tightButtons));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pages);
    if (page) {
        dialog.setPrintRange(QAbstractPrintDialog::PageRange);
        dialog.setFromTo(*page, *page);
    }
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    giveKeyboard(over);
    return isAccepted;
}

// In the order in which they come out of the printer, as often as it cannot repeat them itself.
QList<int> pagesFor(const QPrinter& printer, int pages) {
    const bool some = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int from = some ? printer.fromPage() : 1;
    const int to = some ? std::min(printer.toPage(), pages) : pages;
    QList<int> one;
    for (int page = from; page <= to; ++page)
        one << page;
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(one.begin(), one.end());
    QList<int> all;
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    for (int copy = 0; copy < copies; ++copy)
        all << one;
    return all;
}

}  // namespace

bool printPages(DocumentPages& pages, const PageSetup& setup, std::optional<int> page) {
    QPrinter printer(QPrinter::HighResolution);
    setUp(printer, pages, setup);
    if (!isChosen(printer, pages.pages(), page))
        return false;
    printer.setFullPage(true);
    QPainter painter;
    if (!painter.begin(&printer))
        throw std::runtime_error(failed);
    painter.scale(printer.resolution() / pointsPerInch, printer.resolution() / pointsPerInch);
    bool isFirst = true;
    for (const int each : pagesFor(printer, pages.pages())) {
        if (!isFirst && !printer.newPage())
            throw std::runtime_error(failed);
        pages.paint(painter, each);
        isFirst = false;
    }
    if (!painter.end() || printer.printerState() == QPrinter::Error)
        throw std::runtime_error(failed);
    return true;
}

}  // namespace lorvane
