// What the sizes of a design must at least give for its test to reach a power.
#include "search/power_bound.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/design_routines.h"
#include "engine/power_test.h"
#include "search/optimal_types.h"

namespace lorvane {

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double tolerance = 1e-9;  // of every bound, far above the errors of the computation
constexpr double roundingErrors = 16 * std::numeric_limits<double>::epsilon();
constexpr double stepOfRoot = 1e-11;
constexpr std::size_t knownSums = 4096;
constexpr double largestNoncentrality = 1e6;
constexpr double leastQuantile = 0.5;

// The parts of the variance that a design's routine leaves behind.
struct Variances {
    double lambda = 0;  ///< as 1 / lambda^2
    double pooled = 0;
    double separate = 0;
};

void setSize(Study& s, int level, double n) { s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = n; }

Variances variancesOf(Study& s, DistributionLibrary& library) {
    runDesign(s, library);
    return {1 / (s.result.xLambda * s.result.xLambda), s.result.txtVarPooled, s.result.txtVarSep};
}

// With units of one kind doubled, the parts of this level and of all below it halve. What rounding may have
// left counts as nothing.
using Part = double Variances::*;
PerLevel<double> weightsOf(const PerLevel<Variances>& doubled, int levels, Part part) {
    PerLevel<double> weights;
    const double whole = doubled(levels).*part;
    double below = 0;
    for (int level = 1; level <= levels; ++level) {
        const double both = level < levels ? 2 * (whole - doubled(level).*part) : whole;
        const double weight = both - below;
        weights(level) = std::fabs(weight) > roundingErrors * std::fabs(whole) ? weight : 0;
        below = both;
    }
    return weights;
}

// A level with a negative weight joins the one above: N(k) is at least N(k + 1).
PerLevel<double> withoutNegative(PerLevel<double> weights, int levels) {
    for (int level = 1; level <= levels; ++level) {
        if (weights(level) >= 0)
            continue;
        if (level < levels)
            weights(level + 1) += weights(level);
        weights(level) = 0;
    }
    return weights;
}

bool isAnyNegative(const PerLevel<double>& weights, int levels) {
    for (int level = 1; level <= levels; ++level) {
        if (weights(level) < 0)
            return true;
    }
    return false;
}

bool areFinite(const PerLevel<double>& weights, int levels) {
    for (int level = 1; level <= levels; ++level) {
        if (!std::isfinite(weights(level)))
            return false;
    }
    return true;
}

}  // namespace

PowerBound::PowerBound(const Study& study, DistributionLibrary& library)
    : study_(study), library_(library), isNormal_(isNormalTest(study)), known_(knownSums) {
    Study probe = study;
    const int top = probe.NumLevels;
    const auto dfAt = [&](double n) {
        setSize(probe, top, n);
        variancesOf(probe, library);
        return probe.result.xdf;
    };
    firstDf_ = dfAt(1);
    moreDf_ = dfAt(2) - firstDf_;
    for (int level = 1; level <= top; ++level)
        setSize(probe, level, 1);
    PerLevel<Variances> doubled;
    doubled(top) = variancesOf(probe, library);
    for (int level = 1; level < top; ++level) {
        setSize(probe, level, 2);
        doubled(level) = variancesOf(probe, library);
        setSize(probe, level, 1);
    }
    lambdaWeights_ = weightsOf(doubled, top, &Variances::lambda);
    const PerLevel<double> pooled = weightsOf(doubled, top, &Variances::pooled);
    const PerLevel<double> separate = weightsOf(doubled, top, &Variances::separate);
    hasNegativeParts_ = isAnyNegative(pooled, top) || isAnyNegative(separate, top);
    pooledWeights_ = withoutNegative(pooled, top);
    separateWeights_ = withoutNegative(separate, top);
    rises_ = !(isNormal_ && study.txtTails == Tails::one && probe.result.txtBinaryES < 0);
    study_.result = probe.result;
    require(0);
}

void PowerBound::require(double power) {
    power_ = power;
    weights_.fill(0);
    std::fill(known_.begin(), known_.end(), Known());
    if (power > 0 && rises_ && study_.isTested())
        isNormal_ ? requireOfNormal() : requireOfT();
    const int top = study_.NumLevels;
    double sum = 0;
    if (!areFinite(weights_, top))
        weights_.fill(0);
    for (int level = 1; level <= top; ++level)
        sum += weights_(level);
    saysNothing_ = sum <= 0;
    roundingError_ = roundingErrors * sum;
}

void PowerBound::requireOfT() { weights_ = withoutNegative(lambdaWeights_, study_.NumLevels); }

void PowerBound::requireOfNormal() {
    const bool twoTails = study_.txtTails == Tails::two;
    const double crit = NormInv(library_, twoTails ? study_.txtAlpha / 2 : study_.txtAlpha);
    // The least ratio of pooled and separate variance in any design, where each is a sum of parts.
    double ratio = hasNegativeParts_ ? 0 : infinite;
    for (int level = 1; level <= study_.NumLevels; ++level) {
        if (separateWeights_(level) > 0)
            ratio = std::min(ratio, pooledWeights_(level) / separateWeights_(level));
    }
    const double farTail = twoTails ? NormalCDF(library_, -crit * std::sqrt(ratio)) : 0;
    const double nearTail = power_ - farTail - tolerance;
    if (nearTail <= leastQuantile)
        return;
    const double z = NormInv(library_, 1 - nearTail);
    const double effect = std::fabs(study_.result.txtBinaryES);
    for (int level = 1; level <= study_.NumLevels; ++level) {
        const double root =
            (crit * std::sqrt(pooledWeights_(level)) + z * std::sqrt(separateWeights_(level))) / effect;
        weights_(level) = root * root;
    }
}

double PowerBound::powerOfT(double df, double lambda) {
    return GetPowerTDist(library_, study_.txtAlpha, study_.txtTails, df, lambda).power;
}

// The largest noncentrality known to miss the power, within a hair of the least that reaches it.
double PowerBound::leastNoncentrality(double df) {
    double low = 0, high = lambdaGuess_;
    double belowLow = powerOfT(df, low) - power_;
    if (belowLow >= 0)
        return 0;
    double aboveHigh = powerOfT(df, high) - power_;
    while (aboveHigh < 0 && high < largestNoncentrality) {
        low = high;
        belowLow = aboveHigh;
        high *= 1.25;
        aboveHigh = powerOfT(df, high) - power_;
    }
    // False position; the end that stays counts half, so that both close in.
    int stays = 0;
    while (high - low > stepOfRoot * high && aboveHigh >= 0) {
        const double between = low + (high - low) * belowLow / (belowLow - aboveHigh);
        const double hair = stepOfRoot * high / 4;
        const double middle = std::clamp(between, low + hair, high - hair);
        const double atMiddle = powerOfT(df, middle) - power_;
        if (atMiddle == 0)
            return middle * (1 - stepOfRoot);
        if (atMiddle < 0) {
            low = middle;
            belowLow = atMiddle;
            aboveHigh *= stays < 0 ? 0.5 : 1;
            stays = -1;
        } else {
            high = middle;
            aboveHigh = atMiddle;
            belowLow *= stays > 0 ? 0.5 : 1;
            stays = 1;
        }
    }
    lambdaGuess_ = high;
    return low;
}

double PowerBound::computeLargestSum(double top) {
    if (isNormal_)
        return top;
    const double df = firstDf_ + moreDf_ * (top - 1);
    if (df + tolerance < 1)
        return 0;
    const double lambda = leastNoncentrality(df);
    return lambda > 0 ? top / (lambda * lambda) : infinite;
}

double PowerBound::largestSum(double top) {
    if (saysNothing_)
        return infinite;
    Known& known = known_[static_cast<std::size_t>(top) % knownSums];
    if (known.top != top) {
        const double sum = computeLargestSum(top);
        known = {top, sum > 0 ? sum * (1 + tolerance) + roundingError_ : 0};
    }
    return known.sum;
}

// A top level that misses the sum gives an upper end, since the sum's share in the size grows with it.
double PowerBound::leastTop(double sum, double from) {
    double missing = from - 1, enough = from;
    for (double reached = largestSum(enough); reached < sum; reached = largestSum(enough)) {
        missing = enough;
        enough = std::max(missing + 1, std::ceil(reached > 0 ? missing * sum / reached : missing * 2));
        if (enough > largestSizeFound)
            return infinite;
    }
    while (enough - missing > 1) {
        const double middle = std::floor((missing + enough) / 2);
        (largestSum(middle) >= sum ? enough : missing) = middle;
    }
    return enough;
}

}  // namespace lorvane
