// The one procedure that turns the study into a power and a cost.
#pragma once

#include "engine/compute_outcome.h"
#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// Computes power and cost of the study and writes study.result. It takes effect and dispersion as they
/// stand, so they must have been checked and converted before. Where effect, ICC or effect dispersion (in
/// this order) is not valid, the outcome holds a request for other data, and xValid is false; the cost is
/// computed in every case. Allocates nothing. Throws ArithmeticFault when a formula cannot go on; the study
/// keeps all entered values.
ComputeOutcome docompute(Study& study, DistributionLibrary& library);

}  // namespace lorvane
