// Every control, field, flag and setting by its name, for the command line, the tests and the views.
// Holds pointers to the live values; knows nothing of their meaning.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "platform/controls.h"

namespace lorvane {

/// A value as it is read by name.
using ControlValue = std::variant<double, bool, std::string, Colour>;

/// Where a named value lives, or how it is worked out. The registry never outlives what it points to.
using ControlSource = std::variant<const double*, const int*, const bool*, const std::string*, const Colour*,
                                   const Alignment*, std::function<ControlValue()>>;

class ControlRegistry {
public:
    /// Enters one value. Every name is entered once.
    void add(std::string name, ControlSource source);

    /// Enters the properties of a control under "name.Caption", "name.Visible" and so on.
    void add(const std::string& name, const Panel& panel);
    void add(const std::string& name, const Button& button);
    void add(const std::string& name, const Option& option);

    /// Enters a flag of a computation: 1 for good, 0 for a problem.
    void addFlag(std::string name, const bool& flag);

    /// Enters a table under its name, or how it is worked out.
    void addGrid(std::string name, const Grid& grid);
    void addGrid(std::string name, std::function<Grid()> grid);

    /// The present value of a name; nothing when the name is not known.
    std::optional<ControlValue> read(std::string_view name) const;

    /// The table of a name as it is now; nothing when there is none.
    std::optional<Grid> grid(std::string_view name) const;

    /// All names in the order in which they were entered.
    const std::vector<std::string>& names() const noexcept { return names_; }

    /// The names of all tables, in the order in which they were entered.
    const std::vector<std::string>& gridNames() const noexcept { return gridNames_; }

private:
    struct NameHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept {
            return std::hash<std::string_view>()(text);
        }
    };
    template <typename T>
    using ByName = std::unordered_map<std::string, T, NameHash, std::equal_to<>>;

    ByName<ControlSource> sources_;
    ByName<std::function<Grid()>> grids_;
    std::vector<std::string> names_;
    std::vector<std::string> gridNames_;
};

}  // namespace lorvane
