// The table of scenarios.
#include "persistence/scenario_grid.h"

#include <algorithm>
#include <utility>

namespace lorvane {

namespace {

const Grid::Row& header() {
    static const Grid::Row cells = {"",       "Level",  "Blocked", "NT",     "NC",    "NB",
                                    "ICC",    "MRange", "Tau-sq",  "DRange", "Omega", "Dummy1",
                                    "Dummy2", "Dummy3", "Dummy4",  "Dummy5", "Q",     "Rsq",
                                    "Model",  "Cost T", "Cost C",  "Cost B"};
    return cells;
}

}  // namespace

ScenarioGrid::ScenarioGrid() { grid_.rows.push_back(header()); }

ScenarioGrid::ScenarioGrid(std::vector<Grid::Row> rows) { grid_.rows = std::move(rows); }

std::string_view ScenarioGrid::text(std::size_t row, std::size_t column) const {
    const Grid::Row& cells = grid_.rows[row];
    return column < cells.size() ? std::string_view(cells[column]) : std::string_view();
}

void ScenarioGrid::setText(std::size_t row, std::size_t column, std::string text) {
    Grid::Row& cells = grid_.rows[row];
    if (column >= cells.size())
        cells.resize(column + 1);
    cells[column] = std::move(text);
}

std::size_t ScenarioGrid::addBlock(std::string_view name) {
    const std::size_t base = rowCount() - 1;
    for (std::size_t k = 0; k < blockRows; ++k)
        grid_.rows.push_back({std::string(name)});
    return base;
}

std::optional<std::size_t> ScenarioGrid::findBlock(std::string_view name) const {
    for (std::size_t row = 1; row < rowCount(); row += blockRows) {
        if (text(row, 0) == name)
            return row - 1;
    }
    return std::nullopt;
}

std::vector<std::size_t> ScenarioGrid::listedBlocks() const {
    std::vector<std::size_t> bases;
    for (std::size_t row = 1; row < rowCount(); row += blockRows) {
        if (text(row, 0) != SystemScenarioName)
            bases.push_back(row - 1);
    }
    return bases;
}

void ScenarioGrid::DeleteScenario(std::string_view name) {
    std::vector<std::size_t> bases;
    for (std::size_t row = 1; row < rowCount(); row += blockRows) {
        if (text(row, 0) == name)
            bases.push_back(row - 1);
    }
    removeBlocks(bases);
}

void ScenarioGrid::removeBlocks(const std::vector<std::size_t>& bases) {
    auto next = bases.begin();
    auto kept = grid_.rows.begin() + 1;
    for (std::size_t row = 1; row < rowCount(); row += blockRows) {
        const auto block = grid_.rows.begin() + static_cast<std::ptrdiff_t>(row);
        if (next != bases.end() && *next + 1 == row)
            ++next;
        else
            kept = kept == block ? block + blockRows : std::move(block, block + blockRows, kept);
    }
    grid_.rows.erase(kept, grid_.rows.end());
}

void ScenarioGrid::renameBlock(std::size_t base, std::string_view name) {
    for (std::size_t k = 1; k <= blockRows; ++k)
        setText(base + k, 0, std::string(name));
}

}  // namespace lorvane
