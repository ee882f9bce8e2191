// The question of a dialog that is closed by its frame while it holds a change.
#pragma once

#include <functional>
#include <string>

#include "screen/design.h"

namespace lorvane {

/// Asks under the title "Apply changes?": Yes applies, No closes the window and leaves things, Cancel keeps
/// it open.
void askToApply(Design& design, WindowId window, const std::string& question,
                const std::function<void()>& apply);

/// The question of the dialogs that hold names.
inline constexpr const char* applyNamesQuestion = "Apply changes to names?          ";

}  // namespace lorvane
