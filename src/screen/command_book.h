// The book of commands: everything that menus, the tool bar and scripts can ask for, by key, with what it
// runs and how it stands; and the menus, which are lists of keys.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/control_registry.h"
#include "platform/tools.h"

namespace lorvane {

/// How a command stands at the moment.
struct ToolState {
    bool checked = false;
    bool visible = true;
    bool enabled = true;
    std::string caption = {};  ///< empty: the one of its row
    std::string reason = {};   ///< why it is not on offer; empty: its tip tells
    std::string shown = {};    ///< the caption in menus, where it tells more; empty: the caption
};

/// One row of the book.
struct Command {
    Tool tool;                         ///< key, caption, tip, sign, keys
    std::function<void()> run;         ///< none: the program has no subject for it, and it cannot be used
    std::function<ToolState()> state;  ///< none: it is always on offer
};

class CommandBook {
public:
    /// Throws std::logic_error for a key that stands twice, and for a menu that names a command or a menu
    /// which does not exist.
    CommandBook(std::vector<Command> commands, std::vector<Band> bands);

    /// Runs a command; false when there is none of that key or it has nothing to run.
    bool run(std::string_view key) const;

    /// Asks every command how it stands.
    void sync();

    /// The tool of a key, and the band of a name; null when there is none. A key may stand behind the name of
    /// its screen: "xPlot.Show cost".
    const Tool* find(std::string_view key) const;
    const Band* band(std::string_view name) const;

    /// A command as its row tells it, not as it stands; null when there is none of that key.
    const Command* row(std::string_view key) const;

    const std::vector<Tool>& tools() const noexcept { return tools_; }
    const std::vector<Band>& bands() const noexcept { return bands_; }

    /// The known key nearest to a wrong one.
    std::string nearest(std::string_view key) const;

    /// Enters every tool under "tool:NAME.Caption" and so on.
    void registerNames(ControlRegistry& registry) const;

private:
    void check() const;
    std::unordered_map<std::string_view, std::size_t>::const_iterator place(std::string_view key) const;

    std::vector<Command> commands_;
    std::vector<Tool> tools_;  ///< as they stand, in the order of the commands
    std::vector<Band> bands_;
    std::unordered_map<std::string_view, std::size_t> byKey_;
};

}  // namespace lorvane
