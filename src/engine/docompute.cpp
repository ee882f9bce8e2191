// From the study to power and cost.
#include "engine/docompute.h"

#include <cmath>
#include <string_view>

#include "engine/design_routines.h"
#include "engine/power_test.h"

namespace lorvane {

namespace {

constexpr Problem noProblem{"Valid", ""};
constexpr Problem untold{"", ""};
constexpr Problem effectProblem{"Please modify the effect size", "Problem with the effect size"};
constexpr Problem dfProblem{
    "There are insufficient degrees of freedom.\n\nTry increasing the number of units "
    "and/or decreasing the number of covariates. ",
    "Problem with degrees of freedom"};
constexpr Problem covariateProblem{
    "It is not possible for R-squared at any level to be greater than zero when "
    "there are no covariates at that level. ",
    "Problem with number of covariates"};
constexpr Problem totalIccProblem{"The ICC for all levels cannot sum to more than 0.999",
                                  "Problem with the ICC"};

std::string_view iccRequest(const Study& s) {
    if (s.IccMetric == IccMetrics::icc)
        return "Please modify ICC";
    return s.isMeans() ? "Please modify span of means" : "Please modify span of risks";
}

std::string_view tauSqRequest(const Study& s) {
    switch (s.TauSqMetric) {
    case TauSqMetrics::tauSquared:
        return "Please modify tau-squared";
    case TauSqMetrics::spanOfEffects:
        return "Please modify span of effects";
    case TauSqMetrics::omega:
        return "Please modify omega";
    }
    return "";
}

void resetFlags(PowerResult& result) {
    result.xValidDF.fill(true);
    result.xValidQ.fill(true);
    result.xValidTestdf = true;
    // Not valid until the power stands, so that a fault on the way leaves no earlier power as if it were
    // good.
    result.xValid = false;
}

// A model other than 0 and 1, as a file can hold, leaves txtPop as it was.
void applyModels(Study& s) {
    for (int level = 1; level <= s.NumLevels; ++level) {
        if (s.txtModel(level) == SamplingModels::fixed)
            s.txtPop(level) = 1;
        else if (s.txtModel(level) == SamplingModels::random)
            s.txtPop(level) = 0;
    }
}

void summarise(LevelFlags& flags) {
    for (int level = 1; level <= highestLevel; ++level) {
        if (!flags(level))
            flags(0) = false;
    }
}

bool collectFlags(Study& s) {
    PowerResult& result = s.result;
    summarise(result.xValidDF);
    summarise(result.xValidQ);
    return result.xValidDF(0) && result.xValidQ(0) && result.xValidTestdf && s.outcome.ValidICC(0) &&
           s.effect.ValidTauSq(0);
}

// Of several problems the message tells the last one only, but the cells of all are marked.
ComputeOutcome tellInvalid(const PowerResult& result) {
    ComputeOutcome outcome{Obstacle::data, "Please modify data", untold, {}, {}};
    if (!result.xValidTestdf || !result.xValidDF(0))
        outcome.problem = dfProblem;
    if (!result.xValidQ(0))
        outcome.problem = covariateProblem;
    if (!result.xValidTotICC)
        outcome.problem = totalIccProblem;
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        outcome.covariatesAtFault(level) = !result.xValidQ(level);
        outcome.levelAtFault(level) = !result.xValidDF(level);
    }
    return outcome;
}

ComputeOutcome computePower(Study& s, DistributionLibrary& library) {
    resetFlags(s.result);
    runDesign(s, library);
    if (!collectFlags(s))
        return tellInvalid(s.result);
    s.result.xLambda = std::fabs(s.result.xLambda);
    ComputePower(s, library);
    s.result.xValid = true;
    return {Obstacle::none, "", noProblem, {}, {}};
}

ComputeOutcome stopAtGate(Study& s, Obstacle obstacle, std::string_view request, const Problem& problem) {
    s.result.xValid = false;
    return {obstacle, request, problem, {}, {}};
}

ComputeOutcome computeBehindGates(Study& s, DistributionLibrary& library) {
    if (!s.result.ValidES)
        return stopAtGate(s, Obstacle::effect, "Please modify effect size data", effectProblem);
    if (!s.outcome.ValidICC(0))
        return stopAtGate(s, Obstacle::icc, iccRequest(s), untold);
    if (!s.effect.ValidTauSq(0))
        return stopAtGate(s, Obstacle::tauSq, tauSqRequest(s), untold);
    return computePower(s, library);
}

}  // namespace

// The cost hangs on sizes and unit costs alone. It comes first, so that it is right even where the power
// cannot be told; so are the models.
ComputeOutcome docompute(Study& study, DistributionLibrary& library) {
    routinesOf(study.NumLevels, study.RandomizedLevel).cost(study);
    applyModels(study);
    return computeBehindGates(study, library);
}

}  // namespace lorvane
