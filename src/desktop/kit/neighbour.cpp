// Where Left and Right lead from a widget.
#include "desktop/kit/neighbour.h"

#include <tuple>

#include <QDockWidget>
#include <QWidget>

#include "desktop/kit/card.h"

namespace lorvane::desktop {

namespace {

QRect placeIn(const QWidget& scope, const QWidget& widget) {
    return {widget.mapTo(&scope, QPoint(0, 0)), widget.size()};
}

bool takesTab(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus);
}

// Pixels between two places in a direction; below 0 where the other one does not lie there.
int gapTo(const QRect& place, const QRect& other, int direction) {
    const bool sameRow = other.top() <= place.bottom() && other.bottom() >= place.top();
    const int gap = direction > 0 ? other.left() - place.right() - 1 : place.left() - other.right() - 1;
    return sameRow ? gap : -1;
}

// Of two at the same distance the one nearer in height counts, then the upper one.
QWidget* nearestIn(const QWidget& scope, const QWidget& from, int direction) {
    const QRect place = placeIn(scope, from);
    std::tuple<int, int, int> least;
    QWidget* nearest = nullptr;
    for (QWidget* widget : scope.findChildren<QWidget*>()) {
        if (widget->window() != from.window() || !takesTab(*widget))
            continue;
        const QRect other = placeIn(scope, *widget);
        const int gap = gapTo(place, other, direction);
        const std::tuple rank(gap, std::abs(other.center().y() - place.center().y()), other.top());
        if (gap < 0 || (nearest != nullptr && rank >= least))
            continue;
        least = rank;
        nearest = widget;
    }
    return nearest;
}

bool isBorder(const QWidget& widget) {
    return widget.isWindow() || qobject_cast<const Card*>(&widget) ||
           qobject_cast<const QDockWidget*>(&widget);
}

}  // namespace

void focusNeighbour(QWidget& from, int direction) {
    const QWidget* scope = &from;
    QWidget* found = nullptr;
    while (found == nullptr && !isBorder(*scope)) {
        scope = scope->parentWidget();
        found = nearestIn(*scope, from, direction);
    }
    if (found != nullptr)
        found->setFocus(Qt::TabFocusReason);
}

}  // namespace lorvane::desktop
