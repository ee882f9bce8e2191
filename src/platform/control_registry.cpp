// Every control by its name.
#include "platform/control_registry.h"

#include <utility>

namespace lorvane {

namespace {

struct ReadSource {
    ControlValue operator()(const double* value) const { return *value; }
    ControlValue operator()(const int* value) const { return static_cast<double>(*value); }
    ControlValue operator()(const bool* value) const { return *value; }
    ControlValue operator()(const std::string* value) const { return *value; }
    ControlValue operator()(const Colour* value) const { return *value; }
    ControlValue operator()(const Alignment* value) const {
        return static_cast<double>(static_cast<int>(*value));
    }
    ControlValue operator()(const std::function<ControlValue()>& value) const { return value(); }
};

}  // namespace

void ControlRegistry::add(std::string name, ControlSource source) {
    names_.push_back(name);
    sources_.emplace(std::move(name), std::move(source));
}

void ControlRegistry::add(const std::string& name, const Panel& panel) {
    add(name + ".Caption", &panel.Caption);
    add(name + ".Visible", &panel.Visible);
    add(name + ".Alignment", &panel.Align);
    add(name + ".ForeColor", &panel.ForeColor);
    add(name + ".BackColor", &panel.BackColor);
    add(name + ".Flood", &panel.Flood);
}

void ControlRegistry::add(const std::string& name, const Button& button) {
    add(name + ".Caption", &button.Caption);
    add(name + ".Visible", &button.Visible);
    add(name + ".Enabled", &button.Enabled);
}

void ControlRegistry::add(const std::string& name, const Option& option) {
    add(name + ".Caption", &option.Caption);
    add(name + ".Value", &option.Value);
    add(name + ".Visible", &option.Visible);
    add(name + ".Enabled", &option.Enabled);
}

void ControlRegistry::addFlag(std::string name, const bool& flag) {
    add(std::move(name), [&flag]() -> ControlValue { return flag ? 1.0 : 0.0; });
}

void ControlRegistry::addGrid(std::string name, const Grid& grid) {
    addGrid(std::move(name), [&grid] { return grid; });
}

void ControlRegistry::addGrid(std::string name, std::function<Grid()> grid) {
    gridNames_.push_back(name);
    grids_.emplace(std::move(name), std::move(grid));
}

std::optional<ControlValue> ControlRegistry::read(std::string_view name) const {
    const auto found = sources_.find(name);
    if (found == sources_.end())
        return std::nullopt;
    return std::visit(ReadSource(), found->second);
}

std::optional<Grid> ControlRegistry::grid(std::string_view name) const {
    const auto found = grids_.find(name);
    return found == grids_.end() ? std::nullopt : std::optional(found->second());
}

}  // namespace lorvane
