// The table of scenarios.
#include "session/scenario_grid.h"

#include <algorithm>
#include <set>
#include <utility>

namespace lorvane {

namespace {

const std::shared_ptr<const Grid::Row>& usualHeader() {
    static const auto cells = std::make_shared<const Grid::Row>(
        Grid::Row{"",       "Level",  "Blocked", "NT",     "NC",     "NB",     "ICC",    "MRange",
                  "Tau-sq", "DRange", "Omega",   "Dummy1", "Dummy2", "Dummy3", "Dummy4", "Dummy5",
                  "Q",      "Rsq",    "Model",   "Cost T", "Cost C", "Cost B"});
    return cells;
}

// The scenario whose rows follow the row base.
Scenario scenarioOf(const std::vector<Grid::Row>& rows, std::size_t base) {
    Scenario scenario;
    if (!rows[base + 1].empty())
        scenario.name = rows[base + 1][0];
    for (std::size_t k = 1; k <= ScenarioBlock::rows; ++k) {
        const Grid::Row& row = rows[base + k];
        for (std::size_t column = 1; column < row.size(); ++column)
            scenario.block.put(k, column, row[column]);
    }
    return scenario;
}

}  // namespace

std::size_t ScenarioBlock::firstAt(std::size_t k, std::size_t column) const {
    const auto place = std::pair(k, column);
    const auto found =
        std::lower_bound(cells_.begin(), cells_.end(), place, [](const Cell& cell, const auto& wanted) {
            return std::pair<std::size_t, std::size_t>(cell.k, cell.column) < wanted;
        });
    return static_cast<std::size_t>(found - cells_.begin());
}

std::string_view ScenarioBlock::textOf(std::size_t cell) const {
    const std::uint32_t begin = cell == 0 ? 0 : cells_[cell - 1].end;
    return std::string_view(texts_).substr(begin, cells_[cell].end - begin);
}

std::string_view ScenarioBlock::text(std::size_t k, std::size_t column) const {
    const std::size_t cell = firstAt(k, column);
    const bool filled = cell < cells_.size() && cells_[cell].k == k && cells_[cell].column == column;
    return filled ? textOf(cell) : std::string_view();
}

// An empty text is kept as an empty cell only where one stood before, which reads the same.
void ScenarioBlock::put(std::size_t k, std::size_t column, std::string_view text) {
    const std::size_t cell = firstAt(k, column);
    const bool filled = cell < cells_.size() && cells_[cell].k == k && cells_[cell].column == column;
    if (!filled && text.empty())
        return;
    const std::uint32_t begin = cell == 0 ? 0 : cells_[cell - 1].end;
    const std::size_t before = filled ? cells_[cell].end - begin : 0;
    texts_.replace(begin, before, text);
    if (!filled)
        cells_.insert(cells_.begin() + static_cast<std::ptrdiff_t>(cell),
                      {static_cast<std::uint8_t>(k), static_cast<std::uint8_t>(column), begin});
    for (std::size_t i = cell; i < cells_.size(); ++i)
        cells_[i].end = static_cast<std::uint32_t>(cells_[i].end + text.size() - before);
}

ScenarioGrid::ScenarioGrid() : header_(usualHeader()), list_(std::make_shared<const List>()) {}

ScenarioGrid::ScenarioGrid(std::vector<Grid::Row> rows) {
    List list;
    for (std::size_t base = 0; base + 1 < rows.size(); base += blockRows)
        list.push_back(std::make_shared<const Scenario>(scenarioOf(rows, base)));
    header_ = std::make_shared<const Grid::Row>(std::move(rows.front()));
    list_ = std::make_shared<const List>(std::move(list));
}

void ScenarioGrid::change(const std::function<void(List&)>& change) {
    List list = *list_;
    change(list);
    list_ = std::make_shared<const List>(std::move(list));
}

void ScenarioGrid::add(Scenario scenario) {
    change([&](List& list) { list.push_back(std::make_shared<const Scenario>(std::move(scenario))); });
}

void ScenarioGrid::replace(std::size_t place, Scenario scenario) {
    change([&](List& list) { list[place] = std::make_shared<const Scenario>(std::move(scenario)); });
}

void ScenarioGrid::remove(const std::vector<std::size_t>& places) {
    change([&](List& list) {
        std::size_t kept = 0;
        auto next = places.begin();
        for (std::size_t place = 0; place < list.size(); ++place) {
            if (next != places.end() && *next == place)
                ++next;
            else
                list[kept++] = std::move(list[place]);
        }
        list.resize(kept);
    });
}

void ScenarioGrid::DeleteScenario(std::string_view name) {
    if (find(name))
        change([&](List& list) {
            std::erase_if(list, [&](const auto& scenario) { return scenario->name == name; });
        });
}

std::optional<std::size_t> ScenarioGrid::find(std::string_view name) const {
    for (std::size_t place = 0; place < scenarioCount(); ++place) {
        if (scenario(place).name == name)
            return place;
    }
    return std::nullopt;
}

std::vector<std::size_t> ScenarioGrid::listed() const {
    std::vector<std::size_t> places;
    for (std::size_t place = 0; place < scenarioCount(); ++place) {
        if (scenario(place).name != SystemScenarioName)
            places.push_back(place);
    }
    return places;
}

bool ScenarioGrid::isSame(const ScenarioGrid& other) const noexcept {
    return list_ == other.list_ || *list_ == *other.list_;
}

std::size_t ScenarioGrid::countMissingIn(const ScenarioGrid& other) const {
    const std::set<std::shared_ptr<const Scenario>> known(other.list_->begin(), other.list_->end());
    const std::vector<std::size_t> places = listed();
    return static_cast<std::size_t>(std::count_if(
        places.begin(), places.end(), [&](std::size_t place) { return !known.contains((*list_)[place]); }));
}

Grid::Row ScenarioGrid::row(std::size_t number) const {
    if (number == 0)
        return *header_;
    const Scenario& scenario = this->scenario((number - 1) / blockRows);
    Grid::Row cells = {scenario.name};
    scenario.block.forRow((number - 1) % blockRows + 1, [&](std::size_t column, std::string_view text) {
        cells.resize(column);
        cells.emplace_back(text);
    });
    return cells;
}

Grid ScenarioGrid::grid() const {
    Grid grid;
    for (std::size_t number = 0; number < rowCount(); ++number) {
        grid.rows.push_back(row(number));
        grid.rows.back().resize(columns);
    }
    return grid;
}

}  // namespace lorvane
