// The book of commands.
#include "screen/command_book.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/names.h"

namespace lorvane {

namespace {

// Screens with commands of their own.
constexpr std::string_view screens[] = {"xPlot.", "frmPrint."};

constexpr const char* dots = "\u2026";

// A caption as menus show it: what opens a dialog ends in three dots.
std::string shownCaption(std::string caption, bool opensDialog) {
    if (opensDialog)
        caption = caption.substr(0, caption.find_last_not_of(" .") + 1) + dots;
    return caption;
}

}  // namespace

CommandBook::CommandBook(std::vector<Command> commands, std::vector<Band> bands)
    : commands_(std::move(commands)), bands_(std::move(bands)) {
    for (const Command& command : commands_)
        tools_.push_back(command.tool);
    for (std::size_t i = 0; i < commands_.size(); ++i) {
        if (!byKey_.emplace(commands_[i].tool.Name, i).second)
            throw std::logic_error("The command \"" + commands_[i].tool.Name +
                                   "\" stands twice in the book.");
    }
    check();
}

void CommandBook::check() const {
    for (const Band& band : bands_) {
        for (const BandEntry& entry : band.entries) {
            const bool missing = (entry.kind == BandEntry::Kind::tool && find(entry.name) == nullptr) ||
                                 (entry.kind == BandEntry::Kind::band && this->band(entry.name) == nullptr);
            if (missing)
                throw std::logic_error("The menu \"" + band.Name + "\" names \"" + entry.name +
                                       "\", which the book of commands lacks.");
        }
    }
}

std::unordered_map<std::string_view, std::size_t>::const_iterator
CommandBook::place(std::string_view key) const {
    const auto found = byKey_.find(key);
    if (found != byKey_.end())
        return found;
    for (const std::string_view screen : screens) {
        if (key.starts_with(screen))
            return byKey_.find(key.substr(screen.size()));
    }
    return found;
}

bool CommandBook::run(std::string_view key) const {
    const auto found = place(key);
    if (found == byKey_.end() || !commands_[found->second].run)
        return false;
    commands_[found->second].run();
    return true;
}

void CommandBook::sync() {
    for (std::size_t i = 0; i < commands_.size(); ++i) {
        const Command& command = commands_[i];
        const ToolState state = command.state ? command.state() : ToolState();
        Tool& tool = tools_[i];
        tool.Checked = state.checked;
        tool.Visible = state.visible;
        tool.Enabled = state.enabled && command.run != nullptr;
        tool.Caption = state.caption.empty() ? command.tool.Caption : state.caption;
        tool.Shown = shownCaption(state.shown.empty() ? tool.Caption : state.shown, tool.opensDialog);
        tool.Reason = tool.Enabled ? "" : state.reason.empty() ? tool.ToolTipText : state.reason;
    }
}

const Tool* CommandBook::find(std::string_view key) const {
    const auto found = place(key);
    return found == byKey_.end() ? nullptr : &tools_[found->second];
}

const Command* CommandBook::row(std::string_view key) const {
    const auto found = place(key);
    return found == byKey_.end() ? nullptr : &commands_[found->second];
}

const Band* CommandBook::band(std::string_view name) const {
    const auto found =
        std::find_if(bands_.begin(), bands_.end(), [&](const Band& band) { return band.Name == name; });
    return found == bands_.end() ? nullptr : &*found;
}

std::string CommandBook::nearest(std::string_view key) const {
    std::vector<std::string> known;
    for (const Tool& tool : tools_)
        known.push_back(tool.Name);
    return nearestName(key, known);
}

void CommandBook::registerNames(ControlRegistry& registry) const {
    for (const Tool& tool : tools_) {
        const std::string name = "tool:" + tool.Name;
        registry.add(name + ".Caption", &tool.Caption);
        registry.add(name + ".ToolTipText", &tool.ToolTipText);
        registry.add(name + ".Checked", &tool.Checked);
        registry.add(name + ".Visible", &tool.Visible);
        registry.add(name + ".Enabled", &tool.Enabled);
        registry.add(name + ".Shown", &tool.Shown);
        registry.add(name + ".Reason", &tool.Reason);
    }
}

}  // namespace lorvane
