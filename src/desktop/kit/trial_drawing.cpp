// Painting of the trial from the top down, once for each arm.
#include "desktop/kit/trial_drawing.h"

#include <algorithm>

#include <QPainter>
#include <QPainterPath>

#include "desktop/kit/icons.h"
#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"

namespace lorvane::desktop {

namespace {

/// The size of the drawing. Its places count from the middle of its top.
constexpr QSizeF Extent(330, 242);

constexpr double RingSize = 34;
constexpr double ShuffleSize = 18;
constexpr double ArmX = 92;
constexpr double ArmY = 97;
constexpr double ClusterY = 175;
constexpr double ClusterGap = 52;
constexpr double IndividualY = 239;
constexpr double IndividualGap = 11;

/// The dots of a rank and the lines that lead to them.
struct Rank {
    double dot;
    double dotOpacity;
    double line;
    double lineOpacity;
};

constexpr Rank Arm = {18, 1, 2.2, 1};
constexpr Rank Cluster = {11, 1, 1.5, 0.7};
constexpr Rank Individual = {6, 0.8, 1, 0.4};

QPen penOf(const Rank& rank, QColor ink) {
    ink.setAlphaF(static_cast<float>(rank.lineOpacity));
    return QPen(ink, rank.line, Qt::SolidLine, Qt::FlatCap);
}

void paintDot(QPainter& painter, const Rank& rank, const QPointF& place, QColor ink) {
    ink.setAlphaF(static_cast<float>(rank.dotOpacity));
    drawDot(painter, place, rank.dot, ink);
}

/// A line that leaves and arrives upright.
void paintWay(QPainter& painter, const QPointF& from, const QPointF& to) {
    const double middle = (from.y() + to.y()) / 2;
    QPainterPath path(from);
    path.cubicTo(QPointF(from.x(), middle), QPointF(to.x(), middle), to);
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

/// The way from the ring to an arm leaves aslant; the side is -1 or 1.
void paintArmWay(QPainter& painter, double side) {
    QPainterPath path(QPointF(side * 7.5, 35));
    path.cubicTo(QPointF(side * 25, 57), QPointF(side * ArmX, 63), QPointF(side * ArmX, ArmY));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
}

void paintCluster(QPainter& painter, double x, const QColor& ink) {
    for (const double offset : {-1.5, -0.5, 0.5, 1.5}) {
        const QPointF place(x + offset * IndividualGap, IndividualY);
        painter.setPen(penOf(Individual, ink));
        paintWay(painter, QPointF(x, ClusterY), place);
        paintDot(painter, Individual, place, ink);
    }
    paintDot(painter, Cluster, QPointF(x, ClusterY), ink);
}

void paintArm(QPainter& painter, double side, const QColor& ink) {
    const double x = side * ArmX;
    for (const double offset : {-1.0, 0.0, 1.0}) {
        const double clusterX = x + offset * ClusterGap;
        painter.setPen(penOf(Cluster, ink));
        paintWay(painter, QPointF(x, ArmY), QPointF(clusterX, ClusterY));
        paintCluster(painter, clusterX, ink);
    }
    painter.setPen(penOf(Arm, ink));
    paintArmWay(painter, side);
    paintDot(painter, Arm, QPointF(x, ArmY), ink);
}

void paintRing(QPainter& painter) {
    const QRectF ring(-RingSize / 2, 0, RingSize, RingSize);
    fillPlate(painter, ring.adjusted(0.5, 0.5, -0.5, -0.5), RingSize / 2, colour(Role::Card));
    strokePlate(painter, ring, RingSize / 2, colour(Role::Accent), RingWidth);
    QRectF sign(0, 0, ShuffleSize, ShuffleSize);
    sign.moveCenter(ring.center());
    drawIcon(painter, Icon::Shuffle, sign, colour(Role::Accent));
}

}  // namespace

QSize TrialDrawing::sizeHint() const { return Extent.toSize(); }

void TrialDrawing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = std::min({1.0, width() / Extent.width(), height() / Extent.height()});
    painter.translate(width() / 2.0, (height() - scale * Extent.height()) / 2);
    painter.scale(scale, scale);
    paintArm(painter, -1, colour(Role::Treated));
    paintArm(painter, 1, colour(Role::Control));
    paintRing(painter);
}

}  // namespace lorvane::desktop
