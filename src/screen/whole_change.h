// A change of the study as a whole, as opening a file or restoring a scenario makes it: carried out, or not
// at all.
#pragma once

#include <functional>

#include "screen/design.h"

namespace lorvane {

/// A refresh; a study that cannot be computed is shown with a request for other data.
void refreshOrShowFault(Design& design);

/// What becomes of a study whose arithmetic cannot go on.
enum class IfFault {
    undo,  ///< it is refused like any other change
    show,  ///< it stays, with a request for other data in the place of the power
};

/// Carries out the change and refreshes. When that fails, puts study, settings, windows and screen back as
/// they were and lets the failure pass.
void changeOrUndo(Design& design, const std::function<void()>& change, IfFault ifFault = IfFault::undo);

}  // namespace lorvane
