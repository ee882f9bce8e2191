// What a field is, in words.
#include "screen/field_words.h"

#include <cmath>
#include <string_view>

#include "base/names.h"
#include "base/number_text.h"
#include "screen/spin_table.h"

namespace lorvane {

namespace {

enum class Arm { none, treated, control };

struct LevelWords {
    std::string_view field;
    const char* before;  ///< stands before the name of the level
    bool lowerName;
    Arm arm = Arm::none;
};

constexpr LevelWords levelWords[] = {{"txtNT", "Number of ", true, Arm::treated},
                                     {"txtNC", "Number of ", true, Arm::control},
                                     {"txtNB", "Number of blocked ", true},
                                     {"txtICC", "ICC of ", false},
                                     {"txtMRange", "Span of ", false},
                                     {"txtTauSq", "Tau-squared of ", false},
                                     {"txtDRange", "Span of effects of ", false},
                                     {"txtOmega", "Omega of ", false},
                                     {"txtModel", "Model of ", false},
                                     {"txtQ", "Number of covariates at the level ", false},
                                     {"txtRsq", "R-sq at the level ", false},
                                     {"txtCostT", "Cost of ", true, Arm::treated},
                                     {"txtCostC", "Cost of ", true, Arm::control},
                                     {"txtCostB", "Cost of blocked ", true}};

struct StripWords {
    std::string_view field;
    const char* words;
};

constexpr StripWords stripWords[] = {{"txtMean", "Mean"},
                                     {"txtSD", "Standard deviation"},
                                     {"txtOR", "Odds ratio"},
                                     {"txtRR", "Risk ratio"},
                                     {"txtRD", "Risk difference"}};

std::string armWords(const Study& s, const LevelWords& row, int level) {
    const bool cost = row.field == "txtCostT" || row.field == "txtCostC";
    if (row.arm == Arm::none)
        return "";
    if (cost ? s.LinkCost(level) : s.LinkN(level))
        return ", " + s.treatedName() + " and " + s.controlName() + " linked";
    return ", " + (row.arm == Arm::treated ? s.treatedName() : s.controlName());
}

std::string eventRate(const std::string& group) { return "Event rate in " + lowerCased(group) + " group"; }

std::string stripFieldWords(const Study& s, std::string_view field) {
    if (field == "txtd")
        return s.DType == DTypes::within ? "Standardized mean difference, d (within)"
                                         : "Standardized mean difference, d (total)";
    if (field == "txtPrev")
        return eventRate(s.controlName());
    if (field == "txtP2")
        return eventRate(s.treatedName());
    for (const StripWords& row : stripWords) {
        if (row.field == field)
            return row.words;
    }
    return std::string(field);
}

// The step of a field in its own unit.
double stepSize(const SessionSettings& settings, const IndexedName& name, int decimals) {
    for (const SpinRow& row : spinRows()) {
        if (row.field == name.stem)
            return stepOf(row, name.index.value_or(0), settings) / std::pow(10, decimals);
    }
    return 1;
}

}  // namespace

std::string fieldWords(const Study& s, const std::string& field) {
    const IndexedName name = splitName(field);
    if (!name.index)
        return stripFieldWords(s, name.stem);
    for (const LevelWords& row : levelWords) {
        if (row.field != name.stem)
            continue;
        const std::string& level = s.txtName(*name.index);
        return row.before + (row.lowerName ? lowerCased(level) : level) + armWords(s, row, *name.index);
    }
    return field;
}

std::string fieldHint(const Study& s, const SessionSettings& settings, const std::string& field,
                      int decimals) {
    const IndexedName name = splitName(field);
    if (name.stem == "txtModel")
        return fieldWords(s, field) + ". Up makes it fixed, Down random.";
    return fieldWords(s, field) + ". Up and Down change it by " +
           shortestText(stepSize(settings, name, decimals)) + ". Enter opens it for typing.";
}

}  // namespace lorvane
