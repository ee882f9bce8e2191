// The table of scenarios, which is the picture of a study file: a header row, then 100 rows a scenario.
// Knows positions and names; what a cell means is told in scenario_cells.h.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls.h"

namespace lorvane {

/// Name and description of the block that holds the state of the screen in a saved file.
inline constexpr std::string_view SystemScenarioName = "System ABCDE";

class ScenarioGrid {
public:
    static constexpr std::size_t columns = 30;
    static constexpr std::size_t blockRows = 100;
    static constexpr std::size_t largestNumberOfScenarios = 10000;
    static constexpr std::size_t longestCell = 32767;  ///< bytes

    /// The header row alone.
    ScenarioGrid();

    /// Rows from outside, the header first. The rows come in whole blocks, which the reader has checked.
    explicit ScenarioGrid(std::vector<Grid::Row> rows);

    std::size_t rowCount() const noexcept { return grid_.rows.size(); }
    std::size_t scenarioCount() const noexcept { return (rowCount() - 1) / blockRows; }

    /// A cell by row and column, both counted from 0; empty where nothing was put.
    std::string_view text(std::size_t row, std::size_t column) const;
    void setText(std::size_t row, std::size_t column, std::string text);

    /// Adds an empty block whose rows carry the name in column 0. The answer is the row before its first, so
    /// that the block's row k, 1 to 100, is base + k.
    std::size_t addBlock(std::string_view name);

    /// The row before the first of the first block of that name; nothing when there is none.
    std::optional<std::size_t> findBlock(std::string_view name) const;

    /// The row before the first of every block that the list of scenarios shows, in the order of adding; the
    /// state of the screen is not among them.
    std::vector<std::size_t> listedBlocks() const;

    /// Removes every row whose column 0 is the name.
    void DeleteScenario(std::string_view name);

    /// Removes whole blocks by the rows before their first, which are in rising order.
    void removeBlocks(const std::vector<std::size_t>& bases);

    /// Gives a block another name.
    void renameBlock(std::size_t base, std::string_view name);

    /// The table itself, as it is shown and saved.
    const Grid& grid() const noexcept { return grid_; }

private:
    Grid grid_;
};

}  // namespace lorvane
