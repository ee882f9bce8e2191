// The places of the sentences: what stands for "{treated}", "{level}", "{span}" and the like.
#include <algorithm>
#include <iterator>
#include <stdexcept>

#include "base/letter_case.h"
#include "base/money.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"
#include "reporting/report_sentences.h"
#include "session/answers.h"
#include "session/currency.h"

namespace lorvane {

namespace {

using F = const ReportFacts&;

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

using S = Study;
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
};

}  // namespace

std::string placeText(std::string_view name, const ReportFacts& facts, int level) {
    const auto* found = std::find_if(std::begin(places), std::end(places),
                                     [&](const Place& place) { return place.name == name; });
    if (found == std::end(places))
        throw std::logic_error("A sentence of the report has an unknown place \"" + std::string(name) +
                               "\".");
    return found->text(facts, level);
}

}  // namespace lorvane
