// What lies over the lines of a chart and beside its axes: the legend, the required power, the study's own
// value, and the marked point with its details.
#include <algorithm>
#include <cmath>

#include "qt/chart_drawing.h"

namespace lorvane {

namespace {

constexpr QPointF legendAir(14, 11);
constexpr double plateGap = 8;  ///< between two boxes in one corner, and between the details and their point

/// The boxes of a plot by its height.
struct BoxRow {
    double from;
    int pixels;
    QPointF air;
    QPointF inset;  ///< to the ends of the plot
};

constexpr BoxRow boxRows[] = {{280, 13, {14, 11}, {18, 16}}, {0, 11, {10, 7}, {10, 8}}};

const BoxRow& boxFor(const QRectF& field) { return boxRows[field.height() >= boxRows[0].from ? 0 : 1]; }

constexpr double ringSize = 12;
constexpr double ringLine = 1.8;
constexpr double ownWidth = 9;
constexpr double ownHeight = 7;
constexpr QPointF requiredAir(6, 3);
const QList<qreal> requiredDashes = {4, 3};

}  // namespace

QRectF ChartDrawing::legendPlate() const {
    const QRectF area = field();
    const QPointF inset = boxFor(area).inset;
    QRectF plate(QPointF(), legend_.size() + QSizeF(2 * legendAir.x(), 2 * legendAir.y()));
    if (content_.legend.place == LegendPlaces::centre)
        plate.moveCenter(area.center());
    else
        plate.moveBottomLeft(area.bottomLeft() + QPointF(inset.x(), -inset.y()));
    return plate.toRect();
}

bool ChartDrawing::legendIsWithin() const { return !legend_.size().isEmpty() && !legendIsBeside(); }

std::optional<QPointF> ChartDrawing::markPlace() const {
    const ChartMark& mark = content_.mark;
    return mark.visible ? placeOf(mark.series, mark.point) : std::nullopt;
}

bool ChartDrawing::detailsAreShown() const {
    return markPlace() && content_.mark.detailsVisible && !content_.mark.details.empty();
}

TextBlock ChartDrawing::details() const {
    const BoxRow& box = boxFor(field());
    return shortened(QString::fromStdString(content_.mark.details), look_.sized(box.pixels),
                     field().width() * plateShare - 2 * box.air.x());
}

/// The box stands in its corner, above the legend where that is in the same corner, and moves up or down
/// where it would hide its point.
QRectF ChartDrawing::detailsPlate() const {
    const BoxRow& box = boxFor(field());
    const TextBlock text = details();
    const QRectF area = field().adjusted(box.inset.x(), box.inset.y(), -box.inset.x(), -box.inset.y());
    QRectF plate(0, 0, text.width() + 2 * box.air.x(), text.height() + 2 * box.air.y());
    const Corners corner = content_.mark.corner;
    const bool left = corner == Corners::topLeft || corner == Corners::bottomLeft;
    const bool top = corner == Corners::topLeft || corner == Corners::topRight;
    plate.moveLeft(left ? area.left() : area.right() - plate.width());
    plate.moveTop(top ? area.top() : area.bottom() - plate.height());
    if (left && !top && content_.legend.place == LegendPlaces::leftBottom && legendIsWithin())
        plate.moveBottom(legendPlate().top() - plateGap);
    const QPointF point = markPlace().value_or(QPointF());
    constexpr double clear = ringSize / 2 + plateGap;
    if (!plate.adjusted(-clear, -clear, clear, clear).contains(point))
        return plate.toRect();
    QRectF moved = plate;
    if (top)
        moved.moveTop(point.y() + clear);
    else
        moved.moveBottom(point.y() - clear);
    return (field().contains(moved) ? moved : plate).toRect();
}

/// How many pieces of lines run through an area.
int ChartDrawing::linesWithin(const QRectF& area) const {
    int count = 0;
    for (int i = 0; i < graphCount(); ++i) {
        QPointF before;
        bool joined = false;
        for (const QCPGraphData& point : *graph(i)->data()) {
            const QPointF place = graph(i)->coordsToPixels(point.key, point.value);
            const bool there = !std::isnan(point.value);
            const QRectF piece = QRectF(joined ? before : place, place).normalized().adjusted(0, 0, 1, 1);
            count += there && piece.intersects(area);
            before = place;
            joined = there;
        }
    }
    return count;
}

/// How much of a line of text at the required power cannot be read, or hides what lies below it.
int ChartDrawing::hiddenAt(const QRectF& plate) const {
    constexpr int all = 1000000;
    const bool covered = (detailsAreShown() && plate.intersects(detailsPlate())) ||
                         (legendIsWithin() && plate.intersects(legendPlate()));
    return covered || !field().contains(plate) ? all : linesWithin(plate);
}

/// Below or above the line, at its right or left end: where the least is hidden.
QPointF ChartDrawing::requiredPlace(const QSizeF& size) const {
    const QRectF area = field();
    const double y = yAxis->coordToPixel(content_.required->value);
    const double right = area.right() - size.width() - requiredAir.x();
    const double left = area.left() + requiredAir.x();
    const double below = y + requiredAir.y();
    const double above = y - requiredAir.y() - size.height();
    const QPointF places[] = {{right, below}, {right, above}, {left, below}, {left, above}};
    return *std::min_element(std::begin(places), std::end(places),
                             [&](const QPointF& one, const QPointF& other) {
                                 return hiddenAt({one, size}) < hiddenAt({other, size});
                             });
}

// Painting -------------------------------------------------------------------------------------------------

void ChartDrawing::paintPlate(QCPPainter& painter, const QRectF& plate) const {
    painter.setAntialiasing(false);
    painter.setPen(QPen(look_.axis, 1));
    painter.setBrush(look_.ground);
    painter.drawRect(plate);
}

void ChartDrawing::paintLegend(QCPPainter& painter) const {
    if (legend_.size().isEmpty())
        return;
    const QRectF area = field();
    if (!legendIsBeside()) {
        const QRectF plate = legendPlate();
        paintPlate(painter, plate);
        return legend_.paint(painter, plate.topLeft() + legendAir);
    }
    const double spare = area.height() - legend_.size().height();
    const bool low = content_.legend.place == LegendPlaces::rightBottom;
    legend_.paint(painter, QPointF(column_->rect().right() + 1 - legend_.size().width(),
                                   std::max(0.0, std::round(area.top() + (low ? spare : spare / 2)))));
}

void ChartDrawing::paintRequiredLine(QCPPainter& painter) const {
    if (!content_.required)
        return;
    const double y = std::round(yAxis->coordToPixel(content_.required->value));
    QPen pen(look_.secondText, 1.0, Qt::SolidLine, Qt::FlatCap);
    pen.setDashPattern(requiredDashes);
    painter.setAntialiasing(false);
    painter.setPen(pen);
    painter.drawLine(QLineF(field().left(), y, field().right(), y));
}

/// The text is as wide as the room beside the details.
void ChartDrawing::paintRequiredText(QCPPainter& painter) const {
    if (!content_.required)
        return;
    const QRectF area = field();
    double room = area.width() - 2 * requiredAir.x();
    if (detailsAreShown())
        room -= detailsPlate().width() + boxFor(area).inset.x();
    const TextBlock text =
        wrapped(QString::fromStdString(content_.required->text), look_.sized(markPixels), room, 1);
    painter.setPen(look_.secondText);
    text.draw(painter, requiredPlace(QSizeF(text.width(), text.height())));
}

/// A triangle that points at the axis from below, and its text under the numbers.
void ChartDrawing::paintOwn(QCPPainter& painter) const {
    if (!content_.own || !xAxis->range().contains(content_.own->value))
        return;
    const double x = xAxis->coordToPixel(content_.own->value);
    const double y = field().bottom() + 1;
    painter.setAntialiasing(true);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look_.text);
    painter.drawPolygon(
        QPolygonF({{x, y}, {x + ownWidth / 2, y + ownHeight}, {x - ownWidth / 2, y + ownHeight}}));
    painter.setAntialiasing(false);
    const TextBlock text = wrapped(QString::fromStdString(content_.own->text),
                                   look_.sized(markPixels, QFont::Medium), field().width(), 1);
    const double half = text.width() / 2;
    const double middle =
        std::clamp(x, field().left() + half, std::max(field().left() + half, field().right() - half));
    const double top = y + tickLength + tickPadding + QFontMetricsF(look_.sized(markPixels)).height();
    painter.setPen(look_.text);
    text.draw(painter, QPointF(middle, top), Qt::AlignHCenter);
}

void ChartDrawing::paintMark(QCPPainter& painter) const {
    const std::optional<QPointF> place = markPlace();
    if (!place)
        return;
    if (detailsAreShown()) {
        const QRectF plate = detailsPlate();
        paintPlate(painter, plate);
        painter.setPen(look_.text);
        details().draw(painter, plate.topLeft() + boxFor(field()).air);
    }
    painter.setAntialiasing(true);
    painter.setPen(QPen(look_.text, ringLine));
    painter.setBrush(look_.ground);
    painter.drawEllipse(*place, (ringSize - ringLine) / 2, (ringSize - ringLine) / 2);
}

}  // namespace lorvane
