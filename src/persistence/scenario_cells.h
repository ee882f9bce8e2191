// What every cell of a scenario's block means: which value of the study or the session stands in which row
// and column. One table serves saving, checking and restoring; rows are read by position, never by their
// labels.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "persistence/csv.h"
#include "persistence/scenario_grid.h"
#include "screen/design.h"

namespace lorvane {

// Columns of a block's first row that sum up the scenario, so that a list can show it without restoring it.
inline constexpr std::size_t descriptionColumn = 22;
inline constexpr std::size_t powerColumn = 23;  ///< power times 1000; empty where the design was invalid
inline constexpr std::size_t costColumn = 24;

/// What a cell may hold beside a number of its type.
enum class CellRule {
    any,
    positive,
    choice,         ///< one of the values listed with the cell
    requiredPower,  ///< 80, 85, 90, 95 or 99, kept as a proportion in memory
};

struct ScenarioCell {
    std::size_t k;  ///< row of the block, 1 to 100
    std::size_t column;
    std::variant<double*, int*, bool*, std::string*> target;
    CellRule rule = CellRule::any;
    std::vector<double> choices = {};
};

/// The cells of one live study and its settings, in the order of the block.
std::vector<ScenarioCell> scenarioCells(Study& study, SessionSettings& settings);

/// Appends a block with the present state of the study. Changes nothing in the study.
void SaveScenario(ScenarioGrid& grid, Design& design, std::string_view name, std::string_view description);

/// Loads a block into the study and its settings, the first one where the name is not found; the screen needs
/// a refresh afterwards. Throws TableProblem for a cell that does not hold what belongs there, before
/// anything is changed.
void RestoreScenario(const ScenarioGrid& grid, Design& design, std::string_view name);

/// The same for a block by the row before its first.
void restoreBlock(const ScenarioGrid& grid, Design& design, std::size_t base);

/// Gives a block another name and description, by the row before its first: names from a file may differ in
/// nothing but case, or not at all.
void ReplaceName(ScenarioGrid& grid, std::size_t base, std::string_view name, std::string_view description);

/// Passes when every block of the table can be restored. Throws TableProblem otherwise.
void checkScenarios(const ScenarioGrid& grid);

}  // namespace lorvane
