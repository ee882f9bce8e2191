// The exact search behind the two questions of the wizard.
#include "search/optimal_proof.h"

#include <algorithm>
#include <utility>

#include "search/exact_search.h"
#include "search/least_sizes.h"
#include "search/optimal_ratios.h"

namespace lorvane {

namespace {

constexpr double leastShare = 0.5;  // of the most power; trials with less say nothing

bool costsNothing(const Study& s) {
    for (int level = 1; level <= s.NumLevels; ++level) {
        if (s.result.xValidCost(level))
            return false;
    }
    return true;
}

// As for the quick search; and with all sizes set by hand a budget still needs a cost.
bool isReady(Study& s, const OptimalOptions& options) {
    resetReadiness(s.result);
    s.result.Adjusteddf = SizeAdjustments::none;
    s.result.txtCostProblem = false;
    const bool hasRatios = computeOptimalRatios(s, options).has_value();
    if (costsNothing(s))
        s.result.xValidCost(0) = s.result.xValidOptimal = false;
    return hasRatios && s.result.xValidOptimal;
}

// Sizes set by hand that are too small.
void noteRaisedSizes(const StudyTrial& trial, const OptimalOptions& options, OptimalResult& result) {
    const Study& s = trial.study;
    for (int level = 1; level < s.NumLevels; ++level) {
        const double least = leastForCovariates(s, level);
        if (options.manual(level) && options.numReps(level) < least)
            result.changes.push_back({level, options.numReps(level), least, s.isBlocked(level)});
    }
    LevelSizes sizes;
    sizes(1) = options.numReps(1);
    result.level1Raised = options.manual(1) && hasForbiddenCells(trial, options, sizes);
}

OptimalEnding endingOf(const ExactResult& proof, const OptimalOptions& options) {
    if (!proof.best)
        return proof.proven ? OptimalEnding::noSolution : OptimalEnding::stopped;
    return proof.best->cost > options.budget ? OptimalEnding::budgetTooLow : OptimalEnding::found;
}

// The best design, and those with somewhat fewer and more units of the top level.
void addTrials(const StudyTrial& trial, const OptimalOptions& options, Progress& progress,
               OptimalResult& result) {
    const Trial& best = *result.proof->best;
    const int top = trial.study.NumLevels;
    const double first = std::max(1.0, best.sizes(top) - options.iterations / 2);
    result.trials = findMostPowerOfTops(trial, options, first, first + options.iterations, progress);
    std::erase_if(result.trials, [&](const Trial& each) { return each.power < leastShare * best.power; });
    const auto isBelow = [top](const Trial& a, const Trial& b) { return a.sizes(top) < b.sizes(top); };
    auto place = std::lower_bound(result.trials.begin(), result.trials.end(), best, isBelow);
    if (place == result.trials.end() || isBelow(best, *place))
        place = result.trials.insert(place, best);
    *place = best;  // of several with the same power the cheapest
    result.best = static_cast<std::size_t>(place - result.trials.begin());
}

}  // namespace

void proveCheapest(StudyTrial trial, const OptimalOptions& options, Progress& progress,
                   OptimalResult& result) {
    const Trial& quick = result.bestTrial();
    result.hasForbiddenCells = hasForbiddenCells(trial, options, quick.sizes);
    const std::optional<Trial> known = result.hasForbiddenCells ? std::nullopt : std::optional(quick);
    result.proof = findCheapest(std::move(trial), options, known, progress);
}

OptimalResult searchMostPower(StudyTrial trial, const OptimalOptions& options, Progress& progress) {
    OptimalResult result;
    result.goal = OptimalGoal::mostPower;
    const bool ready = isReady(trial.study, options);
    result.flags = trial.study.result;
    if (!ready)
        return result;
    noteRaisedSizes(trial, options, result);
    result.proof = findMostPower(trial, options, progress);
    result.runs = result.proof->runs;
    result.ending = endingOf(*result.proof, options);
    if (result.ending == OptimalEnding::found)
        addTrials(trial, options, progress, result);
    return result;
}

}  // namespace lorvane
