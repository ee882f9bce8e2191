// What a field is, in words.
#include "session/field_words.h"

#include <cctype>
#include <cmath>

#include "base/letter_case.h"
#include "base/number_text.h"
#include "session/currency.h"

namespace lorvane {

namespace {

std::string armWords(const Study& s, FieldRef field) {
    if (field->isLinked(s, field.index))
        return ", " + s.treatedName() + " and " + s.controlName() + " linked";
    return ", " + (field->cell.form == CellForm::treatedArm ? s.treatedName() : s.controlName());
}

// What stands in the place of a word in braces.
std::string filling(const Study& s, FieldRef field, std::string_view place) {
    if (place == "level")
        return s.txtName(field.index);
    if (place == "units")
        return lowerCased(s.txtName(field.index));
    if (place == "arm")
        return armWords(s, field);
    if (place == "Control")
        return s.controlName();
    if (place == "form")
        return s.DType == DTypes::within ? "within" : "total";
    return lowerCased(place == "control" ? s.controlName() : s.treatedName());
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
    return words + ". Up and Down change it by " + shortestText(stepSize(state, field)) +
           ". Enter opens it for typing.";
}

std::string linkWords(const Study& s, FieldRef field) {
    return field->isLinked(s, field.index) ? "Unlink the two groups" : "Link the two groups";
}

std::string stepWords(const Study& s, FieldRef field) {
    constexpr std::string_view arm = "{arm}";
    std::string_view pattern = field->words.empty() ? field->stem : field->words;
    if (field->isLinked != nullptr && field->isLinked(s, field.index) && pattern.ends_with(arm))
        pattern.remove_suffix(arm.size());
    return inSentence(filledIn(s, field, pattern));
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
