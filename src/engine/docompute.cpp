// From the study to power and cost.
#include "engine/docompute.h"

#include <cmath>
#include <string_view>

#include "engine/design_routines.h"
#include "engine/power_test.h"

namespace lorvane {

namespace {

// The message of the problem window and its title.
struct Problem {
    std::string_view message;
    std::string_view title;
};

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
    default:
        return "Please modify Tau-squared";
    }
}

void resetFlags(PowerResult& result) {
    result.xValidDF.fill(1);
    result.xValidQ.fill(1);
    result.xValidTestdf = 1;
    // Not valid until the power stands, so that a fault on the way leaves no earlier power as if it were
    // good.
    result.xValid = 0;
}

// Any model but 0 and 1 leaves the number used in formulas as it was.
void applyModels(Study& s) {
    for (int level = 1; level <= s.NumLevels; ++level) {
        if (s.txtModel(level) == SamplingModels::fixed)
            s.txtPop(level) = 1;
        else if (s.txtModel(level) == SamplingModels::random)
            s.txtPop(level) = 0;
    }
}

void runDesign(Study& s, DistributionLibrary& library) {
    const DesignRoutines& design = routinesOf(s.NumLevels, s.RandomizedLevel);
    if (s.isMeans())
        design.means(s);
    else
        design.binary(s, library);
}

void summarise(LevelFlags& flags) {
    for (int level = 1; level <= highestLevel; ++level) {
        if (flags(level) == 0)
            flags(0) = 0;
    }
}

bool collectFlags(Study& s) {
    PowerResult& result = s.result;
    summarise(result.xValidDF);
    summarise(result.xValidQ);
    return result.xValidDF(0) == 1 && result.xValidQ(0) == 1 && result.xValidTestdf == 1 &&
           s.outcome.ValidICC(0) != 0 && s.effect.ValidTauSq(0) != 0;
}

Problem tellInvalid(const PowerResult& result, ComputeDisplay& display) {
    Problem problem = untold;
    if (result.xValidTestdf == 0 || result.xValidDF(0) == 0)
        problem = dfProblem;
    if (result.xValidQ(0) == 0)
        problem = covariateProblem;
    for (int level = 1; level <= highestLevel; ++level) {
        if (result.xValidQ(level) == 0)
            display.outlineCovariates(level);
        if (result.xValidDF(level) == 0)
            display.outlineLevel(level);
    }
    if (result.xValidTotICC == 0)
        problem = totalIccProblem;
    return problem;
}

Problem computeValidPower(Study& s, DistributionLibrary& library, ComputeDisplay& display) {
    s.result.xLambda = std::fabs(s.result.xLambda);
    ComputePower(s, library);
    s.result.xValid = 1;
    display.showPower();
    display.withdrawWindow(WindowId::frmProblems);
    return noProblem;
}

Problem computePowerPath(Study& s, DistributionLibrary& library, ComputeDisplay& display) {
    resetFlags(s.result);
    display.restoreCovariateColours();
    applyModels(s);
    runDesign(s, library);
    const bool good = collectFlags(s);
    display.clearOutlines();
    if (good)
        return computeValidPower(s, library, display);
    display.askForData("Please modify data");
    const Problem problem = tellInvalid(s.result, display);
    display.openProblemWindow();
    return problem;
}

Problem stopAtGate(Study& s, ComputeDisplay& display, std::string_view request, WindowId window,
                   const Problem& problem) {
    s.result.xValid = 0;
    display.askForData(request);
    display.openWindow(window);
    return problem;
}

Problem gatedPower(Study& s, DistributionLibrary& library, ComputeDisplay& display) {
    if (s.result.ValidES == 0)
        return stopAtGate(s, display, "Please modify effect size data", WindowId::frmProblemES,
                          effectProblem);
    if (s.outcome.ValidICC(0) != 1)
        return stopAtGate(s, display, iccRequest(s), WindowId::frmDisplayICC, untold);
    if (s.effect.ValidTauSq(0) == 0)
        return stopAtGate(s, display, tauSqRequest(s), WindowId::frmDisplayTauSq, untold);
    return computePowerPath(s, library, display);
}

// Writes the cost when it goes out of scope, so that the cost is right even where the power cannot be told.
class CostInEveryCase {
public:
    explicit CostInEveryCase(Study& study) : study_(study) {}
    ~CostInEveryCase() { routinesOf(study_.NumLevels, study_.RandomizedLevel).cost(study_); }
    CostInEveryCase(const CostInEveryCase&) = delete;
    CostInEveryCase& operator=(const CostInEveryCase&) = delete;

private:
    Study& study_;
};

void computePower(Study& s, DistributionLibrary& library, ComputeDisplay& display) {
    const CostInEveryCase cost(s);
    const Problem problem = gatedPower(s, library, display);
    display.tellProblem(problem.message, problem.title);
}

}  // namespace

void docompute(Study& study, DistributionLibrary& library, ComputeDisplay& display) {
    computePower(study, library, display);
    display.showCost();
}

}  // namespace lorvane
