// Trials of a search.
#include "search/trial_bench.h"

#include "engine/docompute.h"

namespace lorvane {

void TrialBench::setSizes(const LevelSizes& sizes) {
    for (int level = 1; level <= study_.NumLevels; ++level)
        setSize(level, sizes(level));
}

void TrialBench::compute() {
    study_.result.txtCostProblem = false;
    docompute(study_, library_);
    ++runs_;
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
