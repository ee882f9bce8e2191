// Every writable value of a study by name.
#include "screen/study_fields.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"
#include "base/utf8.h"

namespace lorvane {

namespace {

constexpr FieldLimits sizeLimits{1, true, 1000000, true};
constexpr FieldLimits costLimits{0, true, 1000000, true};
constexpr FieldLimits proportionBelowOne{0, true, 1, false};
constexpr FieldLimits openProportion{0, false, 1, false};
constexpr FieldLimits ratioLimits{0, false, 1000, true};
constexpr FieldLimits risk{0, true, 1, true};
constexpr double largestSpanOfRisks = 1;
constexpr std::size_t longestName = 255;

bool contains(const std::vector<double>& values, double value) {
    return std::find(values.begin(), values.end(), value) != values.end();
}

std::string listWords(const std::vector<double>& values) {
    std::string words;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0)
            words += i + 1 == values.size() ? " or " : ", ";
        words += shortestText(values[i]);
    }
    return words;
}

std::string numberRefusal(const StudyFields& fields, const StudyField& field, double value,
                          ValueSource source) {
    const std::vector<double>& choices = field.choices;
    if (!std::isfinite(value))
        return field.name + " must be a finite number.";
    if (!choices.empty() && !contains(choices, value))
        return field.name + " must be " + listWords(choices) + ", not " + shortestText(value) + ".";
    const FieldLimits limits = fields.limitsOf(field);
    const bool binds = source == ValueSource::dialog || field.isStrict;
    if (binds && !limits.holds(value))
        return field.name + " must lie " + limits.words() + ", not at " + shortestText(value) + ".";
    return "";
}

std::string textRefusal(const StudyField& field, const std::string& text) {
    if (text.size() > longestName)
        return field.name + " must be no longer than " + std::to_string(longestName) + " bytes.";
    if (!isCleanText(text))
        return field.name + " must be UTF-8 text without NUL.";
    return "";
}

const char* kindWords(const FieldTarget& target) {
    if (std::holds_alternative<std::string*>(target))
        return " takes a text.";
    return std::holds_alternative<bool*>(target) ? " takes true or false." : " takes a number.";
}

bool isNumber(const FieldTarget& target) {
    return std::holds_alternative<double*>(target) || std::holds_alternative<int*>(target);
}

}  // namespace

bool FieldLimits::holds(double value) const {
    const bool aboveLow = lowInclusive ? value >= low : value > low;
    const bool belowHigh = highInclusive ? value <= high : value < high;
    return aboveLow && belowHigh;
}

std::string FieldLimits::words() const {
    return std::string(lowInclusive ? "from " : "above ") + shortestText(low) +
           (highInclusive ? " to " : (lowInclusive ? " to below " : " and below ")) + shortestText(high);
}

StudyFields::StudyFields(Study& study, SessionSettings& settings) : study_(study) {
    addChoices(study);
    addEffect(study);
    addLevels(study);
    addSettings(study, settings);
    for (std::size_t i = 0; i < fields_.size(); ++i)
        byName_.emplace(fields_[i].name, i);
}

StudyField& StudyFields::add(std::string name, FieldTarget target, FieldLimits limits) {
    StudyField field;
    field.name = std::move(name);
    field.target = target;
    field.limits = limits;
    fields_.push_back(std::move(field));
    return fields_.back();
}

StudyField& StudyFields::addChoice(std::string name, int& target, std::vector<double> choices) {
    StudyField& field = add(std::move(name), &target);
    field.choices = std::move(choices);
    return field;
}

void StudyFields::addPerLevel(const char* stem, PerLevel<double>& values, FieldLimits limits,
                              int* FmtDecDigits) {
    for (int level = lowestLevel; level <= highestLevel; ++level)
        add(indexedName(stem, level), &values(level), limits).FmtDecDigits = FmtDecDigits;
}

void StudyFields::addChoices(Study& s) {
    const std::size_t first = fields_.size();
    addChoice("NumLevels", s.NumLevels, {2, 3, 4});
    addChoice("RandomizedLevel", s.RandomizedLevel, {1, 2, 3, 4});
    addChoice("DataType", s.DataType, {1, 2});
    addChoice("BinaryType", s.BinaryType, {1, 2, 3, 4});
    addChoice("DType", s.DType, {1, 2});
    addChoice("PowerOption", s.PowerOption, {1, 2});
    addChoice("ICC Metric", s.IccMetric, {1, 2});
    addChoice("Tau-sq Metric", s.TauSqMetric, {1, 2, 3});
    for (std::size_t i = first; i < fields_.size(); ++i)
        fields_[i].isDesignChoice = true;
}

void StudyFields::addEffect(Study& s) {
    FieldDecimals& decimals = s.decimals;
    add("txtd", &s.txtd, {-10, true, 10, true}).FmtDecDigits = &decimals.txtd;
    add("txtPrev", &s.txtPrev, openProportion).FmtDecDigits = &decimals.txtPrev;
    add("txtP2", &s.txtP2, openProportion).FmtDecDigits = &decimals.txtP2;
    add("txtOR", &s.txtOR, ratioLimits).FmtDecDigits = &decimals.txtOR;
    add("txtRR", &s.txtRR, ratioLimits).FmtDecDigits = &decimals.txtRR;
    add("txtRD", &s.txtRD, {-0.9, true, 0.9, true}).FmtDecDigits = &decimals.txtRD;
    add("txtMean", &s.txtMean, {-1000000, true, 1000000, true}).FmtDecDigits = &decimals.txtMean;
    add("txtSD", &s.txtSD, {0, false, 1000000, true}).FmtDecDigits = &decimals.txtSD;
    add("txtAlpha", &s.txtAlpha, {0.001, true, 0.49, true});
    addChoice("txtTails", s.txtTails, {1, 2});
    add("ReqPower", &s.ReqPower).choices = {0.8, 0.85, 0.9, 0.95, 0.99};
}

void StudyFields::addLevels(Study& s) {
    for (int level = lowestLevel; level <= highestLevel; ++level)
        add(indexedName("txtName", level), &s.txtName(level));
    for (int group = 1; group <= 2; ++group)
        add(indexedName("txtGroupName", group), &s.txtGroupName(group));
    addPerLevel("txtNT", s.txtNT, sizeLimits);
    addPerLevel("txtNC", s.txtNC, sizeLimits);
    addPerLevel("txtNB", s.txtNB, sizeLimits);
    addPerLevel("txtICC", s.txtICC, proportionBelowOne, &s.decimals.txtICC);
    addPerLevel("txtMRange", s.txtMRange, {0, true, 1000000, true}, &s.decimals.txtMRange);
    addPerLevel("txtTauSq", s.txtTauSq, {0, true, 1000000, true}, &s.decimals.txtTauSq);
    addPerLevel("txtDRange", s.txtDRange, {0, true, 100000, false}, &s.decimals.txtDRange);
    addPerLevel("txtOmega", s.txtOmega, {0, true, 2, true}, &s.decimals.txtOmega);
    addPerLevel("txtQ", s.txtQ, {0, true, 99, true});
    addPerLevel("txtRsq", s.txtRsq, proportionBelowOne, &s.decimals.txtRsq);
    addPerLevel("txtModel", s.txtModel, {0, true, 1, true});
    addPerLevel("txtPop", s.txtPop, {});
    addPerLevel("txtCostT", s.txtCostT, costLimits);
    addPerLevel("txtCostC", s.txtCostC, costLimits);
    addPerLevel("txtCostB", s.txtCostB, costLimits);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        add("Link N" + std::to_string(level), &s.LinkN(level));
        add("Link Cost" + std::to_string(level), &s.LinkCost(level));
    }
}

void StudyFields::addSettings(Study& s, SessionSettings& settings) {
    add("MaxCost", &s.MaxCost, {0, false, std::numeric_limits<std::int32_t>::max(), true}).isStrict = true;
    addChoice("Powermode", s.Powermode, {DisplayModes::digits, DisplayModes::graph});
    addChoice("Costmode", s.Costmode, {DisplayModes::digits, DisplayModes::graph});
    add("txtDelta", &s.limits.txtDelta, {0.0001, true, 0.1, true});
    addChoice("RangeMode", s.limits.RangeMode, {RangeModes::span, RangeModes::limits});
    addPerLevel("txtLL", s.limits.txtLL, risk);
    addPerLevel("txtUL", s.limits.txtUL, risk);
    add("AllowLowCellCounts", &settings.AllowLowCellCounts);
    addChoice("IterationsForOptimal", settings.IterationsForOptimal, {5, 10, 20, 30});
}

const StudyField* StudyFields::find(std::string_view name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : &fields_[found->second];
}

std::string StudyFields::nearest(std::string_view name) const {
    std::vector<std::string> names;
    names.reserve(fields_.size());
    for (const StudyField& field : fields_)
        names.push_back(field.name);
    return nearestName(name, names);
}

FieldLimits StudyFields::limitsOf(const StudyField& field) const {
    FieldLimits limits = field.limits;
    if (study_.isBinary() && splitName(field.name).stem == "txtMRange")
        limits.high = largestSpanOfRisks;
    return limits;
}

std::string refusal(const StudyFields& fields, const StudyField& field, const FieldValue& value,
                    ValueSource source) {
    if (const double* number = std::get_if<double>(&value); number != nullptr && isNumber(field.target))
        return numberRefusal(fields, field, *number, source);
    if (const std::string* text = std::get_if<std::string>(&value);
        text != nullptr && std::holds_alternative<std::string*>(field.target))
        return textRefusal(field, *text);
    if (std::holds_alternative<bool>(value) && std::holds_alternative<bool*>(field.target))
        return "";
    return field.name + kindWords(field.target);
}

void writeField(const StudyField& field, const FieldValue& value) {
    if (double* const* number = std::get_if<double*>(&field.target))
        **number = std::get<double>(value);
    else if (int* const* whole = std::get_if<int*>(&field.target))
        **whole = static_cast<int>(std::get<double>(value));
    else if (bool* const* flag = std::get_if<bool*>(&field.target))
        **flag = std::get<bool>(value);
    else
        *std::get<std::string*>(field.target) = std::get<std::string>(value);
}

FieldValue readField(const StudyField& field) {
    if (double* const* number = std::get_if<double*>(&field.target))
        return **number;
    if (int* const* whole = std::get_if<int*>(&field.target))
        return static_cast<double>(**whole);
    if (bool* const* flag = std::get_if<bool*>(&field.target))
        return **flag;
    return *std::get<std::string*>(field.target);
}

}  // namespace lorvane
