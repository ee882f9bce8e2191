// A bounded look around the result of the search, which does not promise the true optimum.
#pragma once

#include <optional>

#include "search/optimal_types.h"
#include "search/trial_bench.h"

namespace lorvane {

/// The cheapest of the designs whose lower levels differ by at most 2 from the best one, each with the least
/// top level that reaches the power; nothing when none is cheaper. Levels set by hand stay. The study keeps
/// the sizes of the best one.
std::optional<Trial> cheaperNearby(TrialBench& bench, const OptimalOptions& options, const Trial& best);

}  // namespace lorvane
