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

/// What is typed into a field.
enum class DialogEntry {
    number,
    text,
    name  ///< a text of at most mostLettersOfName letters; a longer one from a file stays until it is changed
};

struct DialogField {
    std::string control;  ///< "frmAlpha.txtAlpha"
    Panel label;
    TextBox box = {};
    std::string labelName = {};  ///< the label's own name, where it has one
    bool trouble = false;        ///< its value was refused
    DialogEntry entry = DialogEntry::number;
    std::optional<std::string> unit = {};  ///< behind it; none: it has no place for one
    std::string atOpening = {};            ///< the text that it was opened with
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

/// The last button is the primary one, which Enter presses.
struct Dialog {
    std::string name;  ///< "frmAlpha"
    std::optional<WindowId>
        window;            ///< its number, where it has one; the registry of windows knows its state
    std::string noteName;  ///< "pnlLimits"
    std::vector<DialogField> fields = {};
    std::vector<DialogButton> buttons = {};
    bool open = false;  ///< for a dialog without a number
    Panel title = {};
    Panel sense = {};          ///< one line of sense, above the fields
    Panel note = {};           ///< limits or an explanation, below them
    Panel heading = {};        ///< over the sense; empty: the title stands there
    std::string refusal = {};  ///< why the last values were refused, until one of them is changed
    std::vector<DialogOption> options = {};
    std::vector<DialogButton> fieldButtons = {};  ///< that change which fields there are
    std::vector<DialogButton> sideButtons = {};   ///< at the left, apart from those that end the dialog
    std::size_t cancel = 0;                       ///< which of several buttons is Cancel
    int openings = 0;                             ///< how often it was opened, also while it was open already
    bool isBegun = false;  ///< the text was begun on a cell, and the next letters come behind it

    /// A field by its control; it must exist.
    TextBox& box(std::string_view control);
    const TextBox& box(std::string_view control) const;

    /// What is over its fields.
    const std::string& headingText() const {
        return heading.Caption.empty() ? title.Caption : heading.Caption;
    }

    /// Marks its texts as those that it opens with, and forgets what was refused before.
    void begin();

    /// Whether another text was typed since.
    bool isChanged() const;

    /// Keeps why values are refused, and marks their fields. The blanks around the reason go.
    void refuse(std::string_view reason, const std::vector<std::string>& controls);

    /// What follows a change of a text: it is judged anew when a button is pressed, and a name is cut.
    void takeTyped(DialogField& field);

    /// Enters its words and texts under their names, and what can be done with it.
    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events, const std::function<bool()>& isOpen);
};

/// Letters of a name that a person gives.
inline constexpr std::size_t mostLettersOfName = 60;

}  // namespace lorvane
