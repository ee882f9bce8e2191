// The zoom is a property of the widget that it was set on; those below look it up.
#include "desktop/kit/zoom.h"

#include <cmath>

#include <QCoreApplication>
#include <QEvent>
#include <QLayout>

namespace lorvane::desktop {

namespace {

constexpr char ZoomName[] = "zoom";
constexpr char StyleName[] = "textStyle";

void setFontAtZoom(QWidget& widget) {
    const auto style = static_cast<TextStyle>(widget.property(StyleName).toInt());
    QFont font = textFont(style);
    font.setPointSizeF(font.pointSizeF() * zoomOf(widget));
    if (font != widget.font())
        widget.setFont(font);
}

/// Follows the zoom of a widget that comes under another one.
class ParentWatch : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::ParentChange)
            setFontAtZoom(*static_cast<QWidget*>(watched));
        return false;
    }
};

// Rounding to pixels loses nothing: at 1 and above the way back gives the same figures.
void setDistances(QLayout& layout, double before, double zoom) {
    const QMargins now = layout.contentsMargins();
    const auto scaled = [&](int length) { return static_cast<int>(std::lround(length * zoom / before)); };
    layout.setContentsMargins(scaled(now.left()), scaled(now.top()), scaled(now.right()),
                              scaled(now.bottom()));
    if (layout.spacing() > 0)
        layout.setSpacing(scaled(layout.spacing()));
}

}  // namespace

double zoomOf(const QWidget& widget) {
    for (const QWidget* at = &widget; at != nullptr; at = at->isWindow() ? nullptr : at->parentWidget()) {
        const QVariant zoom = at->property(ZoomName);
        if (zoom.isValid())
            return zoom.toDouble();
    }
    return 1;
}

int zoomed(const QWidget& widget, double length) {
    return static_cast<int>(std::lround(length * zoomOf(widget)));
}

void setZoom(QWidget& scope, double zoom) {
    const double before = zoomOf(scope);
    scope.setProperty(ZoomName, zoom);
    if (before == zoom)
        return;
    for (QLayout* layout : scope.findChildren<QLayout*>())
        setDistances(*layout, before, zoom);
    for (QWidget* widget : scope.findChildren<QWidget*>()) {
        if (widget->property(StyleName).isValid())
            setFontAtZoom(*widget);
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &change);
        widget->updateGeometry();
        widget->update();
    }
}

void setTextStyle(QWidget& widget, TextStyle style) {
    const bool isWatched = widget.property(StyleName).isValid();
    widget.setProperty(StyleName, static_cast<int>(style));
    if (!isWatched)
        widget.installEventFilter(new ParentWatch(&widget));
    setFontAtZoom(widget);
}

ZoomedPainter::ZoomedPainter(QWidget& widget) : QPainter(&widget) {
    const double zoom = zoomOf(widget);
    scale(zoom, zoom);
}

QRectF figureRect(const QWidget& widget) { return {QPointF(), QSizeF(widget.size()) / zoomOf(widget)}; }

QPointF figurePoint(const QWidget& widget, const QPointF& place) { return place / zoomOf(widget); }

}  // namespace lorvane::desktop