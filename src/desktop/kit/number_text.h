// Text whose digits all take the width of the widest one, so that a number does not move while it changes.
// Any text may be given; all but the digits is set as usual.
#pragma once

#include <QFont>
#include <QString>

class QPainter;
class QPointF;
class QRectF;

namespace lorvane::desktop {

/// Width of the text in pixels, as drawNumber paints it.
double numberWidth(const QFont& font, const QString& text);

/// Paints the text in the painter's font and pen from a point on the base line to the right.
void drawNumber(QPainter& painter, const QPointF& baseline, const QString& text);

/// Paints the text in the middle of the height of an area: at Qt::AlignLeft, Qt::AlignRight or
/// Qt::AlignHCenter. Text that is too wide is not cut.
void drawNumber(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text);

/// The font itself where the text fits into the width, else the same font smaller by the share that it lacks.
QFont fittedFont(const QFont& font, const QString& text, double width);

/// The height of the base line for a single line of text in the middle of an area.
double centredBaseline(const QFont& font, const QRectF& area);

}  // namespace lorvane::desktop
