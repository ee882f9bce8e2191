// The search for a place that covers nothing.
#include "desktop/free_place.h"

#include <algorithm>
#include <tuple>

namespace lorvane::desktop {

namespace {

constexpr int gap = 8;    // between the main window and what stands beside it
constexpr int step = 16;  // of the grid of places

// The place moved onto the screen; its top left corner always is.
QPoint onScreen(const QPoint& at, const QSize& size, const QRect& screen) {
    const int right = screen.right() + 1 - size.width();
    const int bottom = screen.bottom() + 1 - size.height();
    return {std::max(screen.left(), std::min(at.x(), right)),
            std::max(screen.top(), std::min(at.y(), bottom))};
}

// Where a window stands first of all, and beside the main window where the screen has the room.
QList<QPoint> preferredPlaces(const QSize& size, const Surroundings& around, const QPoint& wanted) {
    QList<QPoint> places = {onScreen(wanted, size, around.screen)};
    if (around.window.isEmpty())
        return places;
    for (const int left : {around.window.right() + 1 + gap, around.window.left() - gap - size.width()}) {
        const QPoint beside = onScreen({left, wanted.y()}, size, around.screen);
        if (beside.x() == left)
            places.append(beside);
    }
    return places;
}

// From one end of a room to the other, both ends included.
QList<int> stepsThrough(int from, int to) {
    QList<int> steps;
    for (int at = from; at < to; at += step)
        steps.append(at);
    steps.append(std::max(from, to));
    return steps;
}

QList<QPoint> gridPlaces(const QSize& size, const Surroundings& around) {
    QList<QPoint> places;
    const QRect& screen = around.screen;
    for (const int y : stepsThrough(screen.top(), screen.bottom() + 1 - size.height()))
        for (const int x : stepsThrough(screen.left(), screen.right() + 1 - size.width()))
            places.append({x, y});
    return places;
}

}  // namespace

qint64 coveredArea(const QRect& place, const QList<QRect>& others) {
    qint64 area = 0;
    for (const QRect& other : others) {
        const QRect covered = other & place;
        area += qint64{1} * covered.width() * covered.height();
    }
    return area;
}

QPoint freePlace(const QSize& size, const Surroundings& around, const QPoint& wanted) {
    const auto cost = [&](const QPoint& at) {
        const QRect place(at, size);
        return std::make_tuple(coveredArea(place, around.pointedAt), coveredArea(place, around.results),
                               (at - wanted).manhattanLength());
    };
    for (const QPoint& at : preferredPlaces(size, around, wanted)) {
        const QRect place(at, size);
        if (coveredArea(place, around.pointedAt) == 0 && coveredArea(place, around.results) == 0)
            return at;
    }
    const QList<QPoint> grid = gridPlaces(size, around);
    return *std::min_element(grid.begin(), grid.end(),
                             [&](const QPoint& a, const QPoint& b) { return cost(a) < cost(b); });
}

}  // namespace lorvane::desktop
