// Small shapes that several widgets paint alike. Knows no widget.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace lorvane::desktop {

inline constexpr double CardRadius = 8;   ///< of the corners of cards and outlines
inline constexpr double FieldRadius = 6;  ///< of the corners of fields, buttons and rows
inline constexpr double RingWidth = 2;    ///< of the line around what has the focus or a problem

/// A plate with round corners, without a line. Like all of these it leaves the painter's pen, brush and
/// antialiasing changed.
void fillPlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& fill);

/// A line around a plate with round corners; the whole width of the line lies within the bounds. A line of 1
/// stays so thin where the painter shows everything larger.
void strokePlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& line, double width);

/// A plate with a line of 1 around it, both within the bounds.
void drawPlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& fill,
               const QColor& line);

/// A filled dot.
void drawDot(QPainter& painter, const QPointF& centre, double diameter, const QColor& fill);

/// A square that stands on a corner, so wide from corner to corner; the line lies within that.
void drawDiamond(QPainter& painter, const QPointF& centre, double across, const QColor& fill,
                 const QColor& line, double width);

/// A bar with round corners that is filled to a share of its length, 0 to 1.
void drawBar(QPainter& painter, const QRectF& track, double radius, double share, const QColor& ground,
             const QColor& fill);

}  // namespace lorvane::desktop
