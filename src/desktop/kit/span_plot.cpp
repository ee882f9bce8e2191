// Painting of the ranges. All lengths are those of 100 %.
#include "desktop/kit/span_plot.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QLinearGradient>
#include <QToolTip>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double Left = 86;  ///< for the names of the rows
constexpr double Right = 16;
constexpr double Top = 22;  ///< for the text of the middle
constexpr double RowHeight = 32;
constexpr double FirstRow = 18;  ///< middle of the first row below the top of the scale
constexpr double BelowRows = 8;
constexpr double MarksHeight = 22;
constexpr double MarkLine = 17;  ///< base line of the marks below the scale
constexpr double MarkSpace = 6;  ///< between the texts of two marks
constexpr double CentreOverhang = 4;
constexpr double BarHeight = 14;
constexpr double EndHeight = 18;
constexpr double EndWidth = 1.5;
constexpr double EndSpace = 6;  ///< between an end and its text
constexpr double PlateHeight = 16;
constexpr double PlatePadding = 2;
constexpr double PlateRadius = 3;
constexpr double LabelSpace = 8;  ///< between a name and what follows
constexpr double LeastLabel = 44;
constexpr int PreferredWidth = 364;
constexpr int LeastWidth = 240;

Role roleOf(const SpanRow& row) { return row.isScores ? Role::Quiet : Role::Treated; }

QLinearGradient fading(const QRectF& bar, QColor full) {
    constexpr float Full = 0.85F;
    constexpr float Half = 0.45F;
    constexpr float Faded = 0.2F;
    QLinearGradient gradient(bar.topLeft(), bar.topRight());
    full.setAlphaF(Faded);
    gradient.setColorAt(0, full);
    gradient.setColorAt(1, full);
    full.setAlphaF(Half);
    gradient.setColorAt(0.25, full);
    gradient.setColorAt(0.75, full);
    full.setAlphaF(Full);
    gradient.setColorAt(0.5, full);
    return gradient;
}

QFont endFont() { return textFont(TextStyle::CaptionStrong); }

QFont markFont(const SpanMark& mark) {
    QFont font = textFont(TextStyle::Mark);
    font.setWeight(mark.isOrigin ? QFont::Bold : QFont::Normal);
    return font;
}

double middleOf(qsizetype row) { return Top + FirstRow + static_cast<double>(row) * RowHeight; }

}  // namespace

SpanPlot::SpanPlot(QWidget* parent) : PaintedText(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void SpanPlot::setContent(const QList<SpanRow>& rows, const SpanScale& scale) {
    if (rows == rows_ && scale == scale_)
        return;
    rows_ = rows;
    scale_ = scale;
    QStringList spoken;
    for (const SpanRow& row : rows_)
        spoken << QStringLiteral("%1 %2 %3").arg(row.label, row.lowText, row.highText);
    setAccessibleName(scale_.centreText);
    setAccessibleDescription(spoken.join(QStringLiteral(", ")));
    updateGeometry();
    update();
}

QSize SpanPlot::sizeHint() const {
    return {zoomed(*this, PreferredWidth), zoomed(*this, bottom() + MarksHeight)};
}

QSize SpanPlot::minimumSizeHint() const { return {zoomed(*this, LeastWidth), sizeHint().height()}; }

/// What lies beyond the scale stands at its end.
double SpanPlot::at(double value) const {
    const double length = figureRect(*this).width() - Left - Right;
    const double range = scale_.high - scale_.low;
    return Left + (range > 0 ? length * std::clamp((value - scale_.low) / range, 0.0, 1.0) : 0);
}

bool SpanPlot::isOnScale(double value) const { return value >= scale_.low && value <= scale_.high; }

double SpanPlot::bottom() const { return Top + static_cast<double>(rows_.size()) * RowHeight + BelowRows; }

/// Outside the bar where there is room, else on it.
SpanPlot::Ends SpanPlot::endsOf(const SpanRow& row) const {
    const double low = at(row.low);
    const double high = at(row.high);
    const double lowWidth = numberWidth(endFont(), row.lowText);
    const double highWidth = numberWidth(endFont(), row.highText);
    const bool hasRoomInside = high - low > lowWidth + highWidth + 3 * EndSpace;
    const bool lowOutside = low - EndSpace - lowWidth >= LeastLabel + LabelSpace || !hasRoomInside;
    const bool highOutside = high + EndSpace + highWidth <= figureRect(*this).width();
    return {lowOutside ? std::max(0.0, low - EndSpace - lowWidth) : low + EndSpace,
            highOutside ? high + EndSpace : high - EndSpace - highWidth};
}

QString SpanPlot::shownLabel(const SpanRow& row) const {
    const double room = std::min({Left, endsOf(row).low, at(row.low)}) - LabelSpace;
    return QFontMetricsF(textFont(TextStyle::BodyMedium)).elidedText(row.label, Qt::ElideRight, room);
}

bool SpanPlot::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return PaintedText::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    const QPointF place = figurePoint(*this, help->pos());
    QString whole;
    for (qsizetype i = 0; i < rows_.size(); ++i)
        if (std::abs(place.y() - middleOf(i)) <= RowHeight / 2 && shownLabel(rows_[i]) != rows_[i].label)
            whole = rows_[i].label;
    QToolTip::showText(help->globalPos(), whole, this);
    return true;
}

void SpanPlot::paintLines(QPainter& painter) const {
    const double end = bottom() + 0.5;
    for (const SpanMark& mark : scale_.marks) {
        const double x = std::round(at(mark.at)) + 0.5;
        painter.setPen(
            QPen(colour(mark.isOrigin ? Role::SecondText : Role::Line), 1, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(x, mark.isOrigin ? Top - CentreOverhang : Top), QPointF(x, end));
    }
    painter.setPen(QPen(colour(Role::Line), 1, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(std::round(at(scale_.low)), end), QPointF(std::round(at(scale_.high)) + 1, end));
}

/// A mark that would touch the one before it is left out.
void SpanPlot::paintMarks(QPainter& painter) const {
    double taken = 0;
    for (const SpanMark& mark : scale_.marks) {
        painter.setFont(markFont(mark));
        painter.setPen(colour(mark.isOrigin ? Role::Text : Role::SecondText));
        const double width = numberWidth(painter.font(), mark.text);
        const double left = std::round(at(mark.at)) + 0.5 - width / 2;
        if (left < taken)
            continue;
        drawNumber(painter, QPointF(left, bottom() + MarkLine), mark.text);
        taken = left + width + MarkSpace;
    }
}

void SpanPlot::paintLabel(QPainter& painter, const SpanRow& row, double middle) const {
    painter.setFont(textFont(TextStyle::BodyMedium));
    painter.setPen(colour(Role::Text));
    const double baseline =
        centredBaseline(painter.font(), QRectF(0, middle - RowHeight / 2, Left, RowHeight));
    painter.drawText(QPointF(0, baseline), shownLabel(row));
}

void SpanPlot::paintBar(QPainter& painter, const SpanRow& row, double middle) const {
    const QRectF bar(at(row.low), middle - BarHeight / 2, at(row.high) - at(row.low), BarHeight);
    painter.fillRect(bar, fading(bar, colour(roleOf(row))));
    for (double end : {row.low, row.high})
        if (isOnScale(end))
            painter.fillRect(QRectF(at(end) - EndWidth / 2, middle - EndHeight / 2, EndWidth, EndHeight),
                             colour(roleOf(row)));
}

/// The plate keeps the lines of the scale off the digits.
void SpanPlot::paintEnds(QPainter& painter, const SpanRow& row, double middle) const {
    const Ends ends = endsOf(row);
    for (const auto& [left, text] : {std::pair(ends.low, row.lowText), {ends.high, row.highText}}) {
        const QRectF area(left, middle - PlateHeight / 2, numberWidth(endFont(), text), PlateHeight);
        fillPlate(painter, area.adjusted(-PlatePadding, 0, PlatePadding, 0), PlateRadius, colour(Role::Card));
        painter.setFont(endFont());
        painter.setPen(colour(Role::Text));
        drawNumber(painter, area, Qt::AlignLeft, text);
    }
}

void SpanPlot::paintCentre(QPainter& painter) const {
    const double x = std::round(at(scale_.centre)) + 0.5;
    QPen dashes(colour(Role::SecondText), 1, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({3, 3});
    painter.setPen(dashes);
    painter.drawLine(QPointF(x, Top - CentreOverhang), QPointF(x, bottom()));
    painter.setFont(textFont(TextStyle::Caption));
    painter.setPen(colour(Role::SecondText));
    const double width = numberWidth(painter.font(), scale_.centreText);
    const double left = std::clamp(x - width / 2, 0.0, std::max(0.0, figureRect(*this).width() - width));
    drawNumber(painter, QPointF(left, Top - CentreOverhang - 5), scale_.centreText);
}

void SpanPlot::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto forEachRow = [&](auto paint) {
        for (qsizetype i = 0; i < rows_.size(); ++i)
            (this->*paint)(painter, rows_[i], middleOf(i));
    };
    paintLines(painter);
    paintMarks(painter);
    forEachRow(&SpanPlot::paintLabel);
    forEachRow(&SpanPlot::paintBar);
    paintCentre(painter);
    forEachRow(&SpanPlot::paintEnds);
}

}  // namespace lorvane::desktop
