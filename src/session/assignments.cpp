// Values for fields by name.
#include "session/assignments.h"

#include <algorithm>

#include "base/letter_case.h"
#include "base/names.h"
#include "base/number_text.h"
#include "session/field_words.h"
#include "session/structure.h"

namespace lorvane {

namespace {

// The last value that is given for a name.
const Assignment* findAssignment(std::span<const Assignment> values, std::string_view name) {
    const auto found = std::find_if(values.rbegin(), values.rend(),
                                    [&](const Assignment& value) { return value.name == name; });
    return found == values.rend() ? nullptr : &*found;
}

int wholeOf(const Assignment& assignment) { return static_cast<int>(std::get<double>(assignment.value)); }

std::optional<bool> readFlag(std::string_view text) {
    const std::string lower = lowerCased(trimmed(text));
    if (lower == "true" || lower == "1")
        return true;
    if (lower == "false" || lower == "0")
        return false;
    return std::nullopt;
}

enum class Kind { choices, values };

void check(const Study& study, std::span<const Assignment> values, Kind kind, ValueSource source) {
    for (const Assignment& value : values) {
        const FieldRef field = writableField(value.name);
        if (field->isDesignChoice != (kind == Kind::choices))
            continue;
        const std::string why = refusal(study, field, value.value, source);
        if (!why.empty())
            throw UseProblem(why);
    }
}

// The number of levels moves the randomization to the top; a level of randomization of its own comes after
// it.
void writeChoices(SessionState& state, std::span<const Assignment> values) {
    Study& study = state.study;
    for (const Assignment& value : values) {
        const FieldRef field = writableField(value.name);
        if (field->isDesignChoice && field->stem != "NumLevels" && field->stem != "RandomizedLevel")
            writeField(state, field, value.value);
    }
    const Assignment* levels = findAssignment(values, "NumLevels");
    if (levels != nullptr && wholeOf(*levels) != study.NumLevels)
        ApplyNumLevels(study, wholeOf(*levels));
    const Assignment* randomized = findAssignment(values, "RandomizedLevel");
    if (randomized == nullptr)
        return;
    if (wholeOf(*randomized) > study.NumLevels)
        throw UseProblem("RandomizedLevel must lie from 1 to " + std::to_string(study.NumLevels) +
                         ", the number of levels.");
    DoRandomize(study, wholeOf(*randomized));
}

void writeValues(SessionState& state, std::span<const Assignment> values) {
    for (const Assignment& value : values) {
        const FieldRef field = writableField(value.name);
        if (!field->isDesignChoice)
            writeField(state, field, value.value);
    }
}

// What undo calls a change of these values.
std::string nameOf(const Study& study, std::span<const Assignment> values) {
    return values.size() == 1 ? stepWords(study, writableField(values[0].name)) : "values";
}

}  // namespace

FieldRef writableField(const std::string& name) {
    const auto field = findField(name);
    if (!field || !(*field)->isWritable)
        throw UseProblem("There is no field " + inQuotes(name) + "; the nearest is \"" + nearestField(name) +
                         "\".");
    return *field;
}

Assignment parseAssignment(const std::string& name, const std::string& text) {
    const FieldKind kind = writableField(name)->member.kind;
    if (kind == FieldKind::text)
        return {name, text};
    if (kind == FieldKind::flag) {
        if (const auto flag = readFlag(text))
            return {name, *flag};
        throw UseProblem(name + " takes true or false, not " + inQuotes(text) + ".");
    }
    if (const auto number = readNumber(text))
        return {name, *number};
    throw UseProblem(name + " takes a number, not " + unreadNumber(text));
}

void loadValues(Session& session, std::span<const Assignment> values) {
    check(session.study(), values, Kind::choices, ValueSource::file);
    check(session.study(), values, Kind::values, ValueSource::file);
    session.edit({"", Reach::anew, IfFault::undo}, [&](SessionState& state) {
        startAnew(state);
        state.scenarios = ScenarioGrid();
        writeChoices(state, values);
        writeValues(state, values);
    });
    session.setCurrentFile("");
}

void setValues(Session& session, std::span<const Assignment> values) {
    check(session.study(), values, Kind::choices, ValueSource::dialog);
    session.edit({nameOf(session.study(), values), Reach::study, IfFault::undo}, [&](SessionState& state) {
        writeChoices(state, values);
        check(state.study, values, Kind::values, ValueSource::dialog);
        writeValues(state, values);
    });
}

void enterValue(Session& session, FieldRef field, double value) {
    session.edit({stepWords(session.study(), field)},
                 [&](SessionState& state) { enterField(state, field, value); });
}

}  // namespace lorvane
