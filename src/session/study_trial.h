// A study to try values on: what a search or a graph does with it leaves no trace.
#pragma once

#include "session/computation.h"

namespace lorvane {

/// A copy of the study with the silent form of the refresh: nothing is shown, nothing is allocated, and the
/// session's own study stays as it is, whatever happens.
class StudyTrial {
public:
    StudyTrial(const Study& original, DistributionLibrary& library) : study(original), library_(&library) {}

    Study study;

    /// Computes everything that follows from the present values. Throws ArithmeticFault.
    void refresh() {
        Computation told;
        computeStudy(study, *library_, told);
    }

    DistributionLibrary& library() const noexcept { return *library_; }

private:
    DistributionLibrary* library_;
};

}  // namespace lorvane
