// Trials of a search.
#include "search/trial_bench.h"

#include "engine/docompute.h"

namespace lorvane {

namespace {

constexpr int runsBetweenLooks = 1000;

}  // namespace

void TrialBench::setSizes(const LevelSizes& sizes) {
    for (int level = 1; level <= study_.NumLevels; ++level)
        setSize(level, sizes(level));
}

void TrialBench::compute() {
    study_.result.txtCostProblem = false;
    docompute(study_, library_);
    if (++runs_ % runsBetweenLooks == 0 && !progress_.goOn())
        throw SearchStopped();
}

Trial TrialBench::trial() const {
    Trial trial;
    for (int level = 1; level <= study_.NumLevels; ++level)
        trial.sizes(level) = size(level);
    trial.cost = study_.result.txtCost;
    trial.power = study_.result.txtPower;
    trial.valid = study_.result.xValid;
    return trial;
}

}  // namespace lorvane
