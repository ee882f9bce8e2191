// The parameters that a graph can vary.
#include "graphs/graph_variables.h"

#include <algorithm>
#include <iterator>

#include "base/letter_case.h"
#include "base/names.h"
#include "session/field_book.h"

namespace lorvane {

namespace {

using enum GraphFields;
using enum SeriesOrder;
using S = Study;

constexpr FieldLimits between(double low, double high) { return {low, true, high, true}; }

constexpr FieldLimits sizes = between(1, 1000000);
constexpr FieldLimits spans = between(0, 1000);
constexpr FieldLimits variances = between(0, 1000000);
constexpr FieldLimits shares = between(0, 0.99);
constexpr FieldLimits rates = between(0.001, 0.999);
constexpr FieldLimits ratios = between(0.001, 1000);
constexpr FieldLimits untold{};

constexpr bool byHand = false;
constexpr bool ofStudy = true;

// Descending where more of the variable means more power, so that the strongest line comes first. That the
// odds ratio descends and the risk ratio ascends is deliberate.
constexpr GraphVariableRow rows[] = {
    {NT, "txtNT", "Number of Level ", 1, nullptr, &S::txtNT, 1, 0, sizes, byHand, sizes, descending,
     "Number of {units}", "Number of {units}"},
    {NB, "txtNB", "Number of Level ", 5, nullptr, &S::txtNB, 1, 0, sizes, byHand, sizes, descending,
     "Number of {units}", "Number of {units}"},
    {ICC, "txtICC", "ICC for Level ", 9, nullptr, &S::txtICC, 2, 3, untold, ofStudy, shares, ascending,
     "ICC for {level}", "ICC {level}"},
    {MRange, "txtMRange", "MRange for Level ", 13, nullptr, &S::txtMRange, 2, 3, untold, ofStudy, spans,
     ascending, "Span of {means} for {level}", "Span of {means} ({level})"},
    {TauSq, "txtTauSq", "Tau-sq for Level ", 17, nullptr, &S::txtTauSq, 2, 3, untold, ofStudy, variances,
     ascending, "Tau-squared for {level}", "Tau-sq {level}"},
    {DRange, "txtDRange", "DRange for Level ", 21, nullptr, &S::txtDRange, 2, 3, untold, ofStudy, spans,
     ascending, "Span of effects for {level}", "{span of effects}"},
    {Omega, "txtOmega", "Omega for Level ", 25, nullptr, &S::txtOmega, 2, 3, untold, ofStudy, between(0, 2),
     ascending, "Omega for {level}", "Omega {level}"},
    {Rsq, "txtRsq", "R-sq for Level ", 29, nullptr, &S::txtRsq, 1, 2, shares, byHand, shares, descending,
     "R-squared for {level}", "R-sq {level}"},
    {d, "txtd", "Std difference, d", 33, &S::txtd, nullptr, 0, 3, between(-10, 10), byHand, between(-10, 10),
     descending, "Standard difference (d)", "Std diff (d)"},
    {Prev, "txtPrev", "Event rate in control group", 34, &S::txtPrev, nullptr, 0, 3, untold, ofStudy, rates,
     ascending, "Event rate in {control} group", "Event rate in {control} group"},
    {OR, "txtOR", "Odds ratio", 35, &S::txtOR, nullptr, 0, 3, ratios, byHand, ratios, descending,
     "Odds ratio", "Odds ratio"},
    {RR, "txtRR", "Risk ratio", 36, &S::txtRR, nullptr, 0, 3, ratios, byHand, ratios, ascending, "Risk ratio",
     "Risk ratio"},
    {RD, "txtRD", "Risk difference", 37, &S::txtRD, nullptr, 0, 3, between(-0.99, 0.99), byHand,
     between(-0.99, 0.99), ascending, "Risk difference", "Risk difference"},
    {P2, "txtP2", "Event rate in treated group", 38, &S::txtP2, nullptr, 0, 3, rates, byHand, rates,
     ascending, "Event rate in {treated} group", "Event rate in {treated} group"},
    {Alpha, "txtAlpha", "Alpha", 39, &S::txtAlpha, nullptr, 0, 3, between(0.001, 0.5), byHand,
     between(0.001, 0.5), descending, "Alpha", "Alpha"},
};

// The span of effects in the metric of the effect; a risk ratio has none.
std::string spanOfEffects(const Study& s, int level) {
    const auto of = [&](const char* metric) {
        return std::string("Span of ").append(metric).append(" (").append(s.txtName(level)).append(")");
    };
    if (s.isMeans())
        return of(s.DType == DTypes::within ? "dw" : "dt");
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return of("log(OR)");
    return s.BinaryType == BinaryTypes::riskDifference ? of("RD") : "";
}

// What stands in the place of a word in braces.
std::string filling(const Study& s, int level, std::string_view place) {
    if (place == "level")
        return s.txtName(level);
    if (place == "units")
        return lowerCased(s.txtName(level));
    if (place == "means")
        return s.isMeans() ? "means" : "risks";
    if (place == "span of effects")
        return spanOfEffects(s, level);
    return lowerCased(place == "control" ? s.controlName() : s.treatedName());
}

std::string filledIn(const Study& s, int level, std::string_view pattern) {
    std::string words;
    for (std::size_t open; (open = pattern.find('{')) != std::string_view::npos;) {
        const std::size_t close = pattern.find('}', open);
        words.append(pattern.substr(0, open));
        words.append(filling(s, level, pattern.substr(open + 1, close - open - 1)));
        pattern.remove_prefix(close + 1);
    }
    return words.append(pattern);
}

std::vector<GraphKey> makeKeys() {
    std::vector<GraphKey> keys;
    for (const GraphVariableRow& row : rows) {
        if (row.field == NB)
            continue;
        for (int level = row.values == nullptr ? 0 : highestLevel; level >= row.lowestLevel; --level) {
            std::string key(row.key);
            if (level > 0)
                key.append(std::to_string(level));
            keys.push_back({std::move(key), {&row, level}});
        }
    }
    return keys;
}

}  // namespace

std::span<const GraphVariableRow> graphVariables() { return rows; }

std::string GraphVariable::name() const {
    if (row == nullptr)
        return "txtNone";
    return level == 0 ? std::string(row->stem) : indexedName(row->stem, level);
}

// A limit entered in the place of a span leaves the span without effect.
bool GraphVariable::isOnOffer(const Study& s) const {
    if (level > s.NumLevels)
        return false;
    if (is(MRange) && s.isBinary() && s.limits.RangeMode == RangeModes::limits)
        return false;
    const auto shown = fieldOf(row->stem).cell.shown;
    return shown == nullptr || shown(s, level);
}

GraphVariable graphVariable(GraphFields field, int level) {
    return {std::find_if(std::begin(rows), std::end(rows),
                         [&](const GraphVariableRow& row) { return row.field == field; }),
            level};
}

GraphVariable numberOfUnits(const Study& study, int level) {
    return graphVariable(study.isBlocked(level) ? NB : NT, level);
}

GraphVariable numberAtTop(const Study& study) { return numberOfUnits(study, study.NumLevels); }

GraphVariable GraphKey::bound(const Study& study) const {
    return variable->isCount() ? numberOfUnits(study, variable.level) : variable;
}

bool GraphKey::holds(const GraphVariable& other) const {
    const bool bothCount = other && other->isCount() && variable->isCount();
    return bothCount ? other.level == variable.level : other == variable;
}

const std::vector<GraphKey>& graphKeys() {
    static const std::vector<GraphKey> keys = makeKeys();
    return keys;
}

std::string GetTitleX(const Study& study, const GraphVariable& variable) {
    return variable ? filledIn(study, variable.level, variable->titleX) : "";
}

std::string GetTitleL(const Study& study, const GraphVariable& variable) {
    return variable ? filledIn(study, variable.level, variable->titleL) : "";
}

std::string_view countSuffix(const GraphVariable& variable) {
    if (variable.is(NT))
        return " per condition";
    return variable.is(NB) ? " (blocked)" : "";
}

}  // namespace lorvane
