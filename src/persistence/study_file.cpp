// A study file on the disk.
#include "persistence/study_file.h"

#include <utility>

#include "persistence/csv.h"
#include "persistence/scenario_cells.h"

namespace lorvane {

namespace {

constexpr std::size_t largestFile = 256u << 20;
// All scenarios and the state of the screen.
constexpr std::size_t largestNumberOfBlocks = ScenarioGrid::largestNumberOfScenarios + 1;
constexpr CsvLimits limits{ScenarioGrid::columns, 1 + ScenarioGrid::blockRows* largestNumberOfBlocks,
                           ScenarioGrid::longestCell};

void checkBlocks(const ScenarioGrid& grid) {
    const std::size_t rows = grid.rowCount();
    for (std::size_t row = 1; row < rows; ++row) {
        const std::size_t first = row - (row - 1) % ScenarioGrid::blockRows;
        if (grid.text(row, 0) != grid.text(first, 0))
            throw TableProblem(row + 1, 1, "the scenario has fewer than 100 rows");
    }
    if ((rows - 1) % ScenarioGrid::blockRows != 0)
        throw TableProblem(rows, 0, "the table ends in the middle of a scenario");
    if (grid.listedBlocks().size() > ScenarioGrid::largestNumberOfScenarios)
        throw TableProblem(rows, 0, "the table has more than 10000 scenarios");
}

ScenarioGrid readTable(const std::string& text) {
    std::vector<CsvRow> rows = readCsv(text, limits);
    if (rows.size() < 2)
        throw TableProblem(rows.size() + 1, 0, "the table holds no scenario");
    ScenarioGrid grid(std::move(rows));
    checkBlocks(grid);
    checkScenarios(grid);
    return grid;
}

std::string place(const TableProblem& problem) {
    const std::string row = "row " + std::to_string(problem.row());
    return problem.column() == 0 ? row : row + ", column " + std::to_string(problem.column());
}

}  // namespace

std::string studyFileText(const ScenarioGrid& grid) {
    std::string text;
    for (const Grid::Row& row : grid.grid().rows)
        appendCsvLine(text, row, ScenarioGrid::columns);
    return text;
}

std::string studyFileText(const ScenarioGrid& scenarios, const ScenarioGrid& screen) {
    std::string text;
    const auto append = [&](const ScenarioGrid& grid, std::size_t first, std::size_t last) {
        for (std::size_t row = first; row <= last; ++row)
            appendCsvLine(text, grid.grid().rows[row], ScenarioGrid::columns);
    };
    append(scenarios, 0, 0);
    for (const std::size_t base : scenarios.listedBlocks())
        append(scenarios, base + 1, base + ScenarioGrid::blockRows);
    append(screen, 1, screen.rowCount() - 1);
    return text;
}

ScenarioGrid readStudyText(const std::string& text, const std::string& path) {
    if (text.empty())
        throw FileProblem("The file \"" + path + "\" is empty; choose a study file.");
    try {
        return readTable(text);
    } catch (const TableProblem& problem) {
        throw FileProblem("The file \"" + path + "\" is not a study file that can be opened: at " +
                          place(problem) + ", " + problem.what() + ".");
    }
}

ScenarioGrid LoadGrid(const FileStore& files, const std::string& path) {
    return readStudyText(files.read(path, largestFile), path);
}

void SaveGrid(FileStore& files, const std::string& path, const ScenarioGrid& grid) {
    files.replace(path, studyFileText(grid));
}

}  // namespace lorvane
