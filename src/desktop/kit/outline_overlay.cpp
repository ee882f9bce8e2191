// Painting of the outlines and keeping the sheet on top.
#include "desktop/kit/outline_overlay.h"

#include <QChildEvent>
#include <QPainter>

#include "desktop/kit/painting.h"
#include "desktop/kit/theme.h"
#include "desktop/kit/zoom.h"

namespace lorvane::desktop {

namespace {

/// The line that sets the outline off from a dark ground.
constexpr double EdgeWidth = 1;

void paintOutline(QPainter& painter, const Outline& outline, double zoom) {
    const int by = outline.distance;
    const QRectF around(QPointF(outline.around.topLeft()) / zoom, QSizeF(outline.around.size()) / zoom);
    const QRectF bounds = around.adjusted(-by, -by, by, by);
    const QColor edge = colour(Role::ProblemOutlineEdge);
    if (edge.alpha() > 0)
        strokePlate(painter, bounds.adjusted(-EdgeWidth, -EdgeWidth, EdgeWidth, EdgeWidth),
                    CardRadius + EdgeWidth, edge, EdgeWidth);
    strokePlate(painter, bounds, CardRadius, colour(Role::ProblemOutline), RingWidth);
}

}  // namespace

OutlineOverlay::OutlineOverlay(QWidget* covered) : QWidget(covered) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(covered->rect());
    covered->installEventFilter(this);
    raise();
}

void OutlineOverlay::setOutlines(const QList<Outline>& outlines) {
    if (outlines == outlines_)
        return;
    outlines_ = outlines;
    update();
}

QRect OutlineOverlay::rectangleAround(const QList<QWidget*>& widgets) const {
    QRect result;
    for (const QWidget* widget : widgets)
        if (widget->isVisibleTo(parentWidget()))
            result |= QRect(widget->mapTo(parentWidget(), QPoint(0, 0)), widget->size());
    return result;
}

bool OutlineOverlay::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    const bool added = watched == parentWidget() && event->type() == QEvent::ChildAdded;
    if (added && static_cast<QChildEvent*>(event)->child() != this)
        raise();
    return false;
}

void OutlineOverlay::paintEvent(QPaintEvent*) {
    ZoomedPainter painter(*this);
    for (const Outline& outline : outlines_)
        if (!outline.around.isEmpty())
            paintOutline(painter, outline, zoomOf(*this));
}

}  // namespace lorvane::desktop
