// What a field is, in words.
#include "session/field_words.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <iterator>

#include "base/letter_case.h"
#include "base/number_text.h"
#include "session/currency.h"

namespace lorvane {

namespace {

constexpr std::string_view arm = "{arm}";

std::string armWords(const Study& s, FieldRef field) {
    if (field->isLinked(s, field.index))
        return ", " + s.treatedName() + " and " + s.controlName() + " linked";
    return ", " + (field->cell.form == CellForm::treatedArm ? s.treatedName() : s.controlName());
}

// Which arm the value is of, and what becomes of the other one.
std::string armSentence(const Study& s, FieldRef field) {
    const bool treated = field->cell.form == CellForm::treatedArm;
    const std::string& own = treated ? s.treatedName() : s.controlName();
    const std::string& other = treated ? s.controlName() : s.treatedName();
    return own + " group. " + other +
           (field->isLinked(s, field.index) ? " is linked and takes the same value."
                                            : " has a value of its own.");
}

// What the units of a level are counted in: a group, a unit of the level above, or the whole study.
std::string perWords(const Study& s, FieldRef field) {
    const std::string group = field.index == s.RandomizedLevel ? " per group" : "";
    if (field.index >= s.NumLevels)
        return group;
    return group + " in each of the " + lowerCased(s.txtName(field.index + 1));
}

std::string valuesWord(const Study& s, FieldRef field) {
    if (field.index == 1)
        return "scores";
    return s.isMeans() ? "means" : "risks";
}

// What stands in the place of a word in braces.
struct Place {
    std::string_view word;
    std::string (*filling)(const Study&, FieldRef);
};

constexpr Place places[] = {
    {"level", [](const Study& s, FieldRef field) { return s.txtName(field.index); }},
    {"units", [](const Study& s, FieldRef field) { return lowerCased(s.txtName(field.index)); }},
    {"lowest", [](const Study& s, FieldRef) { return lowerCased(s.txtName(lowestLevel)); }},
    {"arm", armWords},
    {"arms", armSentence},
    {"per", perWords},
    {"values", valuesWord},
    {"form",
     [](const Study& s, FieldRef) -> std::string { return s.DType == DTypes::within ? "within" : "total"; }},
    {"Control", [](const Study& s, FieldRef) { return s.controlName(); }},
    {"control", [](const Study& s, FieldRef) { return lowerCased(s.controlName()); }},
    {"treated", [](const Study& s, FieldRef) { return lowerCased(s.treatedName()); }}};

std::string filling(const Study& s, FieldRef field, std::string_view word) {
    const auto* found = std::find_if(std::begin(places), std::end(places),
                                     [&](const Place& place) { return place.word == word; });
    return found->filling(s, field);
}

// The step of the arrows in the field's own unit.
double stepSize(const SessionState& state, FieldRef field) {
    return stepOf(state.settings, field) / std::pow(10, decimalsOf(state.study, *field.field));
}

// A value that stands on the screen and is no copy of its twin.
bool isOwnOnScreen(const Study& s, FieldRef field) {
    const FieldCell& cell = field->cell;
    const bool shown = !cell.stem.empty() && field.index <= s.NumLevels &&
                       (cell.shown == nullptr || cell.shown(s, field.index));
    const bool copied = cell.form == CellForm::controlArm && field->isLinked(s, field.index);
    return shown && !copied;
}

std::string valueText(const SessionState& state, FieldRef field) {
    const double value = readNumberField(state, field);
    if (field->arrows == ArrowRule::twoStates)
        return value == SamplingModels::fixed ? "Fixed" : "Random";
    if (field->cell.isMoney)
        return amountText(value, state.settings.currency);
    return field->decimals == nullptr ? shortestText(value)
                                      : fixedText(value, decimalsOf(state.study, *field.field));
}

}  // namespace

std::string filledIn(const Study& s, FieldRef field, std::string_view pattern) {
    std::string words;
    for (std::size_t open; (open = pattern.find('{')) != std::string_view::npos;) {
        const std::size_t close = pattern.find('}', open);
        words += pattern.substr(0, open);
        words += filling(s, field, pattern.substr(open + 1, close - open - 1));
        pattern.remove_prefix(close + 1);
    }
    return words.append(pattern);
}

std::string fieldWords(const Study& s, FieldRef field) {
    return field->words.empty() ? field.name() : filledIn(s, field, field->words);
}

std::string briefWords(const Study& s, FieldRef field) { return filledIn(s, field, field->cell.brief); }

std::string fieldHint(const SessionState& state, FieldRef field) {
    const std::string words = fieldWords(state.study, field);
    if (field->arrows == ArrowRule::twoStates)
        return words + ". Up makes it fixed, Down random.";
    if (const std::string rest = restWords(state.study, field); !rest.empty())
        return words + ". " + rest;
    return words + ". Up and Down change it by " + shortestText(stepSize(state, field)) +
           ". Enter opens it for typing.";
}

std::string linkWords(const Study& s, FieldRef field) {
    return field->isLinked(s, field.index) ? "Unlink the two groups" : "Link the two groups";
}

std::string fieldHeading(const Study& s, FieldRef field) {
    std::string_view pattern = field->words.empty() ? field->stem : field->words;
    if (pattern.ends_with(arm))
        pattern.remove_suffix(arm.size());
    return filledIn(s, field, pattern);
}

std::string fieldSense(const Study& s, FieldRef field) { return filledIn(s, field, field->sense); }

std::string fieldUnit(const SessionState& state, FieldRef field) {
    if (field->cell.isMoney)
        return state.settings.currency.Symbol + " each";
    return filledIn(state.study, field, field->unit);
}

std::string entryWords(const Study& s, FieldRef field) {
    return (field->decimals == nullptr ? "a whole number " : "a number ") + limitsOf(s, *field.field).words();
}

std::string restWords(const Study& s, FieldRef field) {
    const bool follows = field->stem == "txtMRange" || field->stem == "txtICC";
    if (!follows || field.index == lowestLevel || !s.entersLimits())
        return "";
    return "It follows from the limits of the risks. Change them by Enter limits in the menu ICC.";
}

std::string stepWords(const Study& s, FieldRef field) {
    if (field->isLinked != nullptr && field->isLinked(s, field.index))
        return inSentence(fieldHeading(s, field));
    return inSentence(fieldWords(s, field));
}

std::string valueChange(const SessionState& from, const SessionState& to) {
    std::optional<FieldRef> changed;
    int count = 0;
    forEachField([&](FieldRef field) {
        if (!field->isDesignChoice && !isOwnOnScreen(to.study, field))
            return;
        if (readField(from, field) == readField(to, field))
            return;
        ++count;
        if (!field->isDesignChoice)
            changed = field;
    });
    if (count != 1 || !changed)
        return "";
    return ", " + valueText(from, *changed) + " to " + valueText(to, *changed);
}

std::string beginSentence(std::string text) {
    if (!text.empty())
        text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
    return text;
}

std::string inSentence(std::string text) {
    if (text.size() > 1 && std::islower(static_cast<unsigned char>(text[1])))
        text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
    return text;
}

}  // namespace lorvane
