// What every cell of a scenario's block means: which field stands in which row and column, as the book of
// fields tells it. Saving, checking and restoring all read it; rows are read by position, never by their
// labels.
#pragma once

#include <string>
#include <string_view>

#include "persistence/csv.h"
#include "session/scenario_grid.h"
#include "session/session_state.h"

namespace lorvane {

// Columns of a block's first row that sum up the scenario, so that a list can show it without restoring it.
inline constexpr std::size_t descriptionColumn = 22;
inline constexpr std::size_t powerColumn = 23;  ///< power times 1000; empty where the design was invalid
inline constexpr std::size_t costColumn = 24;

/// Appends a scenario with the values of a state to a table. The state's results must be those of its values.
void SaveScenario(ScenarioGrid& grid, const SessionState& state, std::string_view name,
                  std::string_view description);

/// Loads a scenario into a state, by its place in the table; the state's own scenarios stay. Throws
/// TableProblem for a cell that does not hold what belongs there, before anything is changed.
void restoreBlock(const ScenarioGrid& grid, std::size_t place, SessionState& state);

/// The same for the first scenario of that name, and the first of all where the name is not found.
void RestoreScenario(const ScenarioGrid& grid, std::string_view name, SessionState& state);

/// Gives a scenario another name and description, by its place: names from a file may differ in nothing but
/// case, or not at all.
void ReplaceName(ScenarioGrid& grid, std::size_t place, std::string_view name, std::string_view description);

/// Passes when every scenario of the table can be restored. Throws TableProblem otherwise.
void checkScenarios(const ScenarioGrid& grid);

}  // namespace lorvane
