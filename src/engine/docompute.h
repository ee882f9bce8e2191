// The one procedure that turns the study into a power and a cost, and shows them.
#pragma once

#include "engine/compute_display.h"
#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// Computes power and cost of the study as its dispersion and effect stand, and writes study.result. A bad
/// effect, ICC or effect dispersion (in this order) ends in a request for other data instead of a power; the
/// cost is computed in every case. With the silent display nothing is shown and nothing allocated.
/// Throws ArithmeticFault when a formula cannot go on; the study keeps all entered values.
void docompute(Study& study, DistributionLibrary& library, ComputeDisplay& display);

}  // namespace lorvane
