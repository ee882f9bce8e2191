// Display model of a small dialog.
#include "screen/dialog.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "base/number_text.h"
#include "base/utf8.h"

namespace lorvane {

const TextBox& Dialog::box(std::string_view control) const {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const DialogField& field) { return field.control == control; });
    assert(found != fields.end());
    return found->box;
}

TextBox& Dialog::box(std::string_view control) {
    return const_cast<TextBox&>(std::as_const(*this).box(control));
}

void Dialog::begin() {
    ++openings;
    refusal.clear();
    for (DialogField& field : fields) {
        field.atOpening = field.box.Text;
        field.trouble = false;
    }
}

bool Dialog::isChanged() const {
    return std::any_of(fields.begin(), fields.end(),
                       [](const DialogField& field) { return field.box.Text != field.atOpening; });
}

void Dialog::refuse(std::string_view reason, const std::vector<std::string>& controls) {
    refusal = trimmed(reason);
    for (DialogField& field : fields)
        field.trouble = std::find(controls.begin(), controls.end(), field.control) != controls.end();
}

void Dialog::takeTyped(DialogField& field) {
    if (!refusal.empty()) {
        refusal.clear();
        for (DialogField& marked : fields)
            marked.trouble = false;
    }
    if (field.entry != DialogEntry::name || field.box.Text == field.atOpening)
        return;
    const std::string_view held = firstLetters(field.box.Text, mostLettersOfName);
    if (held.size() == field.box.Text.size())
        return;
    field.box.Text = held;
    refuse("A name has at most " + std::to_string(mostLettersOfName) + " characters. The rest was cut.", {});
}

void Dialog::registerNames(ControlRegistry& registry) const {
    registry.add(name + ".Caption", &title.Caption);
    registry.add(name + ".pnlPrompt", sense);
    registry.add(name + "." + noteName, note);
    registry.add(name + ".Refusal", &refusal);
    if (!heading.Caption.empty())
        registry.add(name + ".pnlHeading", heading);
    if (!window)
        registry.add(name + ".Visible", &open);
    for (const DialogOption& option : options)
        registry.add(option.control, option.option);
    for (const DialogField& field : fields) {
        registry.add(field.control + ".Text", &field.box.Text);
        registry.add(field.control + ".Enabled", &field.box.Enabled);
        registry.add(field.control + ".BackColor",
                     [&field]() -> ControlValue { return field.trouble ? refusedColour : normalBackground; });
        registry.add(field.labelName.empty() ? field.control + ".Label" : field.labelName, field.label);
    }
    for (const auto* row : {&fieldButtons, &sideButtons, &buttons}) {
        for (const DialogButton& button : *row)
            registry.add(button.control + ".Caption", &button.caption);
    }
}

// A button of a dialog that is not open does nothing.
void Dialog::registerEvents(EventRegistry& events, const std::function<bool()>& isOpen) {
    for (DialogField& field : fields) {
        events.addTextBox(field.control, field.box);
        events.onTyped(field.control, [this, &field] { takeTyped(field); });
    }
    const auto onClick = [&](const std::string& control, const std::function<void()>& press) {
        events.onClick(control, [press, isOpen] {
            if (isOpen())
                press();
        });
    };
    for (const DialogOption& option : options)
        onClick(option.control, option.press);
    for (const auto* row : {&fieldButtons, &sideButtons, &buttons}) {
        for (const DialogButton& button : *row)
            onClick(button.control, button.press);
    }
}

}  // namespace lorvane
