// The scenarios of a study as their table shows them.
#include "persistence/scenario_list.h"

#include "base/number_text.h"
#include "persistence/scenario_cells.h"

namespace lorvane {

namespace {

constexpr double powerScale = 1000;

std::string powerText(std::string_view cell) {
    const auto value = readNumber(cell);
    return value ? fixedText(*value / powerScale, 3) : std::string();
}

std::string costText(std::string_view cell) {
    const auto value = readNumber(cell);
    return value ? groupedText(static_cast<std::int64_t>(*value)) : std::string();
}

}  // namespace

std::vector<ScenarioLine> scenarioLines(const ScenarioGrid& grid) {
    std::vector<ScenarioLine> lines;
    for (std::size_t row = 1; row < grid.rowCount(); row += ScenarioGrid::blockRows) {
        const std::string_view name = grid.text(row, 0);
        if (name != SystemScenarioName)
            lines.push_back({std::string(name), std::string(grid.text(row, descriptionColumn)),
                             powerText(grid.text(row, powerColumn)), costText(grid.text(row, costColumn))});
    }
    return lines;
}

}  // namespace lorvane
