// The scenarios of a study as their table shows them.
#pragma once

#include <string>
#include <vector>

#include "session/session.h"

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

/// What stands beside the power of a scenario of the session, by its place; mostly empty. The scenario is
/// restored and computed aside, so the session stays as it is.
std::string scenarioNote(const Session& session, std::size_t place);

}  // namespace lorvane
