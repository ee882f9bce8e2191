// What floating panels must not cover. Reads the main window, changes nothing.
#pragma once

#include "desktop/free_place.h"

class QWidget;

namespace lorvane::desktop {

/// The screen of a main window, the window, its focused cell, its outlines, its docked panels
/// and its result cards.
Surroundings surroundingsOf(const QWidget& mainWindow);

}  // namespace lorvane::desktop
