// The table of scenarios.
#include "persistence/scenario_grid.h"

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

void ScenarioGrid::DeleteScenario(std::string_view name) {
    const auto first = grid_.rows.begin() + 1;
    std::vector<Grid::Row> kept(grid_.rows.begin(), first);
    for (auto row = first; row != grid_.rows.end(); ++row) {
        const std::string_view owner = row->empty() ? std::string_view() : std::string_view(row->front());
        if (owner != name)
            kept.push_back(std::move(*row));
    }
    grid_.rows = std::move(kept);
}

}  // namespace lorvane
