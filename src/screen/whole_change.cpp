// A change of the study as a whole.
#include "screen/whole_change.h"

#include "base/arithmetic_fault.h"

namespace lorvane {

void refreshOrShowFault(Design& design) {
    try {
        design.DoRefresh(true);
    } catch (const ArithmeticFault& fault) {
        design.showFault(fault);
    }
}

void changeOrUndo(Design& design, const std::function<void()>& change, IfFault ifFault) {
    const Study study = design.study();
    const SessionSettings settings = design.settings();
    const WindowRegistry windows = design.windows();
    const bool asSaved = design.isAsSaved();
    try {
        change();
        if (ifFault == IfFault::show)
            refreshOrShowFault(design);
        else
            design.DoRefresh(true);
    } catch (...) {
        design.study() = study;
        design.settings() = settings;
        design.applyChoices();
        // The study before may be one that cannot be computed either.
        refreshOrShowFault(design);
        design.settings().StudyDirty = settings.StudyDirty;
        design.putBack(windows);
        if (asSaved)
            design.noteAsSaved();
        throw;
    }
}

}  // namespace lorvane
