// Painting of the rail: the ways between the rows first, then the stops.
#include "desktop/kit/level_rail.h"

#include <algorithm>

#include <QPainter>
#include <QPainterPath>

#include "desktop/kit/icons.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

constexpr double HalfGap = 7;  ///< from the middle to each of the two lines
constexpr double LineWidth = 1.5;
constexpr double RingSize = 18;
constexpr double ShuffleSize = 11;
constexpr double BlockedDot = 11;
constexpr double NestedDot = 8;

/// The free space between the middle of a stop and the lines, in the order of LevelRail::Stop.
constexpr double Clearance[] = {10, 11, 6.5};

/// Where the two lines have reached their places, from the middle of the ring.
constexpr double ForkEnd = 36;

double clearanceOf(LevelRail::Stop stop) { return Clearance[static_cast<int>(stop)]; }

QPen linePen(Role role) { return QPen(colour(role), LineWidth, Qt::SolidLine, Qt::FlatCap); }

struct Side {
    double sign;
    Role role;
};

constexpr Side Sides[] = {{-1, Role::Treated}, {1, Role::Control}};

}  // namespace

LevelRail::LevelRail(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
}

void LevelRail::setStops(const QList<Stop>& stops, const QList<int>& centres) {
    if (stops == stops_ && centres == centres_)
        return;
    stops_ = stops;
    centres_ = centres;
    update();
}

QSize LevelRail::sizeHint() const { return {zoomed(*this, 50), zoomed(*this, 86)}; }

void LevelRail::paintFork(QPainter& painter, double from, double to) const {
    const double start = from + clearanceOf(Stop::Randomized);
    const double end = std::min(from + ForkEnd, to);
    const double bend = (start + end) / 2;
    for (const Side& side : Sides) {
        const double x = middle() + side.sign * HalfGap;
        QPainterPath path(QPointF(middle() + side.sign * LineWidth / 4, start));
        path.cubicTo(QPointF(middle(), bend), QPointF(x, bend), QPointF(x, end));
        path.lineTo(x, to);
        painter.setPen(linePen(side.role));
        painter.drawPath(path);
    }
}

void LevelRail::paintPair(QPainter& painter, double from, double to) const {
    for (const Side& side : Sides) {
        const double x = middle() + side.sign * HalfGap;
        painter.setPen(linePen(side.role));
        painter.drawLine(QPointF(x, from), QPointF(x, to));
    }
}

void LevelRail::paintWay(QPainter& painter, qsizetype from) const {
    const Stop above = stops_[from];
    const double start = centres_[from] + clearanceOf(above);
    const double end = centres_[from + 1] - clearanceOf(stops_[from + 1]);
    painter.setBrush(Qt::NoBrush);
    if (above == Stop::Randomized)
        return paintFork(painter, centres_[from], end);
    if (above == Stop::Nested)
        return paintPair(painter, start, end);
    painter.setPen(linePen(Role::StrongLine));
    painter.drawLine(QPointF(middle(), start), QPointF(middle(), end));
}

void LevelRail::paintStop(QPainter& painter, Stop stop, double y) const {
    const QPointF centre(middle(), y);
    if (stop == Stop::Nested) {
        for (const Side& side : Sides)
            drawDot(painter, centre + QPointF(side.sign * HalfGap, 0), NestedDot, colour(side.role));
    } else if (stop == Stop::Blocked) {
        const QRectF dot(centre.x() - BlockedDot / 2, y - BlockedDot / 2, BlockedDot, BlockedDot);
        painter.setPen(Qt::NoPen);
        for (const Side& side : Sides) {
            painter.setBrush(colour(side.role));
            painter.drawPie(dot, (side.sign < 0 ? 90 : 270) * 16, 180 * 16);
        }
    } else {
        const QRectF ring(centre.x() - RingSize / 2, y - RingSize / 2, RingSize, RingSize);
        fillPlate(painter, ring.adjusted(0.5, 0.5, -0.5, -0.5), RingSize / 2, colour(Role::AccentTint));
        strokePlate(painter, ring, RingSize / 2, colour(Role::Accent), LineWidth);
        drawIcon(painter, Icon::Shuffle,
                 QRectF(centre.x() - ShuffleSize / 2, y - ShuffleSize / 2, ShuffleSize, ShuffleSize),
                 colour(Role::Accent));
    }
}

void LevelRail::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qsizetype count = std::min(stops_.size(), centres_.size());
    for (qsizetype i = 0; i + 1 < count; ++i)
        paintWay(painter, i);
    for (qsizetype i = 0; i < count; ++i)
        paintStop(painter, stops_[i], centres_[i]);
}

}  // namespace lorvane::desktop
