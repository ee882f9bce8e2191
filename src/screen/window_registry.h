// Which floating windows are open, withdrawn or not loaded. Knows no window's content and no toolkit.
#pragma once

#include "engine/per_level.h"
#include "platform/window_id.h"

namespace lorvane {

// States of a window.
namespace WindowStates {
inline constexpr int notLoaded = 0;
inline constexpr int withdrawnForGood = 1;  ///< stays away until it is opened again
inline constexpr int withdrawn = 2;         ///< comes back with WindowAction::bringBack
inline constexpr int open = 4;
}  // namespace WindowStates

class WindowRegistry {
public:
    WindowRegistry();

    /// Moves one window: opens, withdraws, brings back or unloads it. An action that does not fit the
    /// window's state does nothing.
    void SynchForms(WindowId window, WindowAction action);

    int state(WindowId window) const { return states_(static_cast<int>(window)); }

    /// The state by the window's number, for reading by name.
    const int& stateOf(int windowNumber) const { return states_(windowNumber); }

private:
    IndexedArray<int, 1, lastWindowId> states_;
};

}  // namespace lorvane
