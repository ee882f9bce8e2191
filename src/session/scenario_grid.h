// The table of scenarios, which is the picture of a study file: a header row, then 100 rows a scenario.
// Knows positions and names; what a cell means is told by the book of fields. Copies share their scenarios,
// so that a step of undo costs next to nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls.h"

namespace lorvane {

/// Name and description of the block that holds the state of the screen in a saved file.
inline constexpr std::string_view SystemScenarioName = "System ABCDE";

/// The cells of one scenario beside its name: row k, 1 to 100, and column, 1 to 29. Cells that hold nothing
/// take no memory.
class ScenarioBlock {
public:
    static constexpr std::size_t rows = 100;

    std::string_view text(std::size_t k, std::size_t column) const;
    void put(std::size_t k, std::size_t column, std::string_view text);

    /// Calls action(column, text) for the filled cells of a row, from left to right.
    template <typename Action>
    void forRow(std::size_t k, Action action) const {
        for (std::size_t i = firstAt(k, 0); i < cells_.size() && cells_[i].k == k; ++i)
            action(static_cast<std::size_t>(cells_[i].column), textOf(i));
    }

private:
    struct Cell {
        std::uint8_t k;
        std::uint8_t column;
        std::uint32_t end;  ///< of its text, which begins where the one before ends
    };

    std::size_t firstAt(std::size_t k, std::size_t column) const;
    std::string_view textOf(std::size_t cell) const;

    std::vector<Cell> cells_;  ///< in the order of rows and columns
    std::string texts_;
};

struct Scenario {
    std::string name;
    ScenarioBlock block;
};

class ScenarioGrid {
public:
    static constexpr std::size_t columns = 30;
    static constexpr std::size_t blockRows = ScenarioBlock::rows;
    static constexpr std::size_t largestNumberOfScenarios = 10000;
    static constexpr std::size_t longestCell = 32767;  ///< bytes

    /// The header row alone.
    ScenarioGrid();

    /// Rows from outside, the header first. The rows come in whole blocks, which the reader has checked.
    explicit ScenarioGrid(std::vector<Grid::Row> rows);

    std::size_t scenarioCount() const noexcept { return list_->size(); }
    std::size_t rowCount() const noexcept { return 1 + scenarioCount() * blockRows; }

    /// A scenario by its place in the table, from 0.
    const Scenario& scenario(std::size_t place) const { return *(*list_)[place]; }
    const ScenarioBlock& block(std::size_t place) const { return scenario(place).block; }

    /// A scenario in the table never changes; a changed one takes its place.
    void add(Scenario scenario);
    void replace(std::size_t place, Scenario scenario);

    /// Removes scenarios by their places, in rising order.
    void remove(const std::vector<std::size_t>& places);

    /// Removes every scenario of that name.
    void DeleteScenario(std::string_view name);

    /// The first scenario of that name; nothing when there is none.
    std::optional<std::size_t> find(std::string_view name) const;

    /// The places of the scenarios that the list shows, in the order of adding; the state of the screen is
    /// not among them.
    std::vector<std::size_t> listed() const;

    /// Whether both tables hold the very same scenarios.
    bool isSame(const ScenarioGrid& other) const noexcept;

    /// How many of the listed scenarios another table does not hold.
    std::size_t countMissingIn(const ScenarioGrid& other) const;

    /// A row of the table, the header being row 0: every cell up to the last one that holds something.
    Grid::Row row(std::size_t number) const;

    /// The whole table, empty cells too.
    Grid grid() const;

private:
    using List = std::vector<std::shared_ptr<const Scenario>>;
    void change(const std::function<void(List&)>& change);

    std::shared_ptr<const Grid::Row> header_;
    std::shared_ptr<const List> list_;
};

}  // namespace lorvane
