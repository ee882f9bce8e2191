// The search for the cheapest design that reaches a required power: the sizes of the lower levels start from
// the ratios that cost least, the size of the top level follows from the power, and a few larger top levels
// are tried with smaller levels below. Quick, but not always at the optimum. Knows no window.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "engine/study.h"
#include "platform/progress.h"
#include "search/optimal_types.h"
#include "session/study_trial.h"

namespace lorvane {

enum class OptimalEnding {
    found,
    notReady,      ///< the study fails a readiness check; its flags tell which
    noSolution,    ///< no size of the top level gives a valid design, or none in reach gives the power
    costOverflow,  ///< every design that reaches the power costs more than 32 bits hold
    stopped,       ///< by the user
    budgetTooLow   ///< the cheapest valid design, which the proof holds, costs more than the budget
};

/// What was changed in the sizes before the search began, for the notes.
struct SizeChange {
    int level;
    double from;
    double to;
    bool blocked;  ///< set at three, otherwise at two per group
};

struct OptimalResult {
    OptimalGoal goal = OptimalGoal::cheapest;
    OptimalEnding ending = OptimalEnding::notReady;
    std::vector<Trial> trials;    ///< by growing top level: the cheapest of each, or those with most power
    std::size_t best = 0;         ///< the cheapest trial, the first of several; or that with most power
    bool topRaisedForDf = false;  ///< the least valid top level has more power than required
    bool level1Raised = false;    ///< to avoid low cell counts
    bool aTrialFailed = false;    ///< a trial of the iterations gave no power
    bool covariatesAreTight = false;   ///< a level with covariates stands at its least size
    std::vector<SizeChange> changes;   ///< for the degrees of freedom of covariates
    bool hasForbiddenCells = false;    ///< of the best trial: low cell counts that level 1 could avoid
    std::optional<ExactResult> proof;  ///< what the exact search came to; nothing before it ran
    std::int64_t runs = 0;             ///< runs of the computation
    PowerResult flags;                 ///< readiness, Adjusteddf and txtCostProblem as the run left them

    const Trial& bestTrial() const { return trials[best]; }
};

/// Runs the search on a study that has a power. Throws ArithmeticFault.
OptimalResult searchOptimalDesign(StudyTrial trial, const OptimalOptions& options, Progress& progress);

}  // namespace lorvane
