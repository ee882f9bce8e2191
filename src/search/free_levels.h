// The levels that a search may choose, from the top down, with what a unit of them costs and weighs. A level
// set by hand is no choice: it joins the next free level above it, or the top.
#pragma once

#include <array>
#include <cstddef>

#include "engine/study.h"
#include "search/optimal_types.h"

namespace lorvane {

/// A free level or the top, with the levels set by hand directly below it.
struct FreeLevel {
    int level = 0;
    double least = 1;      ///< the least size
    double units = 1;      ///< units of the next free level's parent in one unit: the sizes set by hand
    double cost = 0;       ///< of one unit in both arms with what was joined to it
    double leastCost = 0;  ///< the same with everything below at its least sizes
    double weight = 0;     ///< of one unit, as PowerBound has weights
    double rest = 0;       ///< the sum of sqrt(cost weight) of the free levels below
};

/// A covariate rule: perUnit (n(level) - 1) N(level + 1) n(top) >= needed.
struct CovariateRule {
    int level;
    double perUnit;
    double needed;
};

class FreeLevels {
public:
    /// The study has the sizes set by hand; level 1 has at least a given size.
    FreeLevels(const Study& study, const OptimalOptions& options, double leastOfLevel1);

    /// Takes the weights of the levels.
    void weigh(const PerLevel<double>& weights);

    std::size_t count() const { return count_; }
    const FreeLevel& top() const { return chain_[0]; }
    /// The free levels below the top, by falling height, from 0.
    const FreeLevel& operator[](std::size_t i) const { return chain_[i + 1]; }

    /// The least top level that the covariates of all levels leave degrees of freedom, for sizes of the
    /// levels below; infinite where no top level does.
    double leastTop(const LevelSizes& sizes) const;
    double leastTopOfAll() const { return leastTop_; }

    /// How far rounding of the products to whole money may take the cost of a design away from its sum.
    double roundingOfCost() const { return rounding_; }

private:
    void join(const Study& study, const OptimalOptions& options, double leastOfLevel1);
    void addRules(const Study& study);

    std::array<FreeLevel, highestLevel> chain_;
    PerLevel<std::size_t> place_;  ///< in the chain, of every level
    PerLevel<double> joined_;      ///< units of the level in one unit of its place in the chain
    std::size_t count_ = 0;
    std::array<CovariateRule, highestFreeLevel> rules_{};
    std::size_t ruleCount_ = 0;
    int topLevel_;
    double leastTop_;
    double rounding_ = 0;
};

}  // namespace lorvane
