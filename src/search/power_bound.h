// What the sizes of a design must at least give for its test to reach a power.
//
// In every design the variance of the effect is, with n the size of the top level and N(k) the number of
// units of level k in one of its units,
//
//     (w(top) + ... + w(2) / N(2) + w(1) / N(1)) / n
//
// The weights w follow from the design's own routine at a few small sizes, so no formula stands twice. The t
// test reaches a power when its noncentrality does, which falls with the degrees of freedom and so with n;
// that gives a largest weighted sum for every n.
//
// The test in normal theory has two such variances, pooled (p) and separate (s). With c the critical value
// and z the quantile of the power it asks for c sqrt(p) + z sqrt(s) <= effect, less the little that the far
// tail adds. By Cauchy and Schwarz the left side is at least the root of a sum with the weights
// (c sqrt(p(k)) + z sqrt(s(k)))^2, which again has the form above. For a power of about one half and less z
// is negative and nothing of that holds; one tail against a negative effect loses power as n grows.
#pragma once

#include <cstdint>
#include <vector>

#include "engine/study.h"
#include "platform/distribution_library.h"

namespace lorvane {

class PowerBound {
public:
    /// The study's sizes do not matter, but those of the levels set by hand must be in it.
    PowerBound(const Study& study, DistributionLibrary& library);

    /// The power to reach from now on, 0 to 1. 0 asks for nothing.
    void require(double power);

    /// Weights of the levels, 0 or more. Where a level's own is negative, since its units take more precision
    /// than they give, it is counted with the level above, as if every unit there had one of them.
    const PerLevel<double>& weights() const { return weights_; }

    /// The weights say nothing: every design may reach the power, and only the computation tells.
    bool saysNothing() const { return saysNothing_; }

    /// Power grows with the top level. False: it falls, so that only the least top level can do.
    bool risesWithTop() const { return rises_; }

    /// The largest weighted sum with which a top level of this size can reach the power; a design with more
    /// cannot. It grows with the size, and so does its share in the size.
    double largestSum(double top);

    /// The least top level, from a given one on, that can reach the power with a weighted sum; infinite where
    /// it would have more than 1e8 units.
    double leastTop(double sum, double from);

private:
    struct Known {
        double top = 0;
        double sum = 0;
    };

    void requireOfT();
    void requireOfNormal();
    double computeLargestSum(double top);
    double leastNoncentrality(double df);
    double powerOfT(double df, double lambda);

    Study study_;
    DistributionLibrary& library_;
    PerLevel<double> lambdaWeights_;  ///< n / lambda^2
    PerLevel<double> pooledWeights_;
    PerLevel<double> separateWeights_;
    bool hasNegativeParts_ = false;  ///< one of the two has a negative weight of its own
    double firstDf_ = 0;             ///< of the test at a top level of 1
    double moreDf_ = 0;              ///< for every further unit
    double power_ = 0;
    bool isNormal_;
    bool rises_ = true;
    bool saysNothing_ = true;
    PerLevel<double> weights_;
    double roundingError_ = 0;
    double lambdaGuess_ = 3;
    std::vector<Known> known_;  ///< sums by the last digits of the top level
};

}  // namespace lorvane
