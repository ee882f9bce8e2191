// All tools and bands of the program: found by name, shown as the study stands.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/control_registry.h"
#include "platform/tools.h"

namespace lorvane {

class ToolBook {
public:
    /// The tools and bands as they stand before a study is shown.
    ToolBook();

    /// The tool of a name; null when there is none.
    Tool* find(std::string_view name);
    const Tool* find(std::string_view name) const;

    /// The band of a name; null when there is none.
    const Band* band(std::string_view name) const;

    const std::vector<Tool>& tools() const noexcept { return tools_; }
    const std::vector<Band>& bands() const noexcept { return bands_; }

    /// Setters for tools that exist; a name without a tool is ignored.
    void setCaption(std::string_view name, std::string caption);
    void setChecked(std::string_view name, bool checked);
    void setEnabled(std::string_view name, bool enabled);
    void setVisible(std::string_view name, bool visible);

    /// Checks one tool of a group and unchecks the others; a name outside the group unchecks all.
    void checkOnly(std::initializer_list<std::string_view> group, std::string_view checked);

    /// Enters every tool under "tool:NAME.Caption" and so on.
    void registerNames(ControlRegistry& registry) const;

private:
    std::vector<Tool> tools_;
    std::vector<Band> bands_;
    std::unordered_map<std::string_view, std::size_t> byName_;
};

}  // namespace lorvane
