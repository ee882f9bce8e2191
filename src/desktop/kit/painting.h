// Small shapes that several widgets paint alike. Knows no widget.
#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

namespace lorvane::desktop {

inline constexpr double CardRadius = 8;
inline constexpr double FieldRadius = 6;
inline constexpr double RingWidth = 2;

/// A plate with round corners, without a line.
void fillPlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& fill);

/// A line with round corners that lies wholly within the bounds.
void strokePlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& line, double width);

/// A plate with a line of 1 around it, both within the bounds.
void drawPlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& fill,
               const QColor& line);

/// A filled dot.
void drawDot(QPainter& painter, const QPointF& centre, double diameter, const QColor& fill);

}  // namespace lorvane::desktop
