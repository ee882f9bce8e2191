// Trials of a search: sizes written into a study, the computation run on it, its answer read.
#pragma once

#include <cstdint>

#include "engine/study.h"
#include "platform/distribution_library.h"
#include "platform/progress.h"
#include "search/optimal_types.h"

namespace lorvane {

/// The user asked to stop in the middle of the trials.
struct SearchStopped {};

class TrialBench {
public:
    /// Works on the study in place. The power is the one that a trial must reach.
    TrialBench(Study& study, DistributionLibrary& library, double power, Progress& progress)
        : study_(study), library_(library), power_(power), progress_(progress) {}

    /// The size of a level in all its three fields, so that a search need not know which the design reads.
    double size(int level) const { return study_.txtNT(level); }
    void setSize(int level, double n) { study_.txtNT(level) = study_.txtNC(level) = study_.txtNB(level) = n; }
    void setSizes(const LevelSizes& sizes);

    /// Looks at the progress now and then, whatever loop it runs in. The flag of the cost is this trial's
    /// own. Throws SearchStopped.
    void compute();
    void trySize(int level, double n) {
        setSize(level, n);
        compute();
    }

    /// A trial without a valid answer counts as below the required power.
    bool reachesPower() const { return study_.result.xValid && study_.result.txtPower >= power_; }

    /// The sizes of the study's levels, and what the last run gave.
    Trial trial() const;

    const Study& study() const noexcept { return study_; }
    DistributionLibrary& library() noexcept { return library_; }
    std::int64_t runs() const noexcept { return runs_; }

private:
    Study& study_;
    DistributionLibrary& library_;
    double power_;
    Progress& progress_;
    std::int64_t runs_ = 0;
};

}  // namespace lorvane
