// Where a floating window stands in nobody's way. Knows rectangles only.
#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

namespace lorvane::desktop {

/// What is around a window that is to be placed, in places of the screen.
struct Surroundings {
    QRect screen;            ///< the free area of the screen
    QRect window;            ///< what it may stand beside; empty for nothing
    QList<QRect> pointedAt;  ///< what is worked on and what is outlined: it comes first
    QList<QRect> results;    ///< what is watched while one works
};

/// The area that a rectangle covers of others, in pixels.
qint64 coveredArea(const QRect& place, const QList<QRect>& others);

/// The top left corner for a window of a size, its frame included: the wanted one if nothing is covered
/// there, else beside the main window, else the place on the screen that covers least and lies nearest to the
/// wanted one.
QPoint freePlace(const QSize& size, const Surroundings& around, const QPoint& wanted);

}  // namespace lorvane::desktop
