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

void writeRatios(const Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    const Weights weights = weightsOf(s);
    for (int level = 1; level < s.NumLevels; ++level) {
        const bool manual = options.manual(level);
        ratios(level) = manual ? options.numReps(level) : cheapestRatio(s, weights, options, level);
        requireFinite("computeOptimalRatios", {ratios(level)});
    }
}

void checkReadiness(Study& s, bool fullyByHand) {
    for (int level = 1; level <= s.NumLevels; ++level) {
        CheckQ(s, s.txtRsq(level), s.txtQ(level), level);
        const bool fixed = s.txtModel(level) == SamplingModels::fixed;
        CheckModel(s, fixed ? SamplingModels::fixed : SamplingModels::random, level);
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

// True when the ratios were written.
bool computeRatios(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    checkReadiness(s, isFullyByHand(s, options));
    if (s.result.xValidOptimal == 0)
        return false;
    writeRatios(s, options, ratios);
    return true;
}

void computeTwoLevelRatio(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    if (computeRatios(s, options, ratios))
        ratios(1) = roundHalfToEven(ratios(1));
}

bool isFixedAt(const OptimalOptions& options, bool m1, bool m2, bool m3) {
    return options.manual(1) == m1 && options.manual(2) == m2 && options.manual(3) == m3;
}

void clearSummary(LevelFlags& flags) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        if (flags(level) == 0)
            flags(0) = 0;
    }
}

}  // namespace

void resetReadiness(PowerResult& result) {
    for (LevelFlags* flags : {&result.xValidQ, &result.xValidModel, &result.xValidCost, &result.xValidICC,
                              &result.xValidOmega, &result.xValidTauSq})
        flags->fill(1);
    result.xValidOptimal = result.xValidES = result.xValidTotICC = 1;
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
    const bool always = r.xValidQ(0) == 1 && r.xValidES == 1 && r.xValidTotICC == 1 &&
                        s.outcome.ValidICC(0) == 1 && s.effect.ValidTauSq(0) == 1;
    if (!always)
        r.xValidOptimal = 0;
    if (fullyByHand)
        return;
    for (LevelFlags* flags : {&r.xValidModel, &r.xValidCost, &r.xValidICC, &r.xValidOmega, &r.xValidTauSq}) {
        clearSummary(*flags);
        if ((*flags)(0) == 0)
            r.xValidOptimal = 0;
    }
}

void ComputeTwoLevelHDOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeTwoLevelRatio(s, options, ratios);
}

void ComputeTwoLevelRBStudentsOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeTwoLevelRatio(s, options, ratios);
}

void ComputeThreeLevelHDOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeRatios(s, options, ratios);
}

void ComputeThreeLevelRBStudentsOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeRatios(s, options, ratios);
}

void ComputeThreeLevelRBClassesOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeRatios(s, options, ratios);
}

void ComputeFourLevelHDOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeRatios(s, options, ratios);
}

void ComputeFourLevelRBClassesOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeRatios(s, options, ratios);
}

void ComputeFourLevelRBTeachersOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    computeRatios(s, options, ratios);
}

// With level 2 alone set by hand, level 3 takes omega times ICC in the place of the variance of level 2, and
// no R-squared of levels 3 and 4. The difference from the rule is deliberate.
void ComputeFourLevelRBStudentsOptimal(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    if (!computeRatios(s, options, ratios) || !isFixedAt(options, false, true, false))
        return;
    const double n2 = options.numReps(2);
    const double cost = s.txtCostB(4) / (n2 * s.txtCostB(2) + s.txtCostB(3));
    const double variance = (GetOmega(s, 2) * s.txtICC(2) + GetTauSq(s, 3) * n2) / (GetTauSq(s, 4) * n2);
    ratios(3) = std::sqrt(cost * variance);
    requireFinite("ComputeFourLevelRBStudentsOptimal", {ratios(3)});
}

void computeOptimalRatios(Study& s, const OptimalOptions& options, SizeRatios& ratios) {
    using Routine = void (*)(Study&, const OptimalOptions&, SizeRatios&);
    // A row a number of levels from 2, a column a randomized level from 1.
    static constexpr Routine routines[3][4] = {
        {ComputeTwoLevelRBStudentsOptimal, ComputeTwoLevelHDOptimal},
        {ComputeThreeLevelRBStudentsOptimal, ComputeThreeLevelRBClassesOptimal, ComputeThreeLevelHDOptimal},
        {ComputeFourLevelRBStudentsOptimal, ComputeFourLevelRBClassesOptimal,
         ComputeFourLevelRBTeachersOptimal, ComputeFourLevelHDOptimal}};
    routines[s.NumLevels - 2][s.RandomizedLevel - 1](s, options, ratios);
}

}  // namespace lorvane
