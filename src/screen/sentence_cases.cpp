// The cases of the sentences: when each holds.
#include <cmath>
#include <functional>

#include "screen/design_words.h"
#include "screen/sentences.h"

namespace lorvane {

namespace {

using F = const StudyFacts&;

constexpr double greatestPowerTold = 0.999;

template <typename... Where>
struct Row {
    cases::Case theCase;
    bool (*holds)(Where...);
};

bool hasAnyLevel(F f, bool (*holds)(const Study&, int)) {
    for (int level = 1; level <= f.study().NumLevels; ++level) {
        if (holds(f.study(), level))
            return true;
    }
    return false;
}

bool isFixed(const Study& s, int level) { return s.txtModel(level) == SamplingModels::fixed; }
bool hasCovariates(const Study& s, int level) { return s.txtQ(level) != 0; }
bool differs(const Study& s, int level) { return !s.isBlocked(level) && s.txtNT(level) != s.txtNC(level); }
bool entersIcc(F f) { return f.study().IccMetric == IccMetrics::icc; }
template <TauSqMetrics metric>
bool entersEffect(F f) {
    return f.study().TauSqMetric == metric;
}
bool isBinaryOf(F f, BinaryTypes type) { return f.study().isBinary() && f.study().BinaryType == type; }
bool isMeansOf(F f, DTypes type) { return f.study().isMeans() && f.study().DType == type; }

const Row<F> ofStudy[] = {
    {cases::means, [](F f) { return f.study().isMeans(); }},
    {cases::binary, [](F f) { return f.study().isBinary(); }},
    {cases::dWithin, [](F f) { return isMeansOf(f, DTypes::within); }},
    {cases::dTotal, [](F f) { return isMeansOf(f, DTypes::total); }},
    {cases::oddsRatio, [](F f) { return isBinaryOf(f, BinaryTypes::oddsRatio); }},
    {cases::riskDifference, [](F f) { return isBinaryOf(f, BinaryTypes::riskDifference); }},
    {cases::twoLevels, [](F f) { return f.study().NumLevels == 2; }},
    {cases::threeLevels, [](F f) { return f.study().NumLevels == 3; }},
    {cases::fourLevels, [](F f) { return f.study().NumLevels == 4; }},
    {cases::severalLevels, [](F f) { return f.study().NumLevels > 2; }},
    {cases::withSpans, [](F f) { return f.study().isMeans() && f.hasSpans(); }},
    {cases::withoutSpans, [](F f) { return f.study().isMeans() && !f.hasSpans(); }},
    {cases::oneTailed, [](F f) { return f.study().txtTails == Tails::one; }},
    {cases::twoTailed, [](F f) { return f.study().txtTails == Tails::two; }},
    {cases::tested, [](F f) { return f.study().isTested(); }},
    {cases::untested, [](F f) { return !f.study().isTested(); }},
    {cases::powerToTell, [](F f) { return f.study().result.txtPower <= greatestPowerTold; }},
    {cases::powerBeyond, [](F f) { return f.study().result.txtPower > greatestPowerTold; }},
    {cases::hierarchical, [](F f) { return f.study().isHierarchical(); }},
    {cases::blocking, [](F f) { return !f.study().isHierarchical(); }},
    {cases::allRandom, [](F f) { return !hasAnyLevel(f, isFixed); }},
    {cases::someFixed, [](F f) { return hasAnyLevel(f, isFixed); }},
    {cases::noCovariates, [](F f) { return !hasAnyLevel(f, hasCovariates); }},
    {cases::someCovariates, [](F f) { return hasAnyLevel(f, hasCovariates); }},
    {cases::severalBlocked, [](F f) { return f.study().NumLevels - f.study().RandomizedLevel > 1; }},
    {cases::lowCounts, [](F f) { return f.study().counts.anyLow; }},
    {cases::noLowCounts, [](F f) { return !f.study().counts.anyLow; }},
    {cases::equalSizes, [](F f) { return !hasAnyLevel(f, differs); }},
    {cases::unequalSizes, [](F f) { return hasAnyLevel(f, differs); }},
    {cases::iccEntered, entersIcc},
    {cases::spanEntered, [](F f) { return !entersIcc(f) && !f.study().entersLimits(); }},
    {cases::limitsEntered, [](F f) { return f.study().entersLimits(); }},
    {cases::spreadValid, [](F f) { return f.study().outcome.ValidICC(0); }},
    {cases::spreadInvalid, [](F f) { return !f.study().outcome.ValidICC(0); }},
    {cases::effectsValid, [](F f) { return f.study().effect.ValidTauSq(0); }},
    {cases::effectsInvalid, [](F f) { return !f.study().effect.ValidTauSq(0); }},
    {cases::tauSqEntered, entersEffect<TauSqMetrics::tauSquared>},
    {cases::effectSpanEntered, entersEffect<TauSqMetrics::spanOfEffects>},
    {cases::omegaEntered, entersEffect<TauSqMetrics::omega>},
    {cases::unitsToTell, [](F f) { return !unitsNote(f.study()).empty(); }},
    {cases::costToTell, [](F f) { return f.study().result.txtCost >= 1; }},
};

// A file may hold another model where there is no choice.
bool hasModelChoice(const Study& s, int level) { return level > 1 && level != s.RandomizedLevel; }

bool hasRange(const Study& s, int level) {
    const TauSqRow row = tauSqRow(s, level);
    return s.effect.ValidTauSq(0) && row.hasLimits && std::isfinite(row.upper);
}

bool isTop(F f, int level) { return level == f.study().NumLevels; }

const Row<F, int> ofLevel[] = {
    {cases::top, isTop},
    {cases::belowTop, [](F f, int level) { return !isTop(f, level); }},
    {cases::lowest, [](F, int level) { return level == 1; }},
    {cases::aboveLowest, [](F, int level) { return level > 1; }},
    {cases::between, [](F f, int level) { return level > 1 && !isTop(f, level); }},
    {cases::blocked, [](F f, int level) { return f.study().isBlocked(level); }},
    {cases::notBlocked, [](F f, int level) { return !f.study().isBlocked(level); }},
    {cases::nested, [](F f, int level) { return level < f.study().RandomizedLevel; }},
    {cases::randomized, [](F f, int level) { return level == f.study().RandomizedLevel; }},
    {cases::inBlocks, [](F f, int level) { return !isTop(f, level) && f.study().isBlocked(level + 1); }},
    {cases::inGroups, [](F f, int level) { return !isTop(f, level) && !f.study().isBlocked(level + 1); }},
    {cases::fixedModel, [](F f, int level) { return isFixed(f.study(), level); }},
    {cases::randomModel, [](F f, int level) { return !isFixed(f.study(), level); }},
    {cases::withoutCovariate, [](F f, int level) { return !hasCovariates(f.study(), level); }},
    {cases::withCovariate, [](F f, int level) { return hasCovariates(f.study(), level); }},
    {cases::oneCovariate, [](F f, int level) { return f.study().txtQ(level) == 1; }},
    {cases::moreCovariates, [](F f, int level) { return f.study().txtQ(level) > 1; }},
    {cases::modelChosen, [](F f, int level) { return hasModelChoice(f.study(), level); }},
    {cases::modelGiven, [](F f, int level) { return !hasModelChoice(f.study(), level); }},
    {cases::rangeToTell, [](F f, int level) { return hasRange(f.study(), level); }},
    {cases::omegaValid, [](F f, int level) { return f.study().effect.ValidOmega(level); }},
};

template <typename Rows, typename... Where>
cases::Set setOf(const Rows& rows, Where&&... where) {
    cases::Set set = cases::always;
    for (const auto& row : rows) {
        if (row.holds(where...))
            set |= row.theCase;
    }
    return set;
}

}  // namespace

cases::Set casesOf(const StudyFacts& facts) { return setOf(ofStudy, facts); }

cases::Set casesOf(const StudyFacts& facts, int level) { return setOf(ofLevel, facts, level); }

}  // namespace lorvane
