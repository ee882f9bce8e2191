// What every cell of a scenario's block means.
#include "persistence/scenario_cells.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "base/letter_case.h"
#include "base/money.h"
#include "base/number_text.h"
#include "session/field_book.h"

namespace lorvane {

namespace {

constexpr double powerScale = 1000;
constexpr double percent = 100;
constexpr double mostDecimals = 5;
constexpr std::size_t keyColumn = 1;

/// A field, or its decimals, in its row and column of a block.
struct FileCell {
    std::size_t k;
    std::size_t column;
    FieldRef field;
    bool isDecimals;
    std::string key;                      ///< label of the row
    bool (*isKept)(const SessionState&);  ///< null: always
};

std::string keyOf(const FilePlace& place, FieldRef ref) {
    const bool isOfLevel = ref->index == FieldIndex::levelDigit || ref->index == FieldIndex::level;
    if (place.key.empty() || !isOfLevel || ref.index == 0)
        return std::string(place.key);
    return std::string(place.key) + std::to_string(ref.index);
}

void addCell(std::vector<FileCell>& cells, const FilePlace& place, FieldRef ref, bool isDecimals) {
    if (place.column == 0 || ref.index < place.firstIndex)
        return;
    const int k = place.row + ref.index * place.rowsPerIndex;
    const int column = place.column + ref.index * place.columnsPerIndex;
    cells.push_back({static_cast<std::size_t>(k), static_cast<std::size_t>(column), ref, isDecimals,
                     keyOf(place, ref), place.isKept});
}

// The cells of a block from its first row down. Fields of a level have the same decimals at all levels.
const std::vector<FileCell>& fileCells() {
    static const std::vector<FileCell> cells = [] {
        std::vector<FileCell> all;
        forEachField([&](FieldRef ref) { addCell(all, ref->place, ref, false); });
        for (const Field& field : fieldBook())
            addCell(all, field.decimalsPlace, {&field, 0}, true);
        std::sort(all.begin(), all.end(), [](const FileCell& a, const FileCell& b) {
            return std::pair(a.k, a.column) < std::pair(b.k, b.column);
        });
        return all;
    }();
    return cells;
}

// Writing
// ------------------------------------------------------------------------------------------------------

// A value that a computation could not work out is left out of the file: it follows from the others again.
std::string numberText(const Field& field, double value) {
    if (field.isPercent)
        return shortestText(roundHalfToEven(value * percent));
    return shortestText(std::isfinite(value) ? value : 0);
}

std::string cellText(const FileCell& cell, const SessionState& state) {
    if (cell.isDecimals)
        return std::to_string(decimalsOf(state.study, *cell.field.field));
    const FieldValue value = readField(state, cell.field);
    if (const bool* flag = std::get_if<bool>(&value))
        return *flag ? "True" : "False";
    if (const std::string* text = std::get_if<std::string>(&value))
        return *text;
    return numberText(*cell.field.field, std::get<double>(value));
}

// Reading
// ------------------------------------------------------------------------------------------------------

// A cell of one scenario of a table, and where it stands: row and column of a problem count from 1, the
// header being row 1 and the scenario's name column 1.
class CellReader {
public:
    CellReader(const ScenarioGrid& grid, std::size_t place) : block_(grid.block(place)), place_(place) {}

    std::string_view text(std::size_t k, std::size_t column) const { return block_.text(k, column); }

    [[noreturn]] void fail(std::size_t k, std::size_t column, const std::string& why) const {
        throw TableProblem(place_ * ScenarioGrid::blockRows + k + 1, column + 1, why);
    }

    FieldValue read(const FileCell& cell) const;

private:
    bool readFlag(const FileCell& cell) const;
    double readNumberCell(const FileCell& cell) const;

    const ScenarioBlock& block_;
    std::size_t place_;
};

bool CellReader::readFlag(const FileCell& cell) const {
    const std::string lower = lowerCased(trimmed(text(cell.k, cell.column)));
    if (lower != "true" && lower != "false")
        fail(cell.k, cell.column, "True or False belongs here");
    return lower == "true";
}

// The numbers that a cell may hold; empty: any.
std::vector<double> choicesOf(const FileCell& cell) {
    std::vector<double> choices;
    for (double decimals = 0; cell.isDecimals && decimals <= mostDecimals; ++decimals)
        choices.push_back(decimals);
    if (!cell.isDecimals)
        choices.assign(cell.field->choices.begin(), cell.field->choices.end());
    for (double& choice : choices)
        choice = cell.field->isPercent ? roundHalfToEven(choice * percent) : choice;
    return choices;
}

std::string choiceWords(const std::vector<double>& choices) {
    std::string words;
    for (const double choice : choices)
        words += (words.empty() ? "" : ", ") + shortestText(choice);
    return words;
}

// A number that a 32-bit integer holds.
bool isWhole(std::optional<double> number) {
    return number && std::fabs(*number) <= std::numeric_limits<int>::max() && *number == std::floor(*number);
}

// A number with a decimal comma is no number, but what is meant can be told.
std::string numberWanted(std::string_view text) {
    std::string pointed(trimmed(text));
    std::replace(pointed.begin(), pointed.end(), ',', '.');
    if (pointed == trimmed(text) || !readNumber(pointed))
        return "a number belongs here";
    return "a number with a point belongs here, as " + pointed + " for " + std::string(trimmed(text));
}

double CellReader::readNumberCell(const FileCell& cell) const {
    const std::optional<double> number = readNumber(text(cell.k, cell.column));
    if (!number)
        fail(cell.k, cell.column, numberWanted(text(cell.k, cell.column)));
    const std::vector<double> choices = choicesOf(cell);
    if (!choices.empty() && std::find(choices.begin(), choices.end(), *number) == choices.end())
        fail(cell.k, cell.column, "one of " + choiceWords(choices) + " belongs here");
    if (cell.field->member.kind == FieldKind::whole && !cell.isDecimals && !isWhole(number))
        fail(cell.k, cell.column, "a whole number belongs here");
    if (cell.field->bindsFiles && *number <= 0)
        fail(cell.k, cell.column, "a number above 0 belongs here");
    return cell.field->isPercent ? *number / percent : *number;
}

FieldValue CellReader::read(const FileCell& cell) const {
    static const SessionState fresh;
    if (cell.isKept != nullptr && text(cell.k, cell.column).empty())
        return readField(fresh, cell.field);
    if (!cell.isDecimals && cell.field->member.kind == FieldKind::text)
        return std::string(text(cell.k, cell.column));
    if (!cell.isDecimals && cell.field->member.kind == FieldKind::flag)
        return readFlag(cell);
    return readNumberCell(cell);
}

// The level of randomization must be one of the levels.
void checkRandomizedLevel(const CellReader& reader) {
    const FilePlace& levels = fieldOf("NumLevels").place;
    const FilePlace& randomized = fieldOf("RandomizedLevel").place;
    const auto number = [&](const FilePlace& place) {
        return readNumber(
            reader.text(static_cast<std::size_t>(place.row), static_cast<std::size_t>(place.column)));
    };
    if (number(randomized) > number(levels))
        reader.fail(static_cast<std::size_t>(randomized.row), static_cast<std::size_t>(randomized.column),
                    "a level of the study belongs here");
}

// Entered limits of risks stand in the file together or not at all.
void checkLimits(const CellReader& reader) {
    const FilePlace& mode = fieldOf("RangeMode").place;
    const bool entered =
        readNumber(reader.text(static_cast<std::size_t>(mode.row), static_cast<std::size_t>(mode.column))) ==
        static_cast<double>(RangeModes::limits);
    for (const FileCell& cell : fileCells()) {
        if (cell.field->stem != "txtLL" && cell.field->stem != "txtUL")
            continue;
        const bool filled = !reader.text(cell.k, cell.column).empty();
        if (entered && !filled)
            reader.fail(cell.k, cell.column, "a number belongs here");
        if (filled && !entered)
            reader.fail(cell.k, cell.column, "a limit of risks belongs here only where RangeMode is 2");
    }
}

// Reads the whole block before anything is written.
std::vector<FieldValue> readBlock(const CellReader& reader) {
    std::vector<FieldValue> values;
    values.reserve(fileCells().size());
    for (const FileCell& cell : fileCells())
        values.push_back(reader.read(cell));
    checkRandomizedLevel(reader);
    checkLimits(reader);
    return values;
}

// What the list of scenarios shows of a block without restoring it.
void checkSummary(const CellReader& reader) {
    const std::string_view power = reader.text(1, powerColumn);
    if (!power.empty() && !readNumber(power))
        reader.fail(1, powerColumn, "a number belongs here");
    const std::string_view cost = reader.text(1, costColumn);
    if (!cost.empty() && !isWhole(readNumber(cost)))
        reader.fail(1, costColumn, "a whole number belongs here");
}

}  // namespace

void SaveScenario(ScenarioGrid& grid, const SessionState& state, std::string_view name,
                  std::string_view description) {
    Scenario scenario{std::string(name), {}};
    const PowerResult& result = state.study.result;
    for (const FileCell& cell : fileCells()) {
        if (cell.isKept != nullptr && !cell.isKept(state))
            continue;
        if (!cell.key.empty())
            scenario.block.put(cell.k, keyColumn, cell.key);
        scenario.block.put(cell.k, cell.column, cellText(cell, state));
    }
    scenario.block.put(1, descriptionColumn, description);
    scenario.block.put(1, powerColumn, result.xValid ? shortestText(result.txtPower * powerScale) : "");
    scenario.block.put(1, costColumn, std::to_string(result.txtCost));
    grid.add(std::move(scenario));
}

void restoreBlock(const ScenarioGrid& grid, std::size_t place, SessionState& state) {
    const std::vector<FieldValue> values = readBlock(CellReader(grid, place));
    for (std::size_t i = 0; i < values.size(); ++i) {
        const FileCell& cell = fileCells()[i];
        if (cell.isDecimals)
            state.study.decimals.*cell.field->decimals = static_cast<int>(std::get<double>(values[i]));
        else
            writeField(state, cell.field, values[i]);
    }
    state.settings.ReportSpansChoice = state.settings.ReportSpans;
}

void RestoreScenario(const ScenarioGrid& grid, std::string_view name, SessionState& state) {
    restoreBlock(grid, grid.find(name).value_or(0), state);
}

void ReplaceName(ScenarioGrid& grid, std::size_t place, std::string_view name, std::string_view description) {
    Scenario scenario = grid.scenario(place);
    scenario.name = name;
    scenario.block.put(1, descriptionColumn, description);
    grid.replace(place, std::move(scenario));
}

void checkScenarios(const ScenarioGrid& grid) {
    for (std::size_t place = 0; place < grid.scenarioCount(); ++place) {
        const CellReader reader(grid, place);
        readBlock(reader);
        checkSummary(reader);
    }
}

}  // namespace lorvane
