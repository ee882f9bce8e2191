// The sheet and the entries of menus, in the colours of the theme in use. Knows no entry.
#pragma once

#include <QSize>

class QPainter;
class QRect;
class QStyleOptionMenuItem;

namespace lorvane::desktop {

inline constexpr int MenuFrame = 1;    ///< width of the line around a menu
inline constexpr int MenuPadding = 5;  ///< between the line and the entries

/// The sheet of a menu with its line. What lies outside its round corners is left alone.
void paintMenuSheet(QPainter& painter, const QRect& bounds);

/// The size of an entry without its key, from the width of its text.
QSize menuEntrySize(const QStyleOptionMenuItem& entry, int textWidth);

/// An entry: sign or check mark, text, key or the sign of a submenu; or the line between two groups.
void paintMenuEntry(QPainter& painter, const QStyleOptionMenuItem& entry, bool showsMnemonic);

}  // namespace lorvane::desktop
