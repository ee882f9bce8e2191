// The commands that act on the value with the focus, and those that choose the model of a level.
#include "app/value_rows.h"

#include <string>

#include "session/field_words.h"
#include "session/structure.h"

namespace lorvane {

namespace {

using enum ToolCategory;
using P = const Program&;

constexpr const char* noFocus = "No value has the focus";

void enterFocused(P p) {
    if (const auto field = p.design.focus())
        p.dialogs.activate(*field);
}

ToolState canEnter(P p) {
    const auto field = p.design.focus();
    if (field && (*field)->arrows == ArrowRule::twoStates)
        return enabledIf(false, "A model is chosen, not typed");
    return enabledIf(field.has_value(), noFocus);
}

void toggleFocused(P p) {
    if (const auto field = p.design.focus())
        toggleLink(p.session, *field);
}

ToolState canToggle(P p) {
    const auto field = p.design.focus();
    if (!field || (*field)->isLinked == nullptr)
        return enabledIf(false, "The value with the focus is not one of two groups");
    return {.caption = std::string("&").append(linkWords(p.session.study(), *field))};
}

void tellOfFocused(P p) {
    if (const auto field = p.design.focus())
        p.details.openField(*field);
    else
        p.details.open();
}

const CommandRow valueTable[] = {
    {"Enter value",
     "&Enter a value",
     "Type the value that has the focus",
     command,
     enterFocused,
     canEnter,
     {.sign = Sign::edit, .opensDialog = true, .keyOfCell = "Enter"}},
    {"Link or unlink groups",
     "&Unlink the two groups",
     "Keep both groups at the same value, or let them differ",
     command,
     toggleFocused,
     canToggle,
     {.sign = Sign::link, .keyOfCell = "L"}},
    {"Details of value",
     "&Details of this value",
     "Explain the value that has the focus",
     command,
     tellOfFocused,
     nullptr,
     {.sign = Sign::details, .shortcut = "F1", .keyOfCell = "F1"}},
};

bool hasModel(P p, int level) {
    const Field& model = fieldOf("txtModel");
    return level <= p.session.study().NumLevels && model.cell.hasArrows(p.session.study(), level);
}

void addModel(std::vector<Command>& commands, P p, bool fixed, int level) {
    const FieldRef model{&fieldOf("txtModel"), level};
    commands.push_back(
        {toolOf(modelKey(fixed, level), fixed ? "&Fixed" : "&Random",
                fixed ? "The units are all that there are" : "The units are a sample of more", choice),
         [p, model, fixed] { stepField(p.session, model, fixed ? 1 : -1); },
         [p, model, fixed] {
             ToolState state = enabledIf(hasModel(p, model.index), "The model of this level is random");
             state.checked = (readNumberField(p.session.state(), model) == 1) == fixed;
             return state;
         }});
}

}  // namespace

std::string modelKey(bool fixed, int level) {
    return std::string(fixed ? "Fixed" : "Random") + " model for Level " + std::to_string(level);
}

void addValueCommands(std::vector<Command>& commands, const Program& program) {
    addCommands(commands, program, valueTable);
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        addModel(commands, program, false, level);
        addModel(commands, program, true, level);
    }
}

}  // namespace lorvane
