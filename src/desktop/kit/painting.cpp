// Plates and dots, antialiased, with their lines inside the bounds.
#include "desktop/kit/painting.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <algorithm>
#include <numbers>

namespace lorvane::desktop {

void fillPlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& fill) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(bounds, radius, radius);
}

void strokePlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& line, double width) {
    const double shown = width > 1 ? width : width / painter.worldTransform().m11();
    const double half = shown / 2;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, shown));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(bounds.adjusted(half, half, -half, -half), radius - half, radius - half);
}

void drawPlate(QPainter& painter, const QRectF& bounds, double radius, const QColor& fill,
               const QColor& line) {
    fillPlate(painter, bounds.adjusted(0.5, 0.5, -0.5, -0.5), radius, fill);
    strokePlate(painter, bounds, radius, line, 1);
}

void drawDot(QPainter& painter, const QPointF& centre, double diameter, const QColor& fill) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawEllipse(centre, diameter / 2, diameter / 2);
}

void drawDiamond(QPainter& painter, const QPointF& centre, double across, const QColor& fill,
                 const QColor& line, double width) {
    const double reach = (across - std::numbers::sqrt2 * width) / 2;
    const QPointF corners[] = {{0, -reach}, {reach, 0}, {0, reach}, {-reach, 0}};
    QPolygonF diamond;
    for (const QPointF& corner : corners)
        diamond << centre + corner;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(fill);
    painter.drawPolygon(diamond);
}

void drawBar(QPainter& painter, const QRectF& track, double radius, double share, const QColor& ground,
             const QColor& fill) {
    QPainterPath shape;
    shape.addRoundedRect(track, radius, radius);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape, ground);
    QPainterPath filled;
    const double length = track.width() * std::clamp(share, 0.0, 1.0);
    filled.addRect(QRectF(track.topLeft(), QSizeF(length, track.height())));
    painter.fillPath(shape.intersected(filled), fill);
}

}  // namespace lorvane::desktop
