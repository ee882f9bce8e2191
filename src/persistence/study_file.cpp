// A study file on the disk.
#include "persistence/study_file.h"

#include <algorithm>
#include <utility>

#include "base/csv_text.h"
#include "persistence/csv.h"
#include "persistence/scenario_cells.h"

namespace lorvane {

namespace {

constexpr std::size_t largestFile = 256u << 20;
// All scenarios and the state of the screen.
constexpr std::size_t largestNumberOfBlocks = ScenarioGrid::largestNumberOfScenarios + 1;
constexpr CsvLimits limits{ScenarioGrid::columns, 1 + ScenarioGrid::blockRows* largestNumberOfBlocks,
                           ScenarioGrid::longestCell};

void checkBlocks(const std::vector<CsvRow>& rows) {
    const auto nameOf = [&](std::size_t row) {
        return rows[row].empty() ? std::string_view() : std::string_view(rows[row][0]);
    };
    std::size_t listed = 0;
    for (std::size_t row = 1; row < rows.size(); ++row) {
        const std::size_t first = row - (row - 1) % ScenarioGrid::blockRows;
        if (nameOf(row) != nameOf(first))
            throw TableProblem(row + 1, 1, "the scenario has fewer than 100 rows");
        if (row == first && nameOf(row) != SystemScenarioName)
            ++listed;
    }
    if ((rows.size() - 1) % ScenarioGrid::blockRows != 0)
        throw TableProblem(rows.size(), 0, "the table ends in the middle of a scenario");
    if (listed > ScenarioGrid::largestNumberOfScenarios)
        throw TableProblem(rows.size(), 0, "the table has more than 10000 scenarios");
}

ScenarioGrid readTable(const std::string& text) {
    std::vector<CsvRow> rows = readCsv(text, limits);
    if (rows.size() < 2)
        throw TableProblem(rows.size() + 1, 0, "the table holds no scenario");
    checkBlocks(rows);
    ScenarioGrid grid(std::move(rows));
    checkScenarios(grid);
    return grid;
}

// One row of a block with all its columns, the name first.
void appendRow(std::string& text, const Scenario& scenario, std::size_t k) {
    std::size_t written = 0;
    appendCsvCell(text, scenario.name);
    scenario.block.forRow(k, [&](std::size_t column, std::string_view cell) {
        text.append(column - written, ',');
        appendCsvCell(text, cell);
        written = column;
    });
    text.append(ScenarioGrid::columns - 1 - written, ',');
    text += "\r\n";
}

std::string place(const TableProblem& problem) {
    const std::string row = "row " + std::to_string(problem.row());
    return problem.column() == 0 ? row : row + ", column " + std::to_string(problem.column());
}

// The header has no semicolon of its own.
bool isPartedBySemicolons(const std::string& text) {
    const std::string_view header = std::string_view(text).substr(0, text.find_first_of("\r\n"));
    return std::count(header.begin(), header.end(), ';') > std::count(header.begin(), header.end(), ',');
}

}  // namespace

std::string studyFileText(const ScenarioGrid& grid) {
    std::string text;
    appendCsvLine(text, grid.row(0), ScenarioGrid::columns);
    for (std::size_t place = 0; place < grid.scenarioCount(); ++place) {
        for (std::size_t k = 1; k <= ScenarioGrid::blockRows; ++k)
            appendRow(text, grid.scenario(place), k);
    }
    return text;
}

ScenarioGrid savedTable(const Session& session) {
    const Moment own = session.ownMoment();
    ScenarioGrid table = own.state.scenarios;
    table.DeleteScenario(SystemScenarioName);
    SaveScenario(table, own.state, SystemScenarioName, SystemScenarioName);
    return table;
}

ScenarioGrid readStudyText(const std::string& text, const std::string& path) {
    if (text.empty())
        throw FileProblem("The file \"" + path + "\" is empty; choose a study file.");
    try {
        return readTable(text);
    } catch (const TableProblem& problem) {
        if (isPartedBySemicolons(text))
            throw FileProblem("The file \"" + path +
                              "\" was saved by a spreadsheet with semicolons; save it with commas.");
        throw FileProblem("The file \"" + path + "\" is not a study file that can be opened: at " +
                          place(problem) + ", " + problem.what() + ".");
    }
}

std::string readStudyFile(const FileStore& files, const std::string& path) {
    return files.read(path, largestFile);
}

ScenarioGrid LoadGrid(const FileStore& files, const std::string& path) {
    return readStudyText(readStudyFile(files, path), path);
}

void SaveGrid(FileStore& files, const std::string& path, const ScenarioGrid& grid) {
    files.replace(path, studyFileText(grid));
}

void loadTable(Session& session, ScenarioGrid table, const std::string& file, std::uint64_t content) {
    session.edit({"", Reach::anew, IfFault::show}, [&](SessionState& state) {
        startAnew(state);
        RestoreScenario(table, SystemScenarioName, state);
        table.DeleteScenario(SystemScenarioName);
        state.scenarios = std::move(table);
        if (file.empty())
            state.settings.currency = session.systemCurrency();
    });
    session.setCurrentFile(file, content);
}

void restoreScenario(Session& session, std::size_t place) {
    session.edit({"restored scenario", Reach::study, IfFault::show, "", false, true},
                 [&](SessionState& state) {
                     startAnew(state);
                     restoreBlock(state.scenarios, place, state);
                 });
}

}  // namespace lorvane
