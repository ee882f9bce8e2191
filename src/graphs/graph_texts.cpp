// What a graph tells in words.
#include "graphs/graph_texts.h"

#include <vector>

#include "base/letter_case.h"
#include "base/number_text.h"

namespace lorvane {

namespace {

using enum GraphFields;

std::string joined(const std::vector<std::string>& texts, const char* between) {
    std::string all;
    for (const std::string& text : texts)
        all += (all.empty() ? "" : between) + text;
    return all;
}

// The names of the levels that are chosen, from the top, with what is told of them; empty where none is.
template <typename Choice>
std::string levelsThat(const Study& s, Choice isChosen, const char* predicate) {
    std::vector<std::string> names;
    for (int level = s.NumLevels; level >= lowestLevel; --level) {
        if (isChosen(level))
            names.push_back(s.txtName(level));
    }
    return names.empty() ? "" : joined(names, ", ") + predicate;
}

// Design and model
// ---------------------------------------------------------------------------------------

const char* testWords(const Study& s) {
    if (s.isMeans())
        return "Test of difference in means";
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return "Test of log odds ratio";
    return s.BinaryType == BinaryTypes::riskDifference ? "Test of difference in proportions" : "";
}

std::string designLine(const Study& s) {
    constexpr const char* starts[] = {"Two-level clustered design. ", "Three-level clustered design. ",
                                      "Four-level clustered design. "};
    const int randomized = s.RandomizedLevel;
    const std::string line = starts[s.NumLevels - 2] +
                             levelsThat(
                                 s, [&](int level) { return level > randomized; }, " are blocked. ") +
                             levelsThat(
                                 s, [&](int level) { return level == randomized; }, " are randomized. ") +
                             levelsThat(
                                 s, [&](int level) { return level < randomized; }, " are nested. ") +
                             testWords(s);
    return std::string(trimmed(line));
}

std::string modelLine(const Study& s) {
    const auto isFixed = [&](int level) { return s.txtModel(level) == SamplingModels::fixed; };
    const std::string fixed = levelsThat(s, isFixed, " are fixed.");
    if (fixed.empty())
        return s.NumLevels == 2 ? "Statistical model - Random-effects at both levels."
                                : "Statistical model - Random-effects at all levels.";
    return "Statistical model - " +
           levelsThat(
               s, [&](int level) { return !isFixed(level); }, " are random, ") +
           fixed;
}

// Levels
// -------------------------------------------------------------------------------------------------

/// A value as the footer tells it: "ICC varies, " or "ICC = 0.1000, ".
std::string valueWords(const GraphSubject& subject, const GraphVariable& variable, const Study& s,
                       const std::string& name, int decimals) {
    return subject.varies(variable->field, variable.level)
               ? name + " varies, "
               : name + " = " + fixedText(variable.in(s), decimals) + ", ";
}

std::string numberWords(const Study& s, const GraphSubject& subject, int level) {
    if (subject.varies(s.isBlocked(level) ? NB : NT, level))
        return "Number varies, ";
    if (s.isBlocked(level))
        return shortestText(s.txtNB(level)) + " (blocked) ";
    const std::string treated = shortestText(s.txtNT(level));
    const std::string control = shortestText(s.txtNC(level));
    return (treated == control ? treated : treated + " + " + control) + " per group, ";
}

// Of the individuals there is no dispersion but that within cells, which the last line tells.
std::string dispersionWords(const Study& s, const GraphSubject& subject, int level) {
    if (level == lowestLevel)
        return "";
    if (s.IccMetric == IccMetrics::icc)
        return valueWords(subject, graphVariable(ICC, level), s, "ICC", 4);
    if (s.isMeans())
        return valueWords(subject, graphVariable(MRange, level), s, "span of means", 3);
    if (s.limits.RangeMode == RangeModes::limits)
        return "span of risks = " + fixedText(s.limits.txtUL(level) - s.limits.txtLL(level), 3) + ", ";
    return valueWords(subject, graphVariable(MRange, level), s, "span of risks", 3);
}

std::string nameOfSpanOfEffects(const Study& s) {
    if (s.isMeans())
        return s.DType == DTypes::within ? "span of d (within)" : "span of d (total)";
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return "span of log(OR)";
    return s.BinaryType == BinaryTypes::riskDifference ? "span of RD" : "span of effects";
}

std::string effectDispersionWords(const Study& s, const GraphSubject& subject, int level) {
    if (!s.isBlocked(level))
        return "";
    switch (s.TauSqMetric) {
    case TauSqMetrics::tauSquared:
        return valueWords(subject, graphVariable(TauSq, level), s, "Tau-squared", 4);
    case TauSqMetrics::spanOfEffects:
        return valueWords(subject, graphVariable(DRange, level), s, nameOfSpanOfEffects(s), 3);
    case TauSqMetrics::omega:
        break;
    }
    return valueWords(subject, graphVariable(Omega, level), s, "omega", 3);
}

std::string covariateWords(const Study& s, const GraphSubject& subject, int level) {
    const double count = s.txtQ(level);
    if (count == 0)
        return "No covariates. ";
    const std::string words = shortestText(count) + (count == 1 ? " covariate" : " covariates");
    if (subject.varies(Rsq, level))
        return words + ", R-squared varies. ";
    return words + ", R-squared = " + fixedText(s.txtRsq(level), 2) + ". ";
}

std::string costWords(const SessionState& state, int level) {
    const Study& s = state.study;
    const auto amount = [&](double cost) { return amountText(cost, state.settings.currency); };
    if (s.isBlocked(level))
        return "Unit cost = " + amount(s.txtCostB(level));
    if (s.txtCostT(level) == s.txtCostC(level))
        return "Unit cost = " + amount(s.txtCostT(level));
    return "Unit cost = " + amount(s.txtCostT(level)) + " (" + s.treatedName() + ") " +
           amount(s.txtCostC(level)) + " (" + s.controlName() + ")";
}

std::string levelWords(const SessionState& state, const GraphSubject& subject, int level) {
    const Study& s = state.study;
    return s.txtName(level) + " - " + numberWords(s, subject, level) + dispersionWords(s, subject, level) +
           effectDispersionWords(s, subject, level) + covariateWords(s, subject, level) +
           costWords(state, level);
}

std::string levelsLine(const SessionState& state, const GraphSubject& subject) {
    std::vector<std::string> levels;
    for (int level = state.study.NumLevels; level >= lowestLevel; --level)
        levels.push_back(levelWords(state, subject, level));
    return joined(levels, "; ");
}

// Effect
// -------------------------------------------------------------------------------------------------

std::string effectOrVaries(const Study& s, const GraphSubject& subject, GraphFields field,
                           const std::string& name) {
    if (subject.varies(field))
        return name + " varies";
    return name + " = " + fixedText(graphVariable(field).in(s), 3);
}

std::string effectOfMeans(const Study& s, const GraphSubject& subject) {
    const std::string form = s.DType == DTypes::within ? "d (within)" : "d (total)";
    return "Effect size - " +
           effectOrVaries(s, subject, GraphFields::d, "Standardized mean difference, " + form);
}

std::string effectOfRisks(const Study& s, const GraphSubject& subject) {
    const std::string control =
        effectOrVaries(s, subject, Prev, "Event rate in " + lowerCased(s.controlName()) + " group");
    switch (s.BinaryType) {
    case BinaryTypes::oddsRatio:
        return control + ", " + effectOrVaries(s, subject, OR, "Odds ratio");
    case BinaryTypes::riskRatio:
        return control + ", " + effectOrVaries(s, subject, RR, "Risk ratio");
    case BinaryTypes::riskDifference:
        return control + ", " + effectOrVaries(s, subject, RD, "Risk difference");
    case BinaryTypes::twoRisks:
        break;
    }
    return control + ", " +
           effectOrVaries(s, subject, P2, "Event rate in " + lowerCased(s.treatedName()) + " group");
}

std::string effectLine(const Study& s, const GraphSubject& subject) {
    const std::string effect = s.isMeans() ? effectOfMeans(s, subject) : effectOfRisks(s, subject);
    const bool hasSpans = s.isMeans() && s.IccMetric == IccMetrics::span;
    return hasSpans ? effect + ", Standard deviation within cells = " + fixedText(s.txtSD, 3) : effect;
}

}  // namespace

std::string graphHeader(const Study& study, const GraphSubject& subject) {
    const std::string header = "Power as a function of " + GetTitleX(study, subject.x);
    return subject.series ? header + " and " + GetTitleX(study, subject.series) : header;
}

std::array<std::string, footerLines> graphFooter(const SessionState& state, const GraphSubject& subject) {
    return {designLine(state.study), modelLine(state.study), levelsLine(state, subject),
            effectLine(state.study, subject)};
}

}  // namespace lorvane
