// Painting and input of a cell. Every change of state repaints once, and only when something changed.
#include "desktop/kit/value_cell.h"

#include <array>
#include <utility>

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>

#include "desktop/kit/accessible_field.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

struct Traits {
    bool field;
    bool link;
    bool word;
    Qt::FocusPolicy focus;
    QAccessible::Role role;
};

/// In the order of ValueCell::Kind. What has a field has arrows.
constexpr std::array<Traits, 5> KindTraits = {{
    {true, false, false, Qt::StrongFocus, QAccessible::SpinBox},
    {false, true, false, Qt::StrongFocus, QAccessible::SpinBox},
    {false, false, false, Qt::ClickFocus, QAccessible::StaticText},
    {true, false, true, Qt::StrongFocus, QAccessible::ComboBox},
    {false, false, true, Qt::ClickFocus, QAccessible::StaticText},
}};

const Traits& traitsOf(ValueCell::Kind kind) { return KindTraits[static_cast<std::size_t>(kind)]; }

constexpr double SignWidth = 24;  ///< the arrows or the link sign, right of the text
constexpr double WordInset = 9;
constexpr double LinkSize = 14;
constexpr int FirstRepeat = 400;  ///< milliseconds
constexpr int NextRepeats = 60;
constexpr int WheelNotch = 120;

const std::pair<int, int> StepKeys[] = {{Qt::Key_Up, 1}, {Qt::Key_Down, -1}};

/// The direction of a key; 0 for one that does not step.
int directionOf(const QKeyEvent& event) {
    for (const auto& [key, direction] : StepKeys)
        if (event.key() == key)
            return direction;
    return 0;
}

/// Sets a member and tells whether that changed it.
template <typename T>
bool replaced(T& member, const T& value) {
    if (member == value)
        return false;
    member = value;
    return true;
}

}  // namespace

ValueCell::ValueCell(Kind kind, QWidget* parent) : QWidget(parent), kind_(kind) {
    installAccessibleFields<ValueCell>();
    setFocusPolicy(traitsOf(kind).focus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ValueCell::setKind(Kind kind) {
    if (!replaced(kind_, kind))
        return;
    endHold();
    setFocusPolicy(traitsOf(kind).focus);
    update();
}

void ValueCell::setText(const QString& text) {
    const QString before = text_;
    if (!replaced(text_, text))
        return;
    QAccessibleTextUpdateEvent changed(this, 0, before, text);
    QAccessible::updateAccessibility(&changed);
    update();
}

void ValueCell::setProblem(Problem problem) {
    if (replaced(problem_, problem))
        update();
}

void ValueCell::setLarge(bool large) {
    if (!replaced(large_, large))
        return;
    updateGeometry();
    update();
}

bool ValueCell::isChangeable() const { return traitsOf(kind_).field; }

QAccessible::Role ValueCell::accessibleRole() const { return traitsOf(kind_).role; }

void ValueCell::step(int direction) {
    if (!isChangeable() || !isEnabled())
        return;
    emit stepped(direction);
    emit stepFinished();
}

void ValueCell::activate() {
    if (isEnabled())
        emit activated();
}

QSize ValueCell::sizeHint() const { return large_ ? QSize(112, 32) : QSize(94, 28); }

QSize ValueCell::minimumSizeHint() const { return {40, 24}; }

// Input ----------------------------------------------------------------------------------------------------

int ValueCell::arrowAt(const QPointF& point) const {
    if (!isChangeable() || point.x() < width() - SignWidth || !QRectF(rect()).contains(point))
        return 0;
    return point.y() < height() / 2.0 ? 1 : -1;
}

void ValueCell::setArrowUnderPointer(int arrow) {
    if (replaced(arrowUnderPointer_, arrow))
        update();
}

void ValueCell::beginHold(int direction) {
    held_ = direction;
    emit stepped(direction);
}

void ValueCell::endHold() {
    repeat_.stop();
    if (std::exchange(held_, 0) != 0)
        emit stepFinished();
}

bool ValueCell::pushArrow(const QMouseEvent& event) {
    const int arrow = event.button() == Qt::LeftButton ? arrowAt(event.position()) : 0;
    if (arrow == 0)
        return false;
    endHold();
    repeat_.start(FirstRepeat, this);
    beginHold(arrow);
    return true;
}

void ValueCell::timerEvent(QTimerEvent* event) {
    if (event->timerId() != repeat_.timerId())
        return QWidget::timerEvent(event);
    repeat_.start(NextRepeats, this);
    emit stepped(held_);
}

void ValueCell::mousePressEvent(QMouseEvent* event) { pushArrow(*event); }

void ValueCell::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && repeat_.isActive())
        endHold();
}

void ValueCell::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!pushArrow(*event) && event->button() == Qt::LeftButton)
        emit activated();
}

void ValueCell::mouseMoveEvent(QMouseEvent* event) { setArrowUnderPointer(arrowAt(event->position())); }

void ValueCell::enterEvent(QEnterEvent* event) {
    arrowUnderPointer_ = arrowAt(event->position());
    update();
}

void ValueCell::leaveEvent(QEvent*) {
    arrowUnderPointer_ = 0;
    update();
}

void ValueCell::wheelEvent(QWheelEvent* event) {
    if (!isChangeable() || !(event->modifiers() & Qt::ControlModifier))
        return event->ignore();
    wheelRest_ += event->angleDelta().y();
    const int notches = wheelRest_ / WheelNotch;
    wheelRest_ -= notches * WheelNotch;
    for (int i = 0; i < std::abs(notches); ++i)
        step(notches > 0 ? 1 : -1);
    event->accept();
}

void ValueCell::keyPressEvent(QKeyEvent* event) {
    const bool modified = event->modifiers() & ~Qt::KeypadModifier;
    const int direction = modified ? 0 : directionOf(*event);
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        emit activated();
    else if (direction != 0 && isChangeable())
        beginHold(direction);
    else
        QWidget::keyPressEvent(event);
}

void ValueCell::keyReleaseEvent(QKeyEvent* event) {
    if (directionOf(*event) == 0)
        return QWidget::keyReleaseEvent(event);
    if (!event->isAutoRepeat())
        endHold();
}

void ValueCell::focusInEvent(QFocusEvent*) {
    update();
    emit focused();
}

void ValueCell::focusOutEvent(QFocusEvent*) {
    endHold();
    update();
}

void ValueCell::contextMenuEvent(QContextMenuEvent* event) {
    const bool byMouse = event->reason() == QContextMenuEvent::Mouse;
    emit contextMenuRequested(byMouse ? event->globalPos() : mapToGlobal(QPoint(0, height())));
}

void ValueCell::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        endHold();
    QWidget::changeEvent(event);
}

void ValueCell::hideEvent(QHideEvent*) { endHold(); }

// Painting -------------------------------------------------------------------------------------------------

bool ValueCell::isLit() const { return isEnabled() && isChangeable() && underMouse(); }

/// In high contrast a field has no tint of its own to be seen by.
bool ValueCell::needsLine() const { return isChangeable() && Theme::current().isHighContrast(); }

QColor ValueCell::plateColour() const {
    if (hasProblem())
        return colour(Role::ProblemTint);
    if (hasFocus())
        return colour(Role::Card);
    return colour(isLit() ? Role::FieldHover : Role::Field);
}

QColor ValueCell::textColour() const {
    if (!isEnabled())
        return colour(Role::Quiet);
    return colour(isChangeable() ? Role::Text : Role::SecondText);
}

void ValueCell::paintPlate(QPainter& painter) const {
    const QRectF bounds(rect());
    if (isChangeable() || hasFocus() || hasProblem())
        fillPlate(painter, bounds.adjusted(0.5, 0.5, -0.5, -0.5), FieldRadius, plateColour());
    const bool outlined = problem_ == Problem::Outlined;
    if (outlined)
        strokePlate(painter, bounds, FieldRadius, colour(Role::ProblemOutline), RingWidth);
    const double inset = outlined ? RingWidth : 0;
    if (hasFocus())
        strokePlate(painter, bounds.adjusted(inset, inset, -inset, -inset), FieldRadius - inset,
                    colour(Role::Accent), RingWidth);
    else if ((isLit() || needsLine()) && !outlined)
        strokePlate(painter, bounds, FieldRadius, colour(Role::StrongLine), 1);
}

void ValueCell::paintText(QPainter& painter) const {
    const QRectF area = QRectF(rect()).adjusted(WordInset, 0, -SignWidth, 0);
    const bool word = traitsOf(kind_).word;
    const QFont plain = textFont(large_ ? TextStyle::Effect : word ? TextStyle::Body : TextStyle::Value);
    painter.setFont(fittedFont(plain, text_, area.width()));
    painter.setPen(textColour());
    drawNumber(painter, area, word ? Qt::AlignLeft : Qt::AlignRight, text_);
}

void ValueCell::paintArrow(QPainter& painter, int direction) const {
    const QPointF centre(width() - SignWidth / 2, height() / 2.0);
    const bool under = isLit() && arrowUnderPointer_ == direction;
    if (under) {
        QColor plate = colour(Role::StrongLine);
        plate.setAlphaF(0.45F);
        const QRectF half(centre.x() - 8.5, direction > 0 ? centre.y() - 12 : centre.y(), 17, 12);
        fillPlate(painter, half, 4, plate);
    }
    const Role rest = isLit() ? Role::SecondText : Role::Quiet;
    const Role role = under ? Role::Text : hasFocus() ? Role::Accent : rest;
    painter.setPen(QPen(colour(role), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const double base = centre.y() - 3.5 * direction;
    const double tip = centre.y() - 5.75 * direction;
    const QPointF points[] = {{centre.x() - 3.25, base}, {centre.x(), tip}, {centre.x() + 3.25, base}};
    painter.drawPolyline(points, 3);
}

void ValueCell::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPlate(painter);
    paintText(painter);
    if (isChangeable())
        for (int direction : {1, -1})
            paintArrow(painter, direction);
    const double left = width() - (SignWidth + LinkSize) / 2;
    if (traitsOf(kind_).link)
        drawIcon(painter, Icon::Link, QRectF(left, (height() - LinkSize) / 2, LinkSize, LinkSize),
                 colour(Role::Quiet));
}

}  // namespace lorvane::desktop
