// Where Left and Right lead from a widget: to the next one in its row. Knows places on the screen, no
// meaning.
#pragma once

class QWidget;

namespace lorvane::desktop {

/// Gives the focus to the nearest widget at the left (-1) or right (1) that stands in the same row and takes
/// Tab, over gaps, within the card, dock or window of the widget. At the end of the row it stays.
void focusNeighbour(QWidget& from, int direction);

}  // namespace lorvane::desktop
