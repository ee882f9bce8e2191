// Mouse, wheel, keyboard and focus of a chart.
#include "qt/chart_plot.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <limits>

#include "qt/chart_drawing.h"

namespace lorvane {

namespace {

constexpr int air = 6;  ///< around the drawing, where the ring of the focus is
constexpr double ringWidth = 2;
constexpr double ringRadius = 6;
constexpr double reach = 60;  ///< how far from a point a click may be
constexpr double anywhere = std::numeric_limits<double>::infinity();

}  // namespace

ChartPlot::ChartPlot(QWidget* parent)
    : QWidget(parent), drawing_(new ChartDrawing(this)), look_(ChartLook::of(ColourSets::usual, false)) {
    setFocusPolicy(Qt::StrongFocus);
    drawing_->setLook(look_);
}

void ChartPlot::setContent(const ChartContent& content) { drawing_->setContent(content); }

void ChartPlot::setLook(const ChartLook& look) {
    if (look == look_)
        return;
    look_ = look;
    drawing_->setLook(look);
    update();
}

std::optional<QPointF> ChartPlot::placeOf(int series, int point) const {
    const std::optional<QPointF> place = drawing_->placeOf(series, point);
    return place ? std::optional(*place + drawing_->pos()) : std::nullopt;
}

void ChartPlot::resizeEvent(QResizeEvent*) { drawing_->setGeometry(rect().adjusted(air, air, -air, -air)); }

void ChartPlot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), look_.ground);
    if (!hasFocus() || !byKeyboard_)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look_.focus, ringWidth));
    const double inset = ringWidth / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), ringRadius, ringRadius);
}

// The ring is for people who work with keys; with the mouse it would only lie around the chart.
void ChartPlot::setByKeyboard(bool byKeyboard) {
    byKeyboard_ = byKeyboard;
    update();
}

void ChartPlot::focusInEvent(QFocusEvent* event) {
    setByKeyboard(event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason);
}

void ChartPlot::focusOutEvent(QFocusEvent*) { update(); }

// Mouse ----------------------------------------------------------------------------------------------------

void ChartPlot::pick(const QPointF& place, double within) {
    const std::optional<NearPoint> found = drawing_->nearest(place - drawing_->pos());
    if (found && found->distance <= within)
        emit picked(found->series, found->point);
}

void ChartPlot::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    setByKeyboard(false);
    press_ = Press{event->position()};
    pick(event->position(), reach);
}

void ChartPlot::mouseMoveEvent(QMouseEvent* event) {
    if (!press_)
        return;
    const QPointF way = event->position() - press_->place;
    press_->dragging = press_->dragging || way.manhattanLength() >= QApplication::startDragDistance();
    if (press_->dragging)
        pick(event->position(), anywhere);
}

void ChartPlot::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        press_.reset();
}

void ChartPlot::wheelEvent(QWheelEvent* event) {
    constexpr int step = QWheelEvent::DefaultDeltasPerStep;
    turned_ += event->angleDelta().y();
    const int steps = turned_ / step;
    turned_ -= steps * step;
    if (steps != 0)
        emit wheeled(steps);
    event->accept();
}

// Keyboard -------------------------------------------------------------------------------------------------

void ChartPlot::keyPressEvent(QKeyEvent* event) {
    const bool arrow = event->key() >= Qt::Key_Left && event->key() <= Qt::Key_Down;
    const bool bare = (event->modifiers() & ~Qt::KeypadModifier) == 0;
    if (!arrow || !bare)
        return QWidget::keyPressEvent(event);
    setByKeyboard(true);
    emit stepped(static_cast<Qt::Key>(event->key()));
}

}  // namespace lorvane
