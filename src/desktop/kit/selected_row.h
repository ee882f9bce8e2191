// The plate of the selected row, alike in tables and lists. Knows no table and no list.
#pragma once

class QPainter;
class QRectF;
class QWidget;

namespace lorvane::desktop {

/// Paints the plate with round corners below the text of a selected row. A ring shows that it also has the
/// focus.
void paintSelectedRow(QPainter& painter, const QRectF& bounds, bool ringed);

/// Whether a widget has the focus and the user is moving about by keys, so that the focus has to be seen.
bool showsKeyboardFocus(const QWidget& widget);

}  // namespace lorvane::desktop
