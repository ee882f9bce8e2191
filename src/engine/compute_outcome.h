// What one computation tells beside the numbers of the study: what it asks for where there is no power, and
// which cells are at fault. Plain data for the screen; the searches do not read it.
#pragma once

#include <string_view>

#include "engine/per_level.h"

namespace lorvane {

/// What keeps a study from having a power. The gates are tried in this order, and the first one stops.
enum class Obstacle {
    none,
    effect,  ///< the effect implies event rates outside their limits
    icc,     ///< the dispersion of the outcome is impossible
    tauSq,   ///< the dispersion of the effect is impossible
    data     ///< too few degrees of freedom, or R-squared without covariates
};

/// The message of the problem window, and its title. Both are empty where others have the words for it.
struct Problem {
    std::string_view message;
    std::string_view title;
};

/// What docompute tells. The texts are literals and last as long as the program.
struct ComputeOutcome {
    Obstacle obstacle = Obstacle::none;
    std::string_view request;  ///< the sentence in the place of the power; empty where there is a power
    Problem problem;
    PerLevel<bool> covariatesAtFault;  ///< covariates and R-squared of the level do not fit together
    PerLevel<bool> levelAtFault;       ///< the level has too few degrees of freedom
};

}  // namespace lorvane
