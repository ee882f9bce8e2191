// The question of a dialog that is closed by its frame.
#include "screen/ask_to_apply.h"

namespace lorvane {

void askToApply(Design& design, WindowId window, const std::string& question,
                const std::function<void()>& apply) {
    const Answer answer = design.ask("Apply changes?", question, {Answer::Yes, Answer::No, Answer::Cancel});
    if (answer == Answer::Yes)
        apply();
    if (answer == Answer::No)
        design.SynchForms(window, WindowAction::unload);
}

}  // namespace lorvane
