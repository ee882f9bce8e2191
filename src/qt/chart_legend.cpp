// Measuring and painting of the legend.
#include "qt/chart_legend.h"

#include <algorithm>

namespace lorvane {

namespace {

constexpr int titlePixels = 12;
constexpr int namePixels = 13;
constexpr double shortKey = 26;
constexpr double dashedKey = 38;
constexpr double keyGap = 7;
constexpr double titleGap = 6;
constexpr double rowGap = 4;
constexpr int mostTitleLines = 4;
constexpr int mostNameLines = 2;

}  // namespace

ChartLegendBox::ChartLegendBox(const ChartContent& content, const ChartLook& look, double width)
    : look_(look) {
    if (content.groups.empty())
        return;
    const auto dashed = [](const ChartStroke& stroke) { return !stroke.dashes.isEmpty(); };
    key_ = std::any_of(look.strokes.begin(), look.strokes.end(), dashed) ? dashedKey : shortKey;
    title_ = wrapped(QString::fromStdString(content.legend.title), look.sized(titlePixels, QFont::DemiBold),
                     width, mostTitleLines);
    size_ = {title_.width(), title_.height() + titleGap};
    const std::vector<ChartLine>& lines = content.groups.front().lines;
    for (std::size_t i = 0; i < std::min(lines.size(), chartLines); ++i) {
        const TextBlock name = wrapped(QString::fromStdString(lines[i].label), look.sized(namePixels),
                                       width - key_ - keyGap, mostNameLines);
        rows_.push_back({name, look.strokes[i]});
        size_ = {std::max(size_.width(), key_ + keyGap + name.width()),
                 size_.height() + name.height() + rowGap};
    }
}

void ChartLegendBox::paintKey(QCPPainter& painter, const QPointF& left, const ChartStroke& stroke) const {
    painter.setAntialiasing(true);
    painter.setPen(linePen(look_, stroke, ChartScales::power));
    painter.drawLine(QLineF(left, left + QPointF(key_, 0)));
    const QCPScatterStyle sign = lineSign(look_, stroke, ChartScales::power);
    sign.applyTo(&painter, linePen(look_, stroke, ChartScales::power));
    sign.drawShape(&painter, left + QPointF(key_ / 2, 0));
    painter.setAntialiasing(false);
}

void ChartLegendBox::paint(QCPPainter& painter, const QPointF& topLeft) const {
    painter.setPen(look_.text);
    title_.draw(painter, topLeft);
    QPointF place = topLeft + QPointF(0, title_.height() + titleGap);
    for (const Row& row : rows_) {
        paintKey(painter, place + QPointF(0, row.name.pitch / 2), row.stroke);
        painter.setPen(look_.secondText);
        row.name.draw(painter, place + QPointF(key_ + keyGap, 0));
        place.ry() += row.name.height() + rowGap;
    }
}

}  // namespace lorvane
