// What the wizard of the optimal design tells.
#include "search/optimal_texts.h"

#include <cmath>
#include <utility>

#include "base/number_text.h"
#include "search/proof_texts.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

constexpr int decimalsOfMyStr = 2;
constexpr const char* noSolution =
    "The program has not been able to find a solution. Please save the study and send it to the makers of "
    "Lorvane, so that they can look into it.";

bool iccIs(const Study& s, IccMetrics metric) { return s.IccMetric == metric; }

// A rule of readiness: when it fails, and what it says. The rules for one flag differ by metric and outcome.
struct Rule {
    bool (*fails)(const Study&);
    ReadinessProblem problem;
};

bool dispersionOfOutcomeIsBad(const Study& s) { return !s.outcome.ValidICC(0); }
bool dispersionOfEffectIsBad(const Study& s) { return !s.effect.ValidTauSq(0); }
bool dispersionOfOutcomeIsZero(const Study& s) { return !s.result.xValidICC(0); }
bool dispersionOfEffectIsZero(const Study& s) { return !s.result.xValidTauSq(0) || !s.result.xValidOmega(0); }

template <bool (*fails)(const Study&)>
bool withIcc(const Study& s) {
    return fails(s) && iccIs(s, IccMetrics::icc);
}
template <bool (*fails)(const Study&)>
bool withSpanOfMeans(const Study& s) {
    return fails(s) && iccIs(s, IccMetrics::span) && s.isMeans();
}
template <bool (*fails)(const Study&)>
bool withSpanOfRisks(const Study& s) {
    return fails(s) && iccIs(s, IccMetrics::span) && s.isBinary();
}
template <bool (*fails)(const Study&), TauSqMetrics metric>
bool withMetric(const Study& s) {
    return fails(s) && s.TauSqMetric == metric;
}

const std::vector<Rule>& rules() {
    static const std::vector<Rule> all = {
        {[](const Study& s) { return !s.result.xValidModel(0); },
         {"Model is fixed",
          "Optimal design cannot be computed when using a fixed-effect model at any level.",
          {"pnlModel"}}},
        {[](const Study& s) { return !s.result.xValidES; },
         {"Effect size is zero", "Enter an effect size. Then click <Compute>.", {"pnlEffectSize"}}},
        {withIcc<dispersionOfOutcomeIsBad>,
         {"Problem with ICC", "Please fix problem with the ICCs. Then click <Compute>.", {"pnlICC"}}},
        {withSpanOfMeans<dispersionOfOutcomeIsBad>,
         {"Problem with span",
          "Please fix problem with the span of means. Then click <Compute>.",
          {"pnlICC"}}},
        {withSpanOfRisks<dispersionOfOutcomeIsBad>,
         {"Problem with span",
          "Please fix problem with the span of risks. Then click <Compute>.",
          {"pnlICC"}}},
        {withMetric<dispersionOfEffectIsBad, TauSqMetrics::tauSquared>,
         {"Tau-squared is zero",
          "Please fix problem with tau-squared values. Then click <Compute>.",
          {"pnlTauSq"}}},
        {withMetric<dispersionOfEffectIsBad, TauSqMetrics::spanOfEffects>,
         {"Span of effects is zero",
          "Please fix problem with the span of effects sizes. Then click <Compute>.",
          {"pnlTauSq"}}},
        {withMetric<dispersionOfEffectIsBad, TauSqMetrics::omega>,
         {"Omega is zero", "Please fix problem with the omega values. Then click <Compute>.", {"pnlTauSq"}}},
        {withIcc<dispersionOfOutcomeIsZero>,
         {"ICC is zero", "Set all ICCs to values greater than zero. Then click <Compute>.", {"pnlICC"}}},
        {withSpanOfMeans<dispersionOfOutcomeIsZero>,
         {"Range of means is zero",
          "Set the range of means to value greater than zero. Then click <Compute>.",
          {"pnlICC"}}},
        {withSpanOfRisks<dispersionOfOutcomeIsZero>,
         {"Range of risks is zero",
          "Set the range of risks to value greater than zero. Then click <Compute>.",
          {"pnlICC"}}},
        {[](const Study& s) { return !s.result.xValidCost(0); },
         {"Cost is zero",
          "Set all costs to values greater than zero. Then click <Compute>.",
          {"pnlCostT", "pnlCostC"}}},
        {withMetric<dispersionOfEffectIsZero, TauSqMetrics::tauSquared>,
         {"Tau-squared is zero",
          "Set all tau-squared to values greater than zero. Then click <Compute>.",
          {"pnlTauSq"}}},
        {withMetric<dispersionOfEffectIsZero, TauSqMetrics::spanOfEffects>,
         {"Span of effects is zero",
          "Set all span of effects to value greater than zero. Then click <Compute>.",
          {"pnlTauSq"}}},
        {withMetric<dispersionOfEffectIsZero, TauSqMetrics::omega>,
         {"Omega is zero", "Set all omega to value greater than zero. Then click <Compute>.", {"pnlTauSq"}}},
        {[](const Study& s) { return !s.result.xValidQ(0); },
         {"Number of covariates is zero",
          "Set the number of covariates to value greater than zero. Then click <Compute>.",
          {"pnlQ", "pnlRsq"}}},
        {[](const Study& s) { return !s.result.xValidTotICC; },
         {"Total ICC exceeds 0.999",
          "The total of the ICC values, summed across levels, cannot exceed 0.999.",
          {"pnlICC"}}}};
    return all;
}

std::string covariates(const Study& s, int level) {
    return s.txtName(level) + (s.txtQ(level) == 1 ? "-level covariate. " : "-level covariates. ");
}

std::string costWithout(const Study& s, int level) {
    return std::string("It is possible that the total cost will decrease if ") +
           (s.txtQ(level) == 1 ? "this covariate is removed. " : "these covariates are removed. ");
}

std::string changeNote(const Study& s, const SizeChange& change, bool manual) {
    std::string note = manual ? "You requested " : "The optimal ratio is ";
    note += MyStr(change.from) + " " + s.txtName(change.level) + " for each of the " +
            s.txtName(change.level + 1) + ". However, this number has been set at ";
    note += change.blocked ? "three" : "two per group";
    note += " to provide sufficient degrees of freedom for the " + covariates(s, change.level);
    return manual ? note : note + costWithout(s, change.level);
}

std::string raisedTopNote(const Study& s) {
    const std::string& top = s.txtName(s.NumLevels);
    return "The number of " + top + " has been increased to provide sufficient degrees of freedom for the " +
           top + "-level covariates. " + costWithout(s, s.NumLevels);
}

std::string raisedLevel1Note(const Study& s) {
    return "The number of " + s.txtName(1) + " has been increased to avoid low cell counts.";
}

std::string noSolutionText(const Study& s, const OptimalResult& result) {
    std::string text = noSolution;
    if (result.level1Raised)
        text.append("\n").append(raisedLevel1Note(s));
    return text;
}

}  // namespace

std::vector<ReadinessProblem> readinessProblems(const Study& study) {
    std::vector<ReadinessProblem> problems;
    for (const Rule& rule : rules()) {
        if (rule.fails(study))
            problems.push_back(rule.problem);
    }
    return problems;
}

OptimalFailure optimalFailure(const Study& s, const OptimalResult& result,
                              const std::vector<ReadinessProblem>& problems, const Currency& currency) {
    switch (result.ending) {
    case OptimalEnding::noSolution:
        return {"", noSolutionText(s, result)};
    case OptimalEnding::costOverflow:
        return {"", "Cannot compute because the cost has exceeded the computer's memory."};
    case OptimalEnding::budgetTooLow:
        return {"The budget is too low", budgetTooLowText(s, result, currency)};
    case OptimalEnding::stopped:
        return {"", "The search was stopped. Click <Compute> to start it again."};
    case OptimalEnding::notReady:
    case OptimalEnding::found:
        break;
    }
    if (problems.empty())
        return {wizardTitle, modifyData};
    return {problems.back().title, problems.back().text};
}

std::string MyStr(double value) {
    const double hundredths = std::pow(10, decimalsOfMyStr);
    return shortestText(std::round(value * hundredths) / hundredths);
}

std::vector<std::string> optimalNotes(const Study& s, const OptimalResult& result,
                                      const OptimalOptions& options, const Currency& currency) {
    std::vector<std::string> notes;
    for (const SizeChange& change : result.changes)
        notes.push_back(changeNote(s, change, options.manual(change.level)));
    if (result.topRaisedForDf)
        notes.push_back(raisedTopNote(s));
    if (result.covariatesAreTight)
        notes.push_back("It may be possible to lower costs by removing some covariates.");
    if (result.level1Raised)
        notes.push_back(raisedLevel1Note(s));
    if (otherDesign(result))
        notes.push_back(proofWords(s, result, currency));
    if (std::string note = unprovenNote(result); !note.empty())
        notes.push_back(std::move(note));
    if (std::string note = truncationNote(s); !note.empty())
        notes.push_back(std::move(note));
    return notes;
}

std::string optimalCostText(std::int32_t cost, const Currency& currency) {
    return cost < 1 ? "n/a" : ReFormatCurrency(cost, currency);
}

}  // namespace lorvane
