// All tools and bands of the program.
#include "screen/tool_book.h"

#include <algorithm>
#include <utility>

#include "screen/tool_table.h"

namespace lorvane {

ToolBook::ToolBook() : tools_(makeTools()), bands_(makeBands()) {
    for (std::size_t i = 0; i < tools_.size(); ++i)
        byName_.emplace(tools_[i].Name, i);
}

const Tool* ToolBook::find(std::string_view name) const {
    const auto found = byName_.find(name);
    return found == byName_.end() ? nullptr : &tools_[found->second];
}

Tool* ToolBook::find(std::string_view name) { return const_cast<Tool*>(std::as_const(*this).find(name)); }

const Band* ToolBook::band(std::string_view name) const {
    const auto found =
        std::find_if(bands_.begin(), bands_.end(), [&](const Band& band) { return band.Name == name; });
    return found == bands_.end() ? nullptr : &*found;
}

void ToolBook::setCaption(std::string_view name, std::string caption) {
    if (Tool* tool = find(name))
        tool->Caption = std::move(caption);
}

void ToolBook::setChecked(std::string_view name, bool checked) {
    if (Tool* tool = find(name))
        tool->Checked = checked;
}

void ToolBook::setEnabled(std::string_view name, bool enabled) {
    if (Tool* tool = find(name))
        tool->Enabled = enabled;
}

void ToolBook::setVisible(std::string_view name, bool visible) {
    if (Tool* tool = find(name))
        tool->Visible = visible;
}

void ToolBook::checkOnly(std::initializer_list<std::string_view> group, std::string_view checked) {
    for (const std::string_view name : group)
        setChecked(name, name == checked);
}

void ToolBook::registerNames(ControlRegistry& registry) const {
    for (const Tool& tool : tools_) {
        const std::string name = "tool:" + tool.Name;
        registry.add(name + ".Caption", &tool.Caption);
        registry.add(name + ".ToolTipText", &tool.ToolTipText);
        registry.add(name + ".Checked", &tool.Checked);
        registry.add(name + ".Visible", &tool.Visible);
        registry.add(name + ".Enabled", &tool.Enabled);
    }
}

}  // namespace lorvane
