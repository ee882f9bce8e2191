// What a small dialog does with the screen that it belongs to.
#include "screen/dialog_window.h"

#include <utility>

namespace lorvane {

bool isOpen(const Design& design, const Dialog& dialog) {
    return dialog.window ? design.isOpen(*dialog.window) : dialog.open;
}

void open(Design& design, Dialog& dialog) {
    if (dialog.window)
        design.SynchForms(*dialog.window, WindowAction::open);
    dialog.open = true;
    dialog.begin();
}

void close(Design& design, Dialog& dialog) {
    if (dialog.window)
        design.SynchForms(*dialog.window, WindowAction::unload);
    dialog.open = false;
}

void refuse(Design& design, Dialog& dialog, const std::string& title, const std::string& reason,
            const std::vector<std::string>& controls) {
    dialog.refuse(reason, controls);
    design.tellRefusal(title, reason);
}

Panel panelOf(std::string caption) {
    Panel made;
    made.Caption = std::move(caption);
    return made;
}

DialogField dialogField(std::string control, Panel label, std::string labelName) {
    DialogField made;
    made.control = std::move(control);
    made.label = std::move(label);
    made.labelName = std::move(labelName);
    return made;
}

}  // namespace lorvane
