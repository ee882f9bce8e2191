// Display model of a small dialog: its words, its fields, its buttons. A view shows it as it stands.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/event_registry.h"
#include "platform/window_id.h"

namespace lorvane {

/// The ground of a field or a note that tells of a refused value, as scripts read it.
inline constexpr Colour refusedColour{255, 155, 155};

struct DialogField {
    std::string control;  ///< "frmAlpha.txtAlpha"
    Panel label;
    TextBox box = {};
    std::string labelName = {};  ///< the label's own name, where it has one
    bool trouble = false;        ///< its value was refused
};

/// One of several choices above the fields.
struct DialogOption {
    std::string control;
    Option option;
    std::function<void()> press;
};

struct DialogButton {
    std::string control;
    std::string caption;
    std::function<void()> press;
};

/// The last button is the primary one, which Enter presses; the first of several is Cancel.
struct Dialog {
    std::string name;  ///< "frmAlpha"
    std::optional<WindowId>
        window;            ///< its number, where it has one; the registry of windows knows its state
    std::string noteName;  ///< "pnlLimits"
    std::vector<DialogField> fields = {};
    std::vector<DialogButton> buttons = {};
    bool open = false;  ///< for a dialog without a number
    Panel title = {};
    Panel sense = {};  ///< one line of sense, above the fields
    Panel note = {};   ///< limits or an explanation, below them
    std::vector<DialogOption> options = {};
    std::vector<DialogButton> fieldButtons = {};  ///< that change which fields there are
    int openings = 0;                             ///< how often it was opened, also while it was open already
    bool isBegun = false;  ///< the text was begun on a cell, and the next letters come behind it

    /// A field by its control; it must exist.
    TextBox& box(std::string_view control);
    const TextBox& box(std::string_view control) const;

    /// Enters its words and texts under their names, and what can be done with it.
    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events, const std::function<bool()>& isOpen);
};

}  // namespace lorvane
