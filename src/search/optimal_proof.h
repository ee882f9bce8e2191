// The exact search behind the two questions of the wizard.
#pragma once

#include <chrono>

#include "platform/progress.h"
#include "search/optimal_search.h"

namespace lorvane {

/// A proof may take so long; then the best design found by then counts.
inline constexpr std::chrono::milliseconds longestProof{2000};

/// Proves that no design is cheaper than the best trial of a finished quick search, or finds the one that is.
/// Where that trial has cell counts that are not allowed, the cheapest one without them counts. Throws
/// ArithmeticFault.
void proveCheapest(StudyTrial trial, const OptimalOptions& options, Progress& progress,
                   OptimalResult& result);

/// Finds the most power for the budget, with the best design for each of some sizes of the top level around
/// it as the trials. Throws ArithmeticFault.
OptimalResult searchMostPower(StudyTrial trial, const OptimalOptions& options, Progress& progress);

}  // namespace lorvane
