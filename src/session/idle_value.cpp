// Whether a value that is entered counts for anything.
#include "session/idle_value.h"

#include "base/names.h"
#include "base/number_text.h"

namespace lorvane {

namespace {

bool isShown(const Study& s, FieldRef field) {
    return field->cell.shown == nullptr || field->cell.shown(s, field.index);
}

std::string setting(FieldRef choice, double value) {
    const std::string words = choice.name() + "=" + shortestText(value);
    return choice.name().find(' ') == std::string::npos ? "--set " + words : "--set \"" + words + "\"";
}

// The fewest choices, at most so many, under which the field counts; empty when there are none.
std::string neededChoices(SessionState& state, FieldRef field, int most) {
    std::string needed;
    for (int count = 1; count <= most && needed.empty(); ++count) {
        forEachField([&](FieldRef choice) {
            if (!needed.empty() || !choice->isDesignChoice || choice->stem == "NumLevels")
                return;
            const FieldValue present = readField(state, choice);
            for (const double value : choice->choices) {
                writeField(state, choice, value);
                const std::string others = count == 1 ? "" : neededChoices(state, field, count - 1);
                if (needed.empty() && (isShown(state.study, field) || !others.empty()))
                    needed = setting(choice, value) + (others.empty() ? "" : " " + others);
            }
            writeField(state, choice, present);
        });
    }
    return needed;
}

// The field for the arms of a level where it is written for its blocks, and the other way round.
std::string sisterOf(FieldRef field) {
    const std::string stem(field->stem.substr(0, field->stem.size() - 1));
    const auto named = [&](const char* end) { return indexedName(stem + end, field.index); };
    if (field->cell.form != CellForm::blocks)
        return named("B");
    return named("T") + " and " + named("C");
}

bool isArmOrBlock(CellForm form) {
    return form == CellForm::treatedArm || form == CellForm::controlArm || form == CellForm::blocks;
}

}  // namespace

std::string whyIdle(const SessionState& state, FieldRef field) {
    const Study& s = state.study;
    if (field->cell.stem.empty())
        return "";
    const std::string start = field.name() + " has no effect in this study; ";
    if (field->index == FieldIndex::level && field.index > s.NumLevels)
        return start + "add " + setting({&fieldOf("NumLevels"), 0}, field.index) + ".";
    if (isShown(s, field))
        return "";
    if (isArmOrBlock(field->cell.form))
        return start + "set " + sisterOf(field) + ".";
    SessionState trial = state;
    const std::string needed = neededChoices(trial, field, 2);
    return needed.empty() ? start + "leave it out." : start + "add " + needed + ".";
}

}  // namespace lorvane
