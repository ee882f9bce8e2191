// The exact search: of all designs with whole sizes it finds the one that costs least for a required power,
// or the one with the most power for a budget, and proves it. Both arms have the same sizes. A size set by
// hand stays; where low cell counts are not allowed, level 1 is large enough to avoid them. Knows no window.
//
// It walks through the sizes of the free levels from the top down and solves for the top level, since power
// rises with it. Two things might break that. The screening of cells does not: it looks at level 1 alone and
// sets a least size there. The test in normal theory does where it has one tail and the effect is negative:
// its power falls, so that only the least top level counts. For a power of about one half and less its bound
// says nothing, and all sizes that can be paid are walked.
//
// What cannot be of use is left out by the bounds of DesignBounds, which hold for every design.
#pragma once

#include <vector>

#include "platform/progress.h"
#include "search/optimal_types.h"
#include "session/study_trial.h"

namespace lorvane {

/// Powers that agree in so many parts of one count as equal.
inline constexpr double equalPowers = 1e-9;

/// The least cost of all designs that reach options.power; of several the one with the larger power, then
/// with fewer units of the top level. A design that is known to reach it may be given to start from. Needs a
/// study that may be searched. Throws ArithmeticFault.
ExactResult findCheapest(StudyTrial trial, const OptimalOptions& options, const std::optional<Trial>& known,
                         Progress& progress);

/// The most power of all designs that cost at most options.budget; of several the cheapest. Where the budget
/// pays no valid design, the cheapest valid one, whose cost is above it. The same needs; some unit must cost
/// something.
ExactResult findMostPower(StudyTrial trial, const OptimalOptions& options, Progress& progress);

/// The most power for every size of the top level of a range, in their order; sizes that the budget pays no
/// valid design for are left out. It ends early when the progress asks for it.
std::vector<Trial> findMostPowerOfTops(StudyTrial trial, const OptimalOptions& options, double first,
                                       double last, Progress& progress);

/// Whether a design has cell counts that the options do not allow and that a larger level 1 would avoid.
bool hasForbiddenCells(const StudyTrial& trial, const OptimalOptions& options, const LevelSizes& sizes);

}  // namespace lorvane
