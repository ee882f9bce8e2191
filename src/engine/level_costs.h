// The units of every level in the whole study, and what they cost.
#pragma once

#include <array>

#include "engine/study.h"

namespace lorvane {

/// Units of one kind in the whole study, and the cost of one.
struct UnitCost {
    double units = 0;
    double each = 0;

    /// What they cost together, rounded to a whole number, halves to even.
    double amount() const;
};

/// A blocked level has one kind of unit, its blocks; any other has the treated units and then those of the
/// control arm, counted over all blocks.
struct LevelCost {
    std::array<UnitCost, 2> kinds;
    std::size_t kindCount = 0;

    double units() const { return kinds[0].units + kinds[1].units; }
    double amount() const { return kinds[0].amount() + kinds[1].amount(); }
};

/// The costs of all levels of a design; NumLevels is 2 to 4 and RandomizedLevel 1 to NumLevels. The levels
/// above are empty.
PerLevel<LevelCost> levelCosts(const Study& study, int NumLevels, int RandomizedLevel);

/// Those of the study's own design.
inline PerLevel<LevelCost> levelCosts(const Study& study) {
    return levelCosts(study, study.NumLevels, study.RandomizedLevel);
}

}  // namespace lorvane
