// What the parts of the search for the cheapest design speak of: its options, sizes of levels, a trial.
#pragma once

#include <cstdint>
#include <optional>

#include "engine/per_level.h"

namespace lorvane {

/// Levels whose size may be left to the search.
inline constexpr int highestFreeLevel = 3;

/// No search looks at larger sizes.
inline constexpr double largestSizeFound = 100000000;

/// What is asked for.
enum class OptimalGoal {
    cheapest = 1,  ///< the least cost that reaches the required power
    mostPower = 2  ///< the most power that the budget pays
};

struct OptimalOptions {
    OptimalGoal goal = OptimalGoal::cheapest;
    IndexedArray<bool, 1, highestFreeLevel> manual;     ///< the level keeps the size below
    IndexedArray<double, 1, highestFreeLevel> numReps;  ///< sizes set by hand, 1 or more
    int iterations = 30;                                ///< larger top levels that are tried
    double power = 0.8;                                 ///< required, between 0 and 1
    double budget = 0;                                  ///< the most that the whole study may cost
    bool allowLowCellCounts = false;                    ///< a binary study may have small cells
};

/// Sizes of the levels 1 to 4: units per unit of the level above, the same in both arms.
using LevelSizes = IndexedArray<double, 1, 4>;

/// One design that was tried.
struct Trial {
    LevelSizes sizes;
    std::int32_t cost = 0;
    double power = 0;
    bool valid = false;
};

/// Sizes of the levels that a study lacks are 0 in both.
inline bool haveSameSizes(const Trial& a, const Trial& b) {
    for (int level = LevelSizes::first; level <= LevelSizes::last; ++level) {
        if (a.sizes(level) != b.sizes(level))
            return false;
    }
    return true;
}

/// What the exact search came to.
struct ExactResult {
    std::optional<Trial> best;  ///< nothing when no design will do, or none was met
    bool proven = false;        ///< all designs are settled; otherwise the search was stopped on the way
    double looked = 0;          ///< the share of the sizes that was looked at, 0 to 1
    std::int64_t runs = 0;      ///< runs of the computation
};

}  // namespace lorvane
