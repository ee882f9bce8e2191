// The effect in its different metrics.
#include "engine/effect_metrics.h"

#include <cmath>

#include "base/arithmetic_fault.h"

namespace lorvane {

namespace {

constexpr double lowestRate = 0.001;
constexpr double highestRate = 0.999;

bool withinFixedLimits(double rate) { return rate >= lowestRate && rate <= highestRate; }

void oddsRatioWithinFixedLimits(double controlRate, double treatedRate, bool& valid, double& oddsRatio) {
    valid = withinFixedLimits(treatedRate) && withinFixedLimits(controlRate);
    if (valid)
        oddsRatio = oddsRatioOfRates(controlRate, treatedRate);
}

constexpr double longestLeap = 1e15;

// Walks while the rate of the next value is admissible, and leaves the last value that was met before. The
// rate goes one way, so the walk may leap: an odds ratio near a rate of 1 lies millions of steps away.
template <typename RateOf, typename Admissible>
double walk(double start, double step, int direction, RateOf rateOf, Admissible admissible) {
    const auto value = [&](double steps) { return start + steps * step * direction; };
    const auto goesOn = [&](double steps) { return admissible(rateOf(value(steps))); };
    double walked = 0;
    double leap = 1;
    for (; leap < longestLeap && goesOn(walked + leap); leap *= 2)
        walked += leap;
    for (leap /= 2; leap >= 1; leap /= 2) {
        if (goesOn(walked + leap))
            walked += leap;
    }
    return value(walked);
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

void SetDefaultDirection(const Study& study, int& direction) {
    if (study.isMeans())
        direction = study.txtd < 0 ? -1 : 1;
    else if (study.BinaryType == BinaryTypes::oddsRatio && study.txtOR != 1)
        direction = study.txtOR < 1 ? -1 : 1;
    else if (study.BinaryType == BinaryTypes::riskDifference && study.txtRD != 0)
        direction = study.txtRD < 0 ? -1 : 1;
}

double Logit(double p) { return std::log(p / (1 - p)); }

double treatedRateOfOddsRatio(double controlRate, double oddsRatio) {
    return controlRate * oddsRatio / (controlRate * oddsRatio + 1 - controlRate);
}

double oddsRatioOfRates(double controlRate, double treatedRate) {
    return (1 - controlRate) * treatedRate / ((1 - treatedRate) * controlRate);
}

void GetORfromRR(double riskRatio, double controlRate, bool& valid, double& oddsRatio) {
    oddsRatioWithinFixedLimits(controlRate, riskRatio * controlRate, valid, oddsRatio);
}

void GetORfromRD(double riskDifference, double controlRate, bool& valid, double& oddsRatio) {
    oddsRatioWithinFixedLimits(controlRate, controlRate + riskDifference, valid, oddsRatio);
}

void GetRangeOR(const Study& study, double& limit, double start, double step, int direction) {
    const double delta = study.limits.txtDelta;
    limit = walk(
        start, step, direction, [&](double value) { return treatedRateOfOddsRatio(study.txtPrev, value); },
        [&](double rate) { return rate >= delta && rate <= 1 - delta; });
}

void GetRangeRR(const Study& study, double& limit, double start, double step, int direction) {
    limit = walk(
        start, step, direction, [&](double value) { return study.txtPrev * value; }, withinFixedLimits);
}

void GetRangeRD(const Study& study, double& limit, double start, double step, int direction) {
    limit = walk(
        start, step, direction, [&](double value) { return study.txtPrev + value; }, withinFixedLimits);
}

void GetRangeP2(double& lower, double& upper, double limit, int direction) {
    if (direction == -1)
        lower = limit;
    if (direction == 1)
        upper = 1 - limit;
}

}  // namespace lorvane
