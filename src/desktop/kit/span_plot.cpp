// Painting of the ranges.
#include "desktop/kit/span_plot.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>

#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

constexpr double Left = 112;  ///< for the names of the rows
constexpr double Right = 24;
constexpr double Top = 22;  ///< for the text of the middle
constexpr double RowHeight = 34;
constexpr double FirstRow = 19;  ///< middle of the first row below the top of the scale
constexpr double BelowRows = 8;
constexpr double MarksHeight = 24;
constexpr double MarkLine = 17;  ///< base line of the marks below the scale
constexpr double CentreOverhang = 4;
constexpr double BarHeight = 14;
constexpr double EndHeight = 20;
constexpr double EndWidth = 1.5;
constexpr double EndSpace = 8;  ///< between an end and its text

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

/// Where the text of the high end begins: after the end, or on the faded part before it without room there.
double highTextLeft(double end, double textWidth, double plotWidth) {
    const bool fits = end + EndSpace + textWidth <= plotWidth;
    return fits ? end + EndSpace : end - EndSpace - textWidth;
}

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

QSize SpanPlot::sizeHint() const { return {536, static_cast<int>(bottom() + MarksHeight)}; }

double SpanPlot::at(double value) const {
    const double length = width() - Left - Right;
    const double range = scale_.high - scale_.low;
    return Left + (range > 0 ? length * (value - scale_.low) / range : 0);
}

double SpanPlot::bottom() const { return Top + static_cast<double>(rows_.size()) * RowHeight + BelowRows; }

void SpanPlot::paintScale(QPainter& painter) const {
    const double end = bottom() + 0.5;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(textFont(TextStyle::Mark));
    for (const SpanMark& mark : scale_.marks) {
        const double x = std::round(at(mark.at)) + 0.5;
        painter.setPen(
            QPen(colour(mark.isOrigin ? Role::StrongLine : Role::Line), 1, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(QPointF(x, mark.isOrigin ? Top - CentreOverhang : Top), QPointF(x, end));
        painter.setPen(colour(Role::SecondText));
        drawNumber(painter, QPointF(x - numberWidth(painter.font(), mark.text) / 2, end + MarkLine),
                   mark.text);
    }
    painter.setPen(QPen(colour(Role::Line), 1, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QPointF(std::round(at(scale_.low)), end), QPointF(std::round(at(scale_.high)) + 1, end));
}

double SpanPlot::lowTextLeft(const SpanRow& row) const {
    return std::max(0.0, at(row.low) - EndSpace - numberWidth(endFont(), row.lowText));
}

void SpanPlot::paintLabel(QPainter& painter, const SpanRow& row, double middle) const {
    const double room = std::min(Left, lowTextLeft(row)) - EndSpace;
    painter.setFont(textFont(TextStyle::BodyMedium));
    painter.setPen(colour(Role::Text));
    const double baseline =
        centredBaseline(painter.font(), QRectF(0, middle - RowHeight / 2, Left, RowHeight));
    painter.drawText(QPointF(0, baseline),
                     QFontMetricsF(painter.font()).elidedText(row.label, Qt::ElideRight, room));
}

void SpanPlot::paintBar(QPainter& painter, const SpanRow& row, double middle) const {
    const QRectF bar(at(row.low), middle - BarHeight / 2, at(row.high) - at(row.low), BarHeight);
    painter.fillRect(bar, fading(bar, colour(roleOf(row))));
    for (double x : {bar.left(), bar.right()})
        painter.fillRect(QRectF(x - EndWidth / 2, middle - EndHeight / 2, EndWidth, EndHeight),
                         colour(roleOf(row)));
}

void SpanPlot::paintEnds(QPainter& painter, const SpanRow& row, double middle) const {
    painter.setFont(endFont());
    painter.setPen(colour(Role::Text));
    const double baseline = centredBaseline(endFont(), QRectF(0, middle - RowHeight / 2, 1, RowHeight));
    const double high = highTextLeft(at(row.high), numberWidth(endFont(), row.highText), width());
    drawNumber(painter, QPointF(lowTextLeft(row), baseline), row.lowText);
    drawNumber(painter, QPointF(high, baseline), row.highText);
}

void SpanPlot::paintCentre(QPainter& painter) const {
    const double x = std::round(at(scale_.centre)) + 0.5;
    QPen dashes(colour(Role::Quiet), 1, Qt::CustomDashLine, Qt::FlatCap);
    dashes.setDashPattern({3, 3});
    painter.setPen(dashes);
    painter.drawLine(QPointF(x, Top - CentreOverhang), QPointF(x, bottom()));
    painter.setFont(textFont(TextStyle::Mark));
    painter.setPen(colour(Role::SecondText));
    const double width = QFontMetricsF(painter.font()).horizontalAdvance(scale_.centreText);
    painter.drawText(QPointF(x - width / 2, Top - CentreOverhang - 7), scale_.centreText);
}

void SpanPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto forEachRow = [&](auto paint) {
        double middle = Top + FirstRow;
        for (const SpanRow& row : rows_) {
            (this->*paint)(painter, row, middle);
            middle += RowHeight;
        }
    };
    paintScale(painter);
    forEachRow(&SpanPlot::paintLabel);
    forEachRow(&SpanPlot::paintBar);
    paintCentre(painter);
    forEachRow(&SpanPlot::paintEnds);
}

}  // namespace lorvane::desktop
