// Painting and input of a cell. Every change of state repaints once, and only when something changed.
#include "desktop/kit/value_cell.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QToolTip>

#include "desktop/kit/accessible_field.h"
#include "desktop/kit/icons.h"
#include "desktop/kit/neighbour.h"
#include "desktop/kit/number_text.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/text_style.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

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
constexpr double LinkPlate = 20;
constexpr int FirstRepeat = 400;  ///< milliseconds
constexpr int NextRepeats = 60;
constexpr int FastAfter = 1000;
constexpr int FastSteps = 10;
constexpr int WheelNotch = 120;

struct StepKey {
    int key;
    int direction;
    int steps;
};
constexpr StepKey StepKeys[] = {
    {Qt::Key_Up, 1, 1}, {Qt::Key_Down, -1, 1}, {Qt::Key_PageUp, 1, 10}, {Qt::Key_PageDown, -1, 10}};

/// The row of a key; null for one that does not step.
const StepKey* stepKeyOf(const QKeyEvent& event) {
    for (const StepKey& row : StepKeys)
        if (event.key() == row.key)
            return &row;
    return nullptr;
}

/// Whether a number can begin with what a key has typed.
bool beginsNumber(const QString& typed) {
    if (typed.isEmpty())
        return false;
    const QLocale locale;
    return typed[0].isDigit() || typed == QLatin1String(".") || typed == QLatin1String("-") ||
           typed == locale.decimalPoint() || typed == locale.negativeSign();
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

void ValueCell::setAtRest(bool atRest) {
    if (replaced(atRest_, atRest))
        update();
}

bool ValueCell::isChangeable() const { return traitsOf(kind_).field; }

void ValueCell::setLinkWords(const QString& words) { linkWords_ = words; }

void ValueCell::toggleLink() {
    if (isLinkable() && isEnabled())
        emit linkToggled();
}

QAccessible::Role ValueCell::accessibleRole() const { return traitsOf(kind_).role; }

void ValueCell::step(int direction) {
    if (!isChangeable() || !isEnabled())
        return;
    emit stepped(direction, 1);
    emit stepFinished();
}

void ValueCell::activate() {
    if (isEnabled())
        emit activated();
}

QSize ValueCell::sizeHint() const {
    return {zoomed(*this, large_ ? 112 : 94), zoomed(*this, large_ ? 32 : 28)};
}

QSize ValueCell::minimumSizeHint() const { return {zoomed(*this, 40), zoomed(*this, 24)}; }

// Input ----------------------------------------------------------------------------------------------------

int ValueCell::arrowAt(const QPointF& point) const {
    if (!isChangeable() || point.x() < width() - zoomed(*this, SignWidth) || !QRectF(rect()).contains(point))
        return 0;
    return point.y() < height() / 2.0 ? 1 : -1;
}

bool ValueCell::isOnLink(const QPointF& point) const {
    const QRectF bounds = figureRect(*this);
    const QPointF at = figurePoint(*this, point);
    return traitsOf(kind_).link && isLinkable() && isEnabled() && bounds.contains(at) &&
           at.x() >= bounds.width() - SignWidth;
}

void ValueCell::setArrowUnderPointer(int arrow) {
    if (replaced(arrowUnderPointer_, arrow))
        update();
}

void ValueCell::setPointer(const QPointF& point) {
    setArrowUnderPointer(arrowAt(point));
    if (!replaced(linkUnderPointer_, isOnLink(point)))
        return;
    if (linkUnderPointer_)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
    update();
}

void ValueCell::beginHold(int direction, int steps) {
    held_ = direction;
    heldSteps_ = steps;
    sinceHeld_.start();
    sendSteps();
}

/// What is held for long goes on faster; the owner stops at the limits.
void ValueCell::sendSteps() {
    const bool isFast = sinceHeld_.elapsed() >= FastAfter;
    emit stepped(held_, isFast ? std::max(heldSteps_, FastSteps) : heldSteps_);
}

void ValueCell::endHold() {
    repeat_.stop();
    click_.stop();
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
    if (event->timerId() == click_.timerId()) {
        click_.stop();
        emit clicked();
    }
    if (event->timerId() != repeat_.timerId())
        return QWidget::timerEvent(event);
    repeat_.start(NextRepeats, this);
    sendSteps();
}

/// What a click opens may move the cells, so it waits until a second click can no longer follow.
void ValueCell::mousePressEvent(QMouseEvent* event) {
    if (pushArrow(*event) || event->button() != Qt::LeftButton)
        return;
    if (isOnLink(event->position()))
        toggleLink();
    else
        click_.start(QApplication::doubleClickInterval(), this);
}

void ValueCell::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && repeat_.isActive())
        endHold();
}

void ValueCell::mouseDoubleClickEvent(QMouseEvent* event) {
    click_.stop();
    if (!pushArrow(*event) && event->button() == Qt::LeftButton && !isOnLink(event->position()))
        emit activated();
}

void ValueCell::mouseMoveEvent(QMouseEvent* event) { setPointer(event->position()); }

void ValueCell::enterEvent(QEnterEvent* event) {
    setPointer(event->position());
    update();
}

void ValueCell::leaveEvent(QEvent*) {
    setPointer({-1, -1});
    update();
}

bool ValueCell::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* asked = static_cast<QHelpEvent*>(event);
    if (!isOnLink(asked->pos()))
        return QWidget::event(event);
    QToolTip::showText(asked->globalPos(), linkWords_, this);
    return true;
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

void ValueCell::openMenuBelow() { emit contextMenuRequested(mapToGlobal(QPoint(0, height()))); }

/// The keys of a cell whatever its kind; false for any other.
bool ValueCell::pressKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit activated();
        return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
        focusNeighbour(*this, event.key() == Qt::Key_Left ? -1 : 1);
        return true;
    case Qt::Key_Menu:
        openMenuBelow();
        return true;
    case Qt::Key_Space:
        if (traitsOf(kind_).word && isChangeable())
            openMenuBelow();
        return true;
    default:
        return false;
    }
}

bool ValueCell::typeKey(const QKeyEvent& event) {
    const bool isNumber = traitsOf(kind_).role == QAccessible::SpinBox;
    if (isNumber && beginsNumber(event.text()))
        emit typed(event.text());
    else if (event.key() == Qt::Key_L && isLinkable())
        toggleLink();
    else
        return false;
    return true;
}

void ValueCell::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier)
        return openMenuBelow();
    const bool modified = event->modifiers() & ~Qt::KeypadModifier;
    const StepKey* step = modified ? nullptr : stepKeyOf(*event);
    if (step == nullptr || !isChangeable()) {
        if (modified || !(pressKey(*event) || typeKey(*event)))
            QWidget::keyPressEvent(event);
    } else if (event->isAutoRepeat() && held_ == step->direction) {
        sendSteps();
    } else {
        beginHold(step->direction, step->steps);
    }
}

void ValueCell::keyReleaseEvent(QKeyEvent* event) {
    if (stepKeyOf(*event) == nullptr)
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
    if (event->reason() != QContextMenuEvent::Mouse)
        return openMenuBelow();
    emit contextMenuRequested(event->globalPos());
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
    if (!isEnabled() || atRest_)
        return colour(Role::Quiet);
    return colour(isChangeable() ? Role::Text : Role::SecondText);
}

void ValueCell::paintPlate(QPainter& painter) const {
    const QRectF bounds = figureRect(*this);
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
    const QRectF area = figureRect(*this).adjusted(WordInset, 0, -SignWidth, 0);
    const bool word = traitsOf(kind_).word;
    const QFont plain = textFont(large_ ? TextStyle::Effect : word ? TextStyle::Body : TextStyle::Value);
    painter.setFont(fittedFont(plain, text_, area.width()));
    painter.setPen(textColour());
    drawNumber(painter, area, word ? Qt::AlignLeft : Qt::AlignRight, text_);
}

void ValueCell::paintArrow(QPainter& painter, int direction) const {
    const QRectF bounds = figureRect(*this);
    const QPointF centre(bounds.width() - SignWidth / 2, bounds.height() / 2);
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

void ValueCell::paintLink(QPainter& painter) const {
    const QRectF bounds = figureRect(*this);
    const QPointF centre(bounds.width() - SignWidth / 2, bounds.height() / 2.0);
    const auto around = [&](double size) {
        return QRectF(centre.x() - size / 2, centre.y() - size / 2, size, size);
    };
    if (linkUnderPointer_)
        fillPlate(painter, around(LinkPlate), 4, colour(Role::FieldHover));
    drawIcon(painter, Icon::Link, around(LinkSize), colour(linkUnderPointer_ ? Role::Text : Role::Quiet));
}

void ValueCell::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    paintPlate(painter);
    paintText(painter);
    if (isChangeable())
        for (int direction : {1, -1})
            paintArrow(painter, direction);
    if (traitsOf(kind_).link)
        paintLink(painter);
}

}  // namespace lorvane::desktop
