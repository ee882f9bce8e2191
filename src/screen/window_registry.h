// Which floating windows are open, withdrawn or not loaded, and the titles of those that always have the same
// one. Knows no window's content and no toolkit.
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "engine/per_level.h"
#include "platform/window_id.h"

namespace lorvane {

enum class WindowStates {
    notLoaded = 0,
    withdrawnForGood = 1,  ///< stays away until it is opened again
    withdrawn = 2,         ///< comes back with WindowAction::bringBack
    open = 4
};

/// A window by number, name and title. The title is empty where it is worded as the study stands.
struct WindowTitle {
    WindowId window;
    std::string_view name;  ///< "frmCounts"
    const char* title;
};

std::span<const WindowTitle> windowTitles();

/// The title of one of them; it must be there.
const char* windowTitle(WindowId window);

/// The window of a name, "frmCounts"; nothing for a window without a number.
std::optional<WindowId> windowNamed(std::string_view name);

class WindowRegistry {
public:
    WindowRegistry();

    /// Moves one window: opens, withdraws, brings back or unloads it. An action that does not fit the
    /// window's state does nothing.
    void SynchForms(WindowId window, WindowAction action);

    /// Opens a window since a person asks for it: one that is open already comes to the front.
    void ask(WindowId window);

    /// How often it was asked for.
    int asked(WindowId window) const { return asked_(static_cast<int>(window)); }

    /// Whether a person has asked for it since it was last closed.
    bool isAskedFor(WindowId window) const { return isAskedFor_(static_cast<int>(window)); }

    WindowStates state(WindowId window) const { return states_(static_cast<int>(window)); }

private:
    IndexedArray<WindowStates, 1, lastWindowId> states_;
    IndexedArray<int, 1, lastWindowId> asked_;
    IndexedArray<bool, 1, lastWindowId> isAskedFor_;
};

}  // namespace lorvane
