// The words for the smallest detectable effect.
#include "search/mdes_texts.h"

#include <cmath>

#include "base/number_text.h"

namespace lorvane {

namespace {

constexpr const char* foundMeans =
    "The minimum detectable effect size is a standardized mean difference (d) of ";
constexpr const char* foundOddsRatio = "The minimum detectable effect size is an odds ratio of ";
constexpr const char* foundRiskDifference = "The minimum detectable effect size is a risk difference of ";

bool isOddsRatio(const Study& s) { return s.isBinary() && s.BinaryType == BinaryTypes::oddsRatio; }

std::string effectText(const Study& s, double effect) {
    if (s.isMeans())
        return fixedText(effect, 2);
    return isOddsRatio(s) ? fixedText(effect, 3) : shortestText(effect);
}

std::string ratesLine(const Study& s, const MdesResult& result) {
    return "This corresponds to event rates (" + s.treatedName() + " vs. " + s.controlName() + ") of " +
           fixedText(result.treatedRate, 3) + " vs. " + fixedText(result.controlRate, 3) + ".";
}

MdesLines foundLines(const Study& s, const MdesResult& result) {
    const std::string effect = effectText(s, result.effect);
    if (s.isMeans())
        return {foundMeans + effect + ",",
                s.DType == DTypes::within ? "where d is standardized by the within-cell standard deviation"
                                          : "where d is standardized by the total standard deviation"};
    if (!isOddsRatio(s))
        return {foundRiskDifference + effect, ratesLine(s, result)};
    return {foundOddsRatio + effect,
            result.countsAreLow ? "However, with this odds ratio there will be a problem of low cell counts."
                                : ratesLine(s, result)};
}

MdesLines outOfReachLines(const MdesResult& result) {
    return {"The highest possible power is " + fixedText(result.power * 100, 2) +
                "%, with an effect size of " + shortestText(result.effect) + ".",
            result.cutByIcc ? "The range of allowable effects was limited by the high ICCs."
                            : "Increase the number of units or add covariates, and then try again."};
}

}  // namespace

std::string mdesPrompt(double requiredPower) {
    return "Find the smallest effect size that can be detected with power of " +
           shortestText(std::round(requiredPower * 1e5) / 1e3) + "%";
}

MdesLines mdesLines(const Study& study, const MdesResult& result) {
    switch (result.outcome) {
    case MdesOutcome::found:
        return foundLines(study, result);
    case MdesOutcome::outOfReach:
        return outOfReachLines(result);
    default:
        return {problemLines[0], problemLines[1]};
    }
}

MdesFigure mdesFigure(const Study& study, const MdesResult& result) {
    if (result.outcome != MdesOutcome::found)
        return {};
    const char* name = study.isMeans() ? "d" : isOddsRatio(study) ? "Odds ratio" : "Risk difference";
    return {name, fixedText(result.effect, study.isMeans() ? 2 : 3)};
}

}  // namespace lorvane
