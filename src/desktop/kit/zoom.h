// How large the middle of the window and its docks are shown. Lengths and type of all widgets are told at 100
// %; on a large screen they are shown larger than that.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QWidget>

#include "desktop/kit/text_style.h"

namespace lorvane::desktop {

/// How many times larger than its figures a widget is shown: what the nearest widget above it in the same
/// window was set to, or 1.
double zoomOf(const QWidget& widget);

/// A length at 100 % as this widget shows it, in whole pixels.
int zoomed(const QWidget& widget, double length);

/// Sets the zoom of a widget and of all that stands in it: the fonts of setTextStyle, the distances of
/// layouts, and the widgets that ask zoomOf, which are told to place and paint themselves again.
void setZoom(QWidget& scope, double zoom);

/// Gives a widget the font of a style at its zoom, and again whenever the zoom changes or the widget comes
/// under another window.
void setTextStyle(QWidget& widget, TextStyle style);

/// Paints a widget in the figures of 100 %: what is drawn is shown at the zoom of the widget.
class ZoomedPainter : public QPainter {
public:
    explicit ZoomedPainter(QWidget& widget);
};

/// The rectangle of a widget, and a place of the pointer on it, in the figures of 100 %.
QRectF figureRect(const QWidget& widget);
QPointF figurePoint(const QWidget& widget, const QPointF& place);

}  // namespace lorvane::desktop
