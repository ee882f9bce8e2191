// Whether the event rates that a binary effect implies are admissible.
#include "engine/effect_check.h"

#include <cmath>

#include "base/arithmetic_fault.h"
#include "base/letter_case.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"

namespace lorvane {

namespace {

constexpr double nullEffectTolerance = 1e-12;
constexpr double roundingOfRate = 1e-12;

double treatedRate(const Study& study) {
    switch (study.BinaryType) {
    case BinaryTypes::oddsRatio:
        return treatedRateOfOddsRatio(study.txtPrev, study.txtOR);
    case BinaryTypes::riskRatio:
        return study.txtPrev * study.txtRR;
    case BinaryTypes::riskDifference:
        return study.txtPrev + study.txtRD;
    default:
        return study.txtP2;
    }
}

// A rate on a limit passes, also where the sum or product that gave it was rounded.
bool tooLow(const Study& study, double rate) { return rate < study.limits.txtDelta - roundingOfRate; }
bool tooHigh(const Study& study, double rate) { return rate > 1 - study.limits.txtDelta + roundingOfRate; }
bool admissible(const Study& study, double rate) { return !tooLow(study, rate) && !tooHigh(study, rate); }

// An odds ratio that differs from 1 by rounding only is the null effect.
double withoutRounding(double oddsRatio) {
    return std::fabs(oddsRatio - 1) <= nullEffectTolerance ? 1.0 : oddsRatio;
}

// Two decimals, or three where the user shows three or more.
std::string effectText(double value, int decimals) { return fixedText(value, decimals >= 3 ? 3 : 2); }

// The clause on the entered metric, empty for two risks.
std::string metricClause(const Study& study) {
    switch (study.BinaryType) {
    case BinaryTypes::oddsRatio:
        return ", coupled with an odds ratio of " + fixedText(study.txtOR, 2);
    case BinaryTypes::riskRatio:
        return ", coupled with risk ratio of " + effectText(study.txtRR, study.decimals.txtRR);
    case BinaryTypes::riskDifference:
        return ", coupled with risk difference of " + effectText(study.txtRD, study.decimals.txtRD);
    default:
        return "";
    }
}

std::string limitClause(const Study& study, double rate) {
    const double delta = study.limits.txtDelta;
    return tooLow(study, rate) ? "greater than " + fixedText(delta, 4)
                               : "less than " + fixedText(1 - delta, 4);
}

}  // namespace

void ComputeES(Study& study) {
    study.result.ValidES = true;
    if (study.isMeans())
        return;
    const double p = study.txtPrev;
    const double q = treatedRate(study);
    requireFinite("ComputeES", {q});
    study.txtEvent2 = q;
    study.result.ValidES = admissible(study, q) && admissible(study, p);
    if (study.result.ValidES)
        study.ComputedOR = withoutRounding(oddsRatioOfRates(p, q));
}

std::string derivedEffectName(const Study& study) {
    if (study.BinaryType == BinaryTypes::twoRisks)
        return "Odds ratio";
    return "Event rate in " + lowerCased(study.treatedName()) + " group";
}

std::string derivedEffectNumber(const Study& study) {
    const bool isRatio = study.BinaryType == BinaryTypes::twoRisks;
    return fixedText(isRatio ? study.ComputedOR : study.txtEvent2, study.decimals.txtPrev);
}

std::string derivedEffectText(const Study& study) {
    return derivedEffectName(study) + " " + derivedEffectNumber(study);
}

std::string effectProblemTitle(const Study& study) {
    switch (study.BinaryType) {
    case BinaryTypes::oddsRatio:
        return "Problem with odds ratio";
    case BinaryTypes::riskRatio:
        return "Problem with risk ratio";
    case BinaryTypes::riskDifference:
        return "Problem with risk difference";
    default:
        return "Problem with event rates";
    }
}

std::string effectProblemText(const Study& study) {
    const std::string treated = lowerCased(study.treatedName());
    const std::string control = lowerCased(study.controlName());
    const double q = study.txtEvent2;
    const bool treatedIsOut = !admissible(study, q);
    const double rateAtFault = treatedIsOut ? q : study.txtPrev;
    return "An event rate of " + fixedText(study.txtPrev, 4) + " in the " + control + " group" +
           metricClause(study) + ", implies that the event rate for the " + treated + " group is " +
           fixedText(q, 4) + ".\n\nPlease modify these values so that the event rate in the " +
           (treatedIsOut ? treated : control) + " group is " + limitClause(study, rateAtFault) +
           ".\nTo modify the limits click the <Options> menu.";
}

}  // namespace lorvane
