// The short style sheet for the standard widgets. Everything else paints itself.
#pragma once

#include <QString>

namespace lorvane::desktop {

class Theme;

/// The style sheet of bars, tool buttons, buttons, text fields, tabs, heads, menus and the status line in
/// the colours of a theme. Buttons and text fields read the properties "primary" and "problem".
QString styleSheet(const Theme& theme);

}  // namespace lorvane::desktop
