// The short style sheet for the standard widgets. Everything else paints itself.
#pragma once

#include <QString>

namespace lorvane::desktop {

class Theme;

/// The style sheet of bars, tool buttons, buttons, text fields, tabs, heads, menus and the status line in the
/// colours of a theme. Three properties, set to true, change a widget: "primary" a button, "problem" a text
/// field, and "second" a label, which then takes the colour of second text.
QString styleSheet(const Theme& theme);

}  // namespace lorvane::desktop
