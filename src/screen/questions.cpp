// Questions before something is applied or lost.
#include "screen/questions.h"

#include "validation/readiness_checks.h"

namespace lorvane {

void askToApply(Design& design, WindowId window, const std::string& question,
                const std::function<void()>& apply) {
    const Answer answer = design.ask("Apply changes?", question, {Answer::Yes, Answer::No, Answer::Cancel});
    if (answer == Answer::Yes)
        apply();
    if (answer == Answer::No)
        design.SynchForms(window, WindowAction::unload);
}

void askAndChangeDataType(Design& design, const EffectMetric& metric) {
    const bool clear =
        !NeedOk(design.study()) ||
        design.ask({"Clear values",
                    "This will clear values for effect size, ICC, spans, covariates, and R-squared  ",
                    {Answer::OK, Answer::Cancel},
                    {},
                    MessageKind::loss}) == Answer::OK;
    if (clear)
        changeDataType(design.session(), metric);
}

}  // namespace lorvane
