// Which designs can still be of use: bounds on costs and on power that hold for every design.
//
// Costs: a design costs at least as much as one with the sizes chosen so far, all others at their least, and
// the least top level.
//
// Power: with the weights w of PowerBound, the cost u of a unit and N units in one of the top level, the sum
// S of w / N and the cost C of one unit of the top level obey C S >= (sum of sqrt(u w))^2, after Cauchy and
// Schwarz, however large the free levels may become.
#pragma once

#include "search/free_levels.h"
#include "search/power_bound.h"

namespace lorvane {

/// Sizes of one level, both ends included; empty when first lies above last.
struct SizeRange {
    double first;
    double last;
    bool isEmpty() const { return first > last; }
};

/// What the chosen sizes come to, from the top down, in one unit of the top level.
struct Chosen {
    double cost;   ///< of both arms
    double sum;    ///< weighted, as PowerBound has it
    double units;  ///< of the level that the next free one is counted in

    /// The same with a size for the next free level.
    Chosen with(const FreeLevel& free, double size) const {
        const double all = units * size;
        return {cost + free.cost * all, sum + free.weight / all, all * free.units};
    }
};

class DesignBounds {
public:
    DesignBounds(const Study& study, DistributionLibrary& library, const OptimalOptions& options,
                 double leastOfLevel1);

    /// The power to reach from now on. What was chosen before counts with its former sum, which asks for
    /// less.
    void requirePower(double power);
    /// The most that a design may cost.
    void limitCost(double cost) { limit_ = cost; }
    /// Only top levels of this size from now on.
    void keepTop(double top) { tops_ = {top, top}; }

    const FreeLevels& levels() const { return levels_; }
    bool risesWithTop() const { return power_.risesWithTop(); }
    bool roundsCosts() const { return levels_.roundingOfCost() > 0; }
    double costLimit() const { return limit_; }

    /// No free level chosen yet.
    Chosen topOnly() const { return {levels_.top().cost, levels_.top().weight, levels_.top().units}; }

    /// The sizes of a free level that can be of use below what is chosen.
    SizeRange usefulSizes(const FreeLevel& free, const Chosen& above);

    /// The size at which cost times sum is least, where the other levels do not count.
    double lightestSize(const FreeLevel& free, const Chosen& above) const;

    /// The least top level that covariates allow a design with all sizes chosen, and the largest one that the
    /// cost allows; and the least one from a given one on that can reach the power, perhaps infinite.
    double leastTop(const LevelSizes& sizes) const;
    double largestTop(const Chosen& design) const;
    double leastTopForPower(const Chosen& design, double from) { return power_.leastTop(design.sum, from); }
    bool canReachPower(const Chosen& design, double top) { return design.sum <= power_.largestSum(top); }

    /// The next size of the lowest free level that may do with a lower top level; only that makes up for its
    /// cost. Infinite where none is low enough.
    double nextSize(const FreeLevel& free, const Chosen& above, double size, double lowerTop);

    /// The largest size of the lowest free level that costs no unit of the top level. It has the most power
    /// with it, but for the test in normal theory, which may lose power as the size grows.
    bool risesWithSize() const { return !isNormal_; }
    double largestWithSameTop(const FreeLevel& free, const Chosen& above, double size) const;

private:
    SizeRange affordableSizes(const FreeLevel& free, const Chosen& above) const;
    bool leaps(const FreeLevel& free) const;
    double largestCost() const { return limit_ + levels_.roundingOfCost(); }

    PowerBound power_;
    FreeLevels levels_;
    SizeRange tops_;
    bool isNormal_;
    double limit_ = 0;
};

}  // namespace lorvane
