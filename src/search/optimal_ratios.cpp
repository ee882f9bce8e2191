// The sizes of the lower levels at which a given precision costs least.
#include "search/optimal_ratios.h"

#include <cmath>

#include "base/arithmetic_fault.h"
#include "base/money.h"
#include "engine/effect_metrics.h"
#include "engine/validity_checks.h"
#include "validation/readiness_checks.h"

namespace lorvane {

namespace {

// Variance and cost of the levels, as the ratios weigh them.
struct Weights {
    PerLevel<double> W;
    PerLevel<double> U;
};

double unitCost(const Study& s, int level) {
    return s.isBlocked(level) ? s.txtCostB(level) : (s.txtCostT(level) + s.txtCostC(level)) / 2;
}

double varianceOf(const Study& s, int level) {
    const double unexplained = 1 - s.txtRsq(level);
    if (s.isBlocked(level))
        return GetTauSq(s, level) * unexplained;
    if (level > 1)
        return s.txtICC(level) * unexplained;
    double above = 0;
    for (int k = 2; k <= s.NumLevels; ++k)
        above += s.txtICC(k);
    return (1 - above) * unexplained;
}

// A block holds both arms, so that its lower units are paid twice.
Weights weightsOf(const Study& s) {
    Weights weights;
    for (int level = 1; level <= s.NumLevels; ++level) {
        weights.W(level) = varianceOf(s, level);
        weights.U(level) = unitCost(s, level) * (s.isHierarchical() || s.isBlocked(level) ? 1 : 2);
    }
    return weights;
}

// A level together with the neighbours that fixed sizes tie to it.
struct Joined {
    double W;
    double U;
};

Joined joinedWithLower(const Weights& w, const OptimalOptions& options, int level) {
    Joined joined{w.W(level), w.U(level)};
    double units = 1;
    for (int k = level - 1; k >= 1 && options.manual(k); --k) {
        units *= options.numReps(k);
        joined.W += w.W(k) / units;
        joined.U += w.U(k) * units;
    }
    return joined;
}

Joined joinedWithUpper(const Weights& w, const OptimalOptions& options, int level, int NumLevels) {
    Joined joined{w.W(level), w.U(level)};
    double units = 1;
    for (int k = level; k < NumLevels && options.manual(k); ++k) {
        units *= options.numReps(k);
        joined.W += w.W(k + 1) * units;
        joined.U += w.U(k + 1) / units;
    }
    return joined;
}

double cheapestRatio(const Study& s, const Weights& w, const OptimalOptions& options, int level) {
    const Joined lower = joinedWithLower(w, options, level);
    const Joined upper = joinedWithUpper(w, options, level + 1, s.NumLevels);
    return std::sqrt((lower.W / upper.W) * (upper.U / lower.U));
}

SizeRatios ratiosOf(const Study& s, const OptimalOptions& options) {
    SizeRatios ratios;
    const Weights weights = weightsOf(s);
    for (int level = 1; level < s.NumLevels; ++level) {
        const bool manual = options.manual(level);
        ratios(level) = manual ? options.numReps(level) : cheapestRatio(s, weights, options, level);
        requireFinite("computeOptimalRatios", {ratios(level)});
    }
    return ratios;
}

void checkReadiness(Study& s, bool fullyByHand) {
    for (int level = 1; level <= s.NumLevels; ++level) {
        CheckQ(s, s.txtRsq(level), s.txtQ(level), level);
        CheckModel(s, s.txtModel(level), level);
        if (level > 1)
            CheckICC(s, s.txtICC(level), level);
    }
    for (int level = s.RandomizedLevel + 1; level <= s.NumLevels; ++level) {
        CheckOmega(s, GetOmega(s, level), level);
        CheckTauSq(s, GetTauSq(s, level), level);
    }
    for (int level = 1; level <= s.NumLevels; ++level)
        CheckCost(s, unitCost(s, level), level);
    CheckES(s);
    CheckTotICC(s);
    ResolveValidOptimal(s, fullyByHand);
}

using Ratios = std::optional<SizeRatios>;

Ratios computeRatios(Study& s, const OptimalOptions& options) {
    checkReadiness(s, isFullyByHand(s, options));
    return s.result.xValidOptimal ? Ratios(ratiosOf(s, options)) : std::nullopt;
}

Ratios computeTwoLevelRatio(Study& s, const OptimalOptions& options) {
    Ratios ratios = computeRatios(s, options);
    if (ratios)
        (*ratios)(1) = roundHalfToEven((*ratios)(1));
    return ratios;
}

bool isFixedAt(const OptimalOptions& options, bool m1, bool m2, bool m3) {
    return options.manual(1) == m1 && options.manual(2) == m2 && options.manual(3) == m3;
}

void clearSummary(LevelFlags& flags) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        if (!flags(level))
            flags(0) = false;
    }
}

}  // namespace

void resetReadiness(PowerResult& result) {
    for (LevelFlags* flags : {&result.xValidQ, &result.xValidModel, &result.xValidCost, &result.xValidICC,
                              &result.xValidOmega, &result.xValidTauSq})
        flags->fill(true);
    result.xValidOptimal = result.xValidES = result.xValidTotICC = true;
}

bool isFullyByHand(const Study& s, const OptimalOptions& options) {
    for (int level = 1; level < s.NumLevels; ++level) {
        if (!options.manual(level))
            return false;
    }
    return true;
}

void ResolveValidOptimal(Study& s, bool fullyByHand) {
    PowerResult& r = s.result;
    clearSummary(r.xValidQ);
    const bool always =
        r.xValidQ(0) && r.xValidES && r.xValidTotICC && s.outcome.ValidICC(0) && s.effect.ValidTauSq(0);
    if (!always)
        r.xValidOptimal = false;
    if (fullyByHand)
        return;
    for (LevelFlags* flags : {&r.xValidModel, &r.xValidCost, &r.xValidICC, &r.xValidOmega, &r.xValidTauSq}) {
        clearSummary(*flags);
        if (!(*flags)(0))
            r.xValidOptimal = false;
    }
}

Ratios ComputeTwoLevelHDOptimal(Study& s, const OptimalOptions& options) {
    return computeTwoLevelRatio(s, options);
}

Ratios ComputeTwoLevelRBStudentsOptimal(Study& s, const OptimalOptions& options) {
    return computeTwoLevelRatio(s, options);
}

Ratios ComputeThreeLevelHDOptimal(Study& s, const OptimalOptions& options) {
    return computeRatios(s, options);
}

Ratios ComputeThreeLevelRBStudentsOptimal(Study& s, const OptimalOptions& options) {
    return computeRatios(s, options);
}

Ratios ComputeThreeLevelRBClassesOptimal(Study& s, const OptimalOptions& options) {
    return computeRatios(s, options);
}

Ratios ComputeFourLevelHDOptimal(Study& s, const OptimalOptions& options) {
    return computeRatios(s, options);
}

Ratios ComputeFourLevelRBClassesOptimal(Study& s, const OptimalOptions& options) {
    return computeRatios(s, options);
}

Ratios ComputeFourLevelRBTeachersOptimal(Study& s, const OptimalOptions& options) {
    return computeRatios(s, options);
}

// With level 2 alone set by hand, level 3 takes omega times ICC in the place of the variance of level 2, and
// no R-squared of levels 3 and 4. The difference from the rule is deliberate.
Ratios ComputeFourLevelRBStudentsOptimal(Study& s, const OptimalOptions& options) {
    Ratios ratios = computeRatios(s, options);
    if (!ratios || !isFixedAt(options, false, true, false))
        return ratios;
    const double n2 = options.numReps(2);
    const double cost = s.txtCostB(4) / (n2 * s.txtCostB(2) + s.txtCostB(3));
    const double variance = (GetOmega(s, 2) * s.txtICC(2) + GetTauSq(s, 3) * n2) / (GetTauSq(s, 4) * n2);
    (*ratios)(3) = std::sqrt(cost * variance);
    requireFinite("ComputeFourLevelRBStudentsOptimal", {(*ratios)(3)});
    return ratios;
}

Ratios computeOptimalRatios(Study& s, const OptimalOptions& options) {
    using Routine = Ratios (*)(Study&, const OptimalOptions&);
    // A row a number of levels from 2, a column a randomized level from 1.
    static constexpr Routine routines[3][4] = {
        {ComputeTwoLevelRBStudentsOptimal, ComputeTwoLevelHDOptimal},
        {ComputeThreeLevelRBStudentsOptimal, ComputeThreeLevelRBClassesOptimal, ComputeThreeLevelHDOptimal},
        {ComputeFourLevelRBStudentsOptimal, ComputeFourLevelRBClassesOptimal,
         ComputeFourLevelRBTeachersOptimal, ComputeFourLevelHDOptimal}};
    return routines[s.NumLevels - 2][s.RandomizedLevel - 1](s, options);
}

}  // namespace lorvane
