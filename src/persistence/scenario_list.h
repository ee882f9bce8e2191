// The scenarios of a study as their table shows them.
#pragma once

#include <string>
#include <vector>

#include "session/scenario_grid.h"

namespace lorvane {

struct ScenarioLine {
    std::string name;
    std::string description;
    std::string power;  ///< three decimals; empty where the design was invalid
    std::string cost;   ///< grouped thousands
};

/// The line of a scenario by its place in the table.
ScenarioLine scenarioLine(const ScenarioGrid& grid, std::size_t place);

/// One line a scenario in the order of adding; the state of the screen is not among them.
std::vector<ScenarioLine> scenarioLines(const ScenarioGrid& grid);

}  // namespace lorvane
