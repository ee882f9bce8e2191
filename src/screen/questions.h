// Questions before something is applied or lost.
#pragma once

#include <functional>
#include <string>

#include "screen/design.h"
#include "session/structure.h"

namespace lorvane {

/// The question of a dialog that is closed by its frame while it holds a change, under the title "Apply
/// changes?": Yes applies, No closes the window and leaves things, Cancel keeps it open.
void askToApply(Design& design, WindowId window, const std::string& question,
                const std::function<void()>& apply);

/// The question of the dialogs that hold names.
inline constexpr const char* applyNamesQuestion = "Apply changes to names?          ";

/// Sets kind of outcome and metric, after a question where values would be lost.
void askAndChangeDataType(Design& design, const EffectMetric& metric);

}  // namespace lorvane
