// The effect in its different metrics.
#include "engine/effect_metrics.h"

#include <cmath>

#include "base/arithmetic_fault.h"
#include "base/leaps.h"

namespace lorvane {

namespace {

constexpr double lowestRate = 0.001;
constexpr double highestRate = 0.999;

bool withinFixedLimits(double rate) { return rate >= lowestRate && rate <= highestRate; }

std::optional<double> oddsRatioWithinFixedLimits(double controlRate, double treatedRate) {
    if (!withinFixedLimits(treatedRate) || !withinFixedLimits(controlRate))
        return std::nullopt;
    return oddsRatioOfRates(controlRate, treatedRate);
}

constexpr long long longestWalk = 1'000'000'000'000'000;

// Walks while the rate of the next value is admissible, and returns the last value it came to. The rate only
// rises or only falls along the way, so the walk may leap. It has to: the odds ratio of a rate near 1 lies
// millions of steps away.
template <typename RateOf, typename Admissible>
double walk(double start, double step, int direction, RateOf rateOf, Admissible admissible) {
    const auto value = [&](long long steps) { return start + static_cast<double>(steps) * step * direction; };
    return value(stepsWhile(longestWalk, [&](long long steps) { return admissible(rateOf(value(steps))); }));
}

}  // namespace

double withinShare(const Study& study) {
    double share = 1;
    for (int level = study.NumLevels; level >= 2; --level)
        share -= study.txtICC(level);
    return share;
}

double GetDT(const Study& study) {
    if (study.DType == DTypes::total)
        return study.txtd;
    const double d = study.txtd * std::sqrt(withinShare(study));
    requireFinite("GetDT", {d});
    return d;
}

double GetDW(const Study& study) {
    if (study.DType == DTypes::within)
        return study.txtd;
    const double d = study.txtd / std::sqrt(withinShare(study));
    requireFinite("GetDW", {d});
    return d;
}

double GetTauSqDT(const Study& study, double tauSquared) {
    return study.DType == DTypes::total ? tauSquared : tauSquared * withinShare(study);
}

double GetTauSqDW(const Study& study, double tauSquared) {
    if (study.DType == DTypes::within)
        return tauSquared;
    const double within = tauSquared / withinShare(study);
    requireFinite("GetTauSqDW", {within});
    return within;
}

double GetTauSq(const Study& study, int level) {
    const double tauSquared = study.effect.txtTauSq(level);
    return study.isMeans() ? GetTauSqDT(study, tauSquared) : tauSquared;
}

double GetOmega(const Study& study, int level) { return study.effect.txtOmega(level); }

std::string_view GetESName(const Study& study) {
    if (study.isMeans())
        return "standardized mean difference";
    switch (study.BinaryType) {
    case BinaryTypes::oddsRatio:
        return "odds ratio";
    case BinaryTypes::riskRatio:
        return "risk ratio";
    case BinaryTypes::riskDifference:
        return "risk difference";
    default:
        return "event rate in each group";
    }
}

int SetDefaultDirection(const Study& study) {
    if (study.isMeans())
        return study.txtd < 0 ? -1 : 1;
    if (study.BinaryType == BinaryTypes::oddsRatio)
        return study.txtOR < 1 ? -1 : 1;
    return study.BinaryType == BinaryTypes::riskDifference && study.txtRD < 0 ? -1 : 1;
}

double Logit(double p) { return std::log(p / (1 - p)); }

double treatedRateOfOddsRatio(double controlRate, double oddsRatio) {
    return controlRate * oddsRatio / (controlRate * oddsRatio + 1 - controlRate);
}

double oddsRatioOfRates(double controlRate, double treatedRate) {
    return (1 - controlRate) * treatedRate / ((1 - treatedRate) * controlRate);
}

std::optional<double> GetORfromRR(double riskRatio, double controlRate) {
    return oddsRatioWithinFixedLimits(controlRate, riskRatio * controlRate);
}

std::optional<double> GetORfromRD(double riskDifference, double controlRate) {
    return oddsRatioWithinFixedLimits(controlRate, controlRate + riskDifference);
}

double GetRangeOR(const Study& study, double start, double step, int direction) {
    const double delta = study.limits.txtDelta;
    return walk(
        start, step, direction, [&](double value) { return treatedRateOfOddsRatio(study.txtPrev, value); },
        [&](double rate) { return rate >= delta && rate <= 1 - delta; });
}

double GetRangeRR(const Study& study, double start, double step, int direction) {
    return walk(
        start, step, direction, [&](double value) { return study.txtPrev * value; }, withinFixedLimits);
}

double GetRangeRD(const Study& study, double start, double step, int direction) {
    return walk(
        start, step, direction, [&](double value) { return study.txtPrev + value; }, withinFixedLimits);
}

double GetRangeP2(double limit, int direction) { return direction == -1 ? limit : 1 - limit; }

}  // namespace lorvane
