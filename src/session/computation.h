// The computing half of the refresh: everything that follows from the entered values, in its one order.
#pragma once

#include "engine/compute_outcome.h"
#include "engine/study.h"
#include "platform/distribution_library.h"
#include "validation/effect_dispersion.h"
#include "validation/icc_span.h"

namespace lorvane {

/// What a computation tells beside the numbers in the study.
struct Computation {
    IccVerdict icc;
    TauSqMessage tauSq = TauSqMessage::none;
    ComputeOutcome outcome;
    PerLevel<double> models;  ///< the sampling models that it read
};

/// ICC and span, dispersion of the effect, the effect itself, power and cost. Nothing is allocated. Throws
/// ArithmeticFault when a formula cannot go on; the entered values stay, and what was told up to there.
void computeStudy(Study& study, DistributionLibrary& library, Computation& told);

/// The level of randomization and the lowest level are always random. A file's fixed model there counts for
/// the one computation before this, deliberately.
void applyModelRule(Study& study);

}  // namespace lorvane
