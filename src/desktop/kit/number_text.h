// Numbers painted digit by digit on the advance of the widest digit, so that a changing number does not move.
// Knows nothing of what the numbers mean; any text may be given, its digits are the only ones parted.
#pragma once

#include <QFont>
#include <QString>

class QPainter;
class QPointF;
class QRectF;

namespace lorvane::desktop {

/// Width of the text with tabular digits.
double numberWidth(const QFont& font, const QString& text);

/// Paints the text in the painter's font and pen from a point on the base line to the right.
void drawNumber(QPainter& painter, const QPointF& baseline, const QString& text);

/// Paints the text into an area: Qt::AlignLeft, Qt::AlignRight or Qt::AlignHCenter, in the middle of its
/// height.
void drawNumber(QPainter& painter, const QRectF& area, Qt::Alignment alignment, const QString& text);

/// The font, or a smaller one of its kind in which the text takes no more than the width.
QFont fittedFont(const QFont& font, const QString& text, double width);

/// The base line of a single line of text in the middle of an area.
double centredBaseline(const QFont& font, const QRectF& area);

}  // namespace lorvane::desktop
