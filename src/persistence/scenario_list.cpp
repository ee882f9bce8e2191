// The scenarios of a study as their table shows them.
#include "persistence/scenario_list.h"

#include "base/number_text.h"
#include "persistence/scenario_cells.h"
#include "validation/icc_messages.h"

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

ScenarioLine scenarioLine(const ScenarioGrid& grid, std::size_t place) {
    const Scenario& scenario = grid.scenario(place);
    return {scenario.name, std::string(scenario.block.text(1, descriptionColumn)),
            powerText(scenario.block.text(1, powerColumn)), costText(scenario.block.text(1, costColumn))};
}

std::vector<ScenarioLine> scenarioLines(const ScenarioGrid& grid) {
    std::vector<ScenarioLine> lines;
    for (const std::size_t place : grid.listed())
        lines.push_back(scenarioLine(grid, place));
    return lines;
}

std::string scenarioNote(const Session& session, std::size_t place) {
    SessionState state;
    restoreBlock(session.scenarios(), place, state);
    StudyTrial trial = session.trial();
    trial.study = state.study;
    try {
        trial.refresh();
    } catch (const ArithmeticFault&) {
        return "";
    }
    return truncationNote(trial.study);
}

}  // namespace lorvane
