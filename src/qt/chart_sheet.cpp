// Layout and painting of a sheet.
#include "qt/chart_sheet.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace lorvane {

namespace {

constexpr double margin = 18;
constexpr double headerGap = 4;  ///< below the header; the plot has air of its own
constexpr double plotAir = 2;    ///< at the left of the plot
constexpr double lineGap = 7;    ///< above and below the line over the footer
constexpr double entryGap = 2;   ///< between two entries of the footer
constexpr double footerShare = 0.3;
constexpr int leastFooter = 6;
constexpr int footerLines = 6;  ///< of one entry, at most

struct HeaderRow {
    int pixels;
    QFont::Weight weight;
    int lines;
};

constexpr HeaderRow headerRows[] = {{17, QFont::DemiBold, 2}, {13, QFont::Normal, 2}};

double heightOf(const QList<TextBlock>& blocks, double gap) {
    double height = 0;
    for (const TextBlock& block : blocks)
        height += block.height() + gap;
    return height;
}

}  // namespace

ChartSheet::ChartSheet(const ChartContent& content, const QSize& size, double footerScale)
    : look_(ChartLook::paper(content.colours)), size_(size) {
    plot_.setLook(look_);
    plot_.setContent(content);
    plot_.setBackground(Qt::NoBrush);
    const double width = size.width() - 2 * margin;
    for (std::size_t i = 0; i < std::min(content.header.size(), std::size(headerRows)); ++i) {
        const HeaderRow& row = headerRows[i];
        if (!content.header[i].empty())
            header_ << wrapped(QString::fromStdString(content.header[i]), look_.sized(row.pixels, row.weight),
                               width, row.lines);
    }
    int pixels = static_cast<int>(std::lround(footerScale * footerPixels(content.footerSize)));
    addFooter(content, pixels);
    while (footerHeight() > footerShare * size.height() && pixels > leastFooter)
        addFooter(content, --pixels);
}

void ChartSheet::addFooter(const ChartContent& content, int pixels) {
    footer_.clear();
    const QFont font = look_.sized(pixels, content.footerBold ? QFont::DemiBold : QFont::Normal);
    for (const std::string& line : content.footer)
        if (!line.empty())
            footer_ << wrapped(QString::fromStdString(line), font, size_.width() - 2 * margin, footerLines);
}

double ChartSheet::headerHeight() const { return header_.isEmpty() ? 0 : heightOf(header_, 0) + headerGap; }

double ChartSheet::footerHeight() const {
    return footer_.isEmpty() ? 0 : heightOf(footer_, entryGap) - entryGap + 2 * lineGap;
}

void ChartSheet::paint(QCPPainter& painter) {
    painter.fillRect(QRect(QPoint(), size_), look_.ground);
    double top = margin;
    painter.setPen(look_.text);
    for (const TextBlock& block : header_) {
        block.draw(painter, QPointF(size_.width() / 2.0, top), Qt::AlignHCenter);
        painter.setPen(look_.secondText);
        top += block.height();
    }
    const double bottom = size_.height() - margin - footerHeight();
    top = std::max(0.0, header_.isEmpty() ? top - headerGap - margin / 2 : top + headerGap);
    painter.save();
    painter.translate(margin - plotAir, top);
    plot_.toPainter(&painter, static_cast<int>(size_.width() - 2 * margin + plotAir),
                    static_cast<int>(bottom - top));
    painter.restore();
    paintFooter(painter, bottom);
}

void ChartSheet::paintFooter(QCPPainter& painter, double top) const {
    if (footer_.isEmpty())
        return;
    painter.setPen(QPen(look_.grid, 1));
    painter.drawLine(QLineF(margin, top + lineGap, size_.width() - margin, top + lineGap));
    painter.setPen(look_.secondText);
    double place = top + 2 * lineGap;
    for (const TextBlock& block : footer_) {
        block.draw(painter, QPointF(margin, place));
        place += block.height() + entryGap;
    }
}

}  // namespace lorvane
