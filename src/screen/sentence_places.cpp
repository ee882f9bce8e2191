// The places of the sentences: what stands for "{treated}", "{level}", "{span}" and the like.
#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "base/letter_case.h"
#include "base/money.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"
#include "engine/level_costs.h"
#include "screen/design_words.h"
#include "screen/sentences.h"
#include "session/answers.h"
#include "session/currency.h"

namespace lorvane {

namespace {

using F = const StudyFacts&;

constexpr int dDecimals = 3;
constexpr int ratioDecimals = 2;
constexpr int rSquaredDecimals = 2;

struct Place {
    std::string_view name;
    std::string (*text)(F, int level);
};

// Of the study ---------------------------------------------------------------------------------------------

std::string alphaText(F f, int) {
    const double alpha = f.study().txtAlpha;
    const auto isOneOf = [alpha](std::initializer_list<double> values) {
        return std::find(values.begin(), values.end(), alpha) != values.end();
    };
    const int decimals = isOneOf({0.01, 0.02, 0.05, 0.1, 0.2}) ? 2 : isOneOf({0.001, 0.005}) ? 3 : 4;
    return fixedText(alpha, decimals);
}

template <int group>
std::string groupAsTyped(F f, int) {
    return groupName(f.study(), group);
}

template <int group>
std::string lowerGroup(F f, int) {
    return lowerCased(groupName(f.study(), group));
}

template <int level>
std::string nameOf(F f, int) {
    return lowerLevelName(f.study(), level);
}

// The text of every level from the upper one down to the lower one.
template <typename Text>
std::vector<std::string> ofLevels(int upper, int lower, Text text) {
    std::vector<std::string> texts;
    for (int level = upper; level >= lower; --level)
        texts.push_back(text(level));
    return texts;
}

std::vector<std::string> clusterNames(F f) {
    return ofLevels(f.study().NumLevels, 2, [&](int level) { return lowerLevelName(f.study(), level); });
}

std::vector<std::string> ofClusters(F f, IccColumn column) {
    return ofLevels(f.study().NumLevels, 2,
                    [&](int level) { return GetInsertICC(f.study(), level, column, true); });
}

std::string clustersFromLowest(F f, int) {
    std::vector<std::string> names = clusterNames(f);
    std::reverse(names.begin(), names.end());
    return listed(names);
}

std::string forClusters(F f, int) {
    std::vector<std::string> names = clusterNames(f);
    for (std::string& name : names)
        name.insert(0, "for ");
    return listed(names);
}

std::string allLevels(F f, int) {
    return listed(
        ofLevels(f.study().NumLevels, 1, [&](int level) { return lowerLevelName(f.study(), level); }));
}

template <double (*effect)(const Study&)>
std::string dText(F f, int) {
    return fixedText(effect(f.study()), dDecimals);
}

template <std::string (*text)(const Study&)>
std::string ofStudy(F f, int) {
    return text(f.study());
}

template <double Study::*rate>
std::string risk(F f, int) {
    return riskText(f.study(), f.study().*rate);
}

// Of a level -----------------------------------------------------------------------------------------------

template <PerLevel<double> Study::*number>
std::string count(F f, int level) {
    return shortestText((f.study().*number)(level));
}

template <PerLevel<double> Study::*price>
std::string amount(F f, int level) {
    return amountText((f.study().*price)(level), f.state.settings.currency);
}

template <IccColumn column>
std::string icc(F f, int level) {
    return GetInsertICC(f.study(), level, column, true);
}

template <TauSqColumn column>
std::string effect(F f, int level) {
    return GetInsertTauSq(f.study(), level, column);
}

// The levels above one, from the top down.
std::string uppers(F f, int level) {
    return listed(ofLevels(f.study().NumLevels, level + 1,
                           [&](int upper) { return lowerLevelName(f.study(), upper); }));
}

// In the decimals of the fields ----------------------------------------------------------------------------

template <double Study::*value, int FieldDecimals::*decimals>
std::string shown(F f, int) {
    return fixedText(f.study().*value, f.study().decimals.*decimals);
}

// Limits of risks need three decimals to differ.
int decimalsOfSpan(const Study& s) {
    return s.isMeans() ? s.decimals.txtMRange : std::max(s.decimals.txtMRange, 3);
}

std::string spanShown(F f, int level) {
    const Study& s = f.study();
    const int decimals = s.entersLimits() ? decimalsOfSpan(s) : s.decimals.txtMRange;
    return fixedText(spanOfLevel(s, level), decimals) + (s.isMeans() ? " points" : "");
}

std::string limitsShown(F f, int level) {
    const IccRow row = iccRow(f.study(), level);
    const int decimals = decimalsOfSpan(f.study());
    return fixedText(row.lower, decimals) + " to " + fixedText(row.upper, decimals);
}

// What was entered, or what follows from it.
template <TauSqMetrics metric, PerLevel<double> Study::*entered, PerLevel<double> EffectDispersion::*derived,
          int FieldDecimals::*decimals>
std::string effectShown(F f, int level) {
    const Study& s = f.study();
    const double value = s.TauSqMetric == metric ? (s.*entered)(level) : (s.effect.*derived)(level);
    return fixedText(value, s.decimals.*decimals);
}

// The metric of the effect.
struct EffectWords {
    const char* name;
    const char* sign;
};

EffectWords effectWords(const Study& s) {
    if (s.isMeans())
        return {"the standardized mean difference, d", "d"};
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return {"the log odds ratio", "log odds ratio"};
    if (s.BinaryType == BinaryTypes::riskDifference)
        return {"the risk difference", "risk difference"};
    return s.BinaryType == BinaryTypes::riskRatio ? EffectWords{"the log risk ratio", "log risk ratio"}
                                                  : EffectWords{"the difference of two risks", "two risks"};
}

// The levels from the second up, as the effect size speaks of them: "a", "a, and b", "a, b, and c".
std::string levelsAbove(F f, int) {
    std::string names = levelName(f.study(), 2);
    for (int level = 3; level <= f.study().NumLevels; ++level)
        names += (level < f.study().NumLevels ? ", " : ", and ") + levelName(f.study(), level);
    return names;
}

std::string costOfLevel(F f, int level) {
    return amountText(levelCosts(f.study())(level).amount(), f.state.settings.currency);
}

using S = Study;
using D = FieldDecimals;
using E = EffectDispersion;
using I = IccColumn;
using T = TauSqColumn;

constexpr Place places[] = {
    // Names
    {"treated", lowerGroup<1>},
    {"control", lowerGroup<2>},
    {"Treated", groupAsTyped<1>},
    {"Control", groupAsTyped<2>},
    {"name 1", nameOf<1>},
    {"name 2", nameOf<2>},
    {"name 3", nameOf<3>},
    {"name 4", nameOf<4>},
    {"top", [](F f, int) { return lowerLevelName(f.study(), f.study().NumLevels); }},
    {"all levels", allLevels},
    {"clusters", [](F f, int) { return listed(clusterNames(f)); }},
    {"clusters from lowest", clustersFromLowest},
    {"for clusters", forClusters},
    {"level", [](F f, int level) { return lowerLevelName(f.study(), level); }},
    {"Level", [](F f, int level) { return levelName(f.study(), level); }},
    {"above", [](F f, int level) { return lowerLevelName(f.study(), level + 1); }},
    {"uppers", uppers},
    // Test and effect
    {"alpha", alphaText},
    {"power", [](F f, int) { return fixedText(100 * f.study().result.txtPower, 1); }},
    {"d", [](F f, int) { return fixedText(f.study().txtd, dDecimals); }},
    {"d within", dText<GetDW>},
    {"d total", dText<GetDT>},
    {"SD within", ofStudy<GetSDW>},
    {"SD total", ofStudy<GetSDT>},
    {"raw difference", ofStudy<rawDifference>},
    {"odds ratio", [](F f, int) { return fixedText(f.study().txtOR, ratioDecimals); }},
    {"control risk", risk<&S::txtPrev>},
    {"treated risk", risk<&S::txtEvent2>},
    {"risk difference", risk<&S::txtRD>},
    // Units and costs
    {"NT", count<&S::txtNT>},
    {"NC", count<&S::txtNC>},
    {"NB", count<&S::txtNB>},
    {"Q", count<&S::txtQ>},
    {"R-squared", [](F f, int level) { return fixedText(f.study().txtRsq(level), rSquaredDecimals); }},
    {"cost treated", amount<&S::txtCostT>},
    {"cost control", amount<&S::txtCostC>},
    {"cost blocked", amount<&S::txtCostB>},
    {"total cost", [](F f, int) { return costText(f.study().result.txtCost, f.state.settings.currency); }},
    // Dispersion of the outcome
    {"ICCs", [](F f, int) { return listed(ofClusters(f, I::ICCW)); }},
    {"percent", icc<I::PctW>},
    {"percent within", [](F f, int) { return GetInsertICC(f.study(), 1, I::PctW, true); }},
    {"span", icc<I::SpanW>},
    {"spans", [](F f, int) { return listed(ofClusters(f, I::SpanW)); }},
    {"span within", [](F f, int) { return GetInsertICC(f.study(), 1, I::SpanW, true); }},
    {"example", icc<I::ExampleW>},
    {"span across", icc<I::SpanC>},
    {"example across", icc<I::ExampleC>},
    // Dispersion of the effect
    {"tau-squared", effect<T::TauSqW>},
    {"effect span", effect<T::SpanW>},
    {"effect range", effect<T::ExampleW>},
    {"mean effect", ofStudy<meanEffect>},
    {"effect span across", effect<T::SpanC>},
    {"effect range across", effect<T::ExampleC>},
    // As the cells show them
    {"Name 1", [](F f, int) { return levelName(f.study(), 1); }},
    {"below", [](F f, int level) { return lowerLevelName(f.study(), level - 1); }},
    {"levels above", levelsAbove},
    {"design", ofStudy<designSentence>},
    {"units", ofStudy<unitsNote>},
    {"outcome", [](F f, int) -> std::string { return f.study().isMeans() ? "scores" : "risk"; }},
    {"values", [](F f, int) -> std::string { return f.study().isMeans() ? "means" : "risks"; }},
    {"ICC", icc<I::ICCW>},
    {"span shown", spanShown},
    {"span shown within", [](F f, int) { return spanShown(f, 1); }},
    {"limits shown", limitsShown},
    {"effect", [](F f, int) -> std::string { return effectWords(f.study()).name; }},
    {"effect sign", [](F f, int) -> std::string { return effectWords(f.study()).sign; }},
    {"tau-squared shown", effectShown<TauSqMetrics::tauSquared, &S::txtTauSq, &E::txtTauSq, &D::txtTauSq>},
    {"effect span shown",
     effectShown<TauSqMetrics::spanOfEffects, &S::txtDRange, &E::txtSpan, &D::txtDRange>},
    {"omega shown", effectShown<TauSqMetrics::omega, &S::txtOmega, &E::txtOmega, &D::txtOmega>},
    {"control rate", shown<&S::txtPrev, &D::txtPrev>},
    {"treated rate", shown<&S::txtEvent2, &D::txtPrev>},
    {"odds ratio shown", shown<&S::txtOR, &D::txtOR>},
    {"risk difference shown", shown<&S::txtRD, &D::txtRD>},
    {"cost of level", costOfLevel},
};

}  // namespace

std::string placeText(std::string_view name, const StudyFacts& facts, int level) {
    const auto* found = std::find_if(std::begin(places), std::end(places),
                                     [&](const Place& place) { return place.name == name; });
    if (found == std::end(places))
        throw std::logic_error("A sentence has an unknown place \"" + std::string(name) + "\".");
    return found->text(facts, level);
}

}  // namespace lorvane
