// Display model of a small dialog.
#include "screen/dialog.h"

#include <algorithm>
#include <cassert>
#include <utility>

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

void Dialog::registerNames(ControlRegistry& registry) const {
    registry.add(name + ".Caption", &title.Caption);
    registry.add(name + ".pnlPrompt", sense);
    registry.add(name + "." + noteName, note);
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
    for (const auto* row : {&fieldButtons, &buttons}) {
        for (const DialogButton& button : *row)
            registry.add(button.control + ".Caption", &button.caption);
    }
}

// A button of a dialog that is not open does nothing.
void Dialog::registerEvents(EventRegistry& events, const std::function<bool()>& isOpen) {
    for (DialogField& field : fields)
        events.addTextBox(field.control, field.box);
    const auto onClick = [&](const std::string& control, const std::function<void()>& press) {
        events.onClick(control, [press, isOpen] {
            if (isOpen())
                press();
        });
    };
    for (const DialogOption& option : options)
        onClick(option.control, option.press);
    for (const auto* row : {&fieldButtons, &buttons}) {
        for (const DialogButton& button : *row)
            onClick(button.control, button.press);
    }
}

}  // namespace lorvane
