// Which floating windows are open, withdrawn or not loaded, and the titles of those that always have the same
// one. Knows no window's content and no toolkit.
#pragma once

#include <span>

#include "engine/per_level.h"
#include "platform/window_id.h"

namespace lorvane {

enum class WindowStates {
    notLoaded = 0,
    withdrawnForGood = 1,  ///< stays away until it is opened again
    withdrawn = 2,         ///< comes back with WindowAction::bringBack
    open = 4
};

/// A window with a title of its own; the others word theirs as the study stands.
struct WindowTitle {
    WindowId window;
    const char* name;  ///< "frmCounts"
    const char* title;
};

std::span<const WindowTitle> windowTitles();

/// The title of one of them; it must be there.
const char* windowTitle(WindowId window);

class WindowRegistry {
public:
    WindowRegistry();

    /// Moves one window: opens, withdraws, brings back or unloads it. An action that does not fit the
    /// window's state does nothing.
    void SynchForms(WindowId window, WindowAction action);

    WindowStates state(WindowId window) const { return states_(static_cast<int>(window)); }

private:
    IndexedArray<WindowStates, 1, lastWindowId> states_;
};

}  // namespace lorvane
