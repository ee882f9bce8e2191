// What every cell of a scenario's block means.
#include "persistence/scenario_cells.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "base/money.h"
#include "base/number_text.h"

namespace lorvane {

namespace {

constexpr double powerScale = 1000;

constexpr std::size_t valueColumn = 2;
constexpr std::size_t secondColumn = 3;
constexpr std::size_t thirdColumn = 4;

const std::vector<double> powerPercents = {80, 85, 90, 95, 99};
const std::vector<double> decimalChoices = {0, 1, 2, 3, 4, 5};
const std::vector<double> increments = {1, 10, 100};

struct RowLabel {
    std::size_t k;
    const char* text;
};

constexpr RowLabel rowLabels[] = {{5, "NumLevels"},
                                  {6, "DataType"},
                                  {7, "BinaryType"},
                                  {8, "d"},
                                  {9, "Prev"},
                                  {10, "P2"},
                                  {11, "OR"},
                                  {12, "RR"},
                                  {13, "RD"},
                                  {14, "Alpha"},
                                  {15, "Tails"},
                                  {16, "Powermode"},
                                  {17, "Costmode"},
                                  {18, "ICC"},
                                  {19, "MRange"},
                                  {20, "TauSq"},
                                  {21, "DRange"},
                                  {22, "Omega"},
                                  {31, "Link N4"},
                                  {32, "Link N3"},
                                  {33, "Link N2"},
                                  {34, "Link N1"},
                                  {35, "Link Cost4"},
                                  {36, "Link Cost3"},
                                  {37, "Link Cost2"},
                                  {38, "Link Cost1"},
                                  {39, "ReqPower"},
                                  {40, "PowerOption"},
                                  {41, "MaxCost"},
                                  {42, "Cluster Group Names"},
                                  {43, "ICC Metric"},
                                  {44, "Tau-sq Metric"},
                                  {45, "Mean"},
                                  {46, "SD"},
                                  {47, "ScenarioNumber"},
                                  {48, "DType"},
                                  {50, "Currency"},
                                  {51, "RandomizedLevel"},
                                  {52, "Delta"},
                                  {53, "Font"},
                                  {54, "Paper"},
                                  {55, "Show cell counts"},
                                  {56, "Detail for cell counts"},
                                  {57, "Iterations for optimal"},
                                  {58, "Allow low cell counts"},
                                  {59, "RSq"},
                                  {60, "Showspans"},
                                  {61, "ShowCosts"}};

// Collects the cells; one call a row of the block.
class CellList {
public:
    template <typename T>
    void value(std::size_t k, std::size_t column, T& target) {
        cells_.push_back({k, column, &target});
    }
    void choice(std::size_t k, std::size_t column, int& target, std::vector<double> choices) {
        cells_.push_back({k, column, &target, CellRule::choice, std::move(choices)});
    }
    void positive(std::size_t k, std::size_t column, double& target) {
        cells_.push_back({k, column, &target, CellRule::positive});
    }
    void requiredPower(std::size_t k, double& target) {
        cells_.push_back({k, valueColumn, &target, CellRule::requiredPower, powerPercents});
    }
    void effect(std::size_t k, double& target, int& decimals) {
        value(k, valueColumn, target);
        choice(k, secondColumn, decimals, decimalChoices);
    }
    std::vector<ScenarioCell> take() { return std::move(cells_); }

private:
    std::vector<ScenarioCell> cells_;
};

void addLevels(CellList& list, Study& s) {
    for (int level = lowestLevel; level <= highestLevel; ++level) {
        const auto k = static_cast<std::size_t>(level);
        list.value(k, 1, s.txtName(level));
        list.value(k, 2, s.chkMatch(level));
        std::size_t column = 3;
        for (PerLevel<double>* values :
             {&s.txtNT, &s.txtNC, &s.txtNB, &s.txtICC, &s.txtMRange, &s.txtTauSq, &s.txtDRange, &s.txtOmega})
            list.value(k, column++, (*values)(level));
        column = 16;
        for (PerLevel<double>* values :
             {&s.txtQ, &s.txtRsq, &s.txtModel, &s.txtCostT, &s.txtCostC, &s.txtCostB})
            list.value(k, column++, (*values)(level));
    }
}

void addEffectAndTest(CellList& list, Study& s, SessionSettings& settings) {
    FieldDecimals& decimals = s.decimals;
    list.choice(5, valueColumn, s.NumLevels, {2, 3, 4});
    list.choice(6, valueColumn, s.DataType, {1, 2});
    list.choice(7, valueColumn, s.BinaryType, {1, 2, 3, 4});
    list.effect(8, s.txtd, decimals.txtd);
    list.effect(9, s.txtPrev, decimals.txtPrev);
    list.effect(10, s.txtP2, decimals.txtP2);
    list.effect(11, s.txtOR, decimals.txtOR);
    list.effect(12, s.txtRR, decimals.txtRR);
    list.effect(13, s.txtRD, decimals.txtRD);
    list.value(14, valueColumn, s.txtAlpha);
    list.choice(15, valueColumn, s.txtTails, {1, 2});
    list.choice(16, valueColumn, s.Powermode, {1, 2});
    list.choice(17, valueColumn, s.Costmode, {1, 2});
    list.choice(18, valueColumn, decimals.txtICC, decimalChoices);
    list.choice(19, valueColumn, decimals.txtMRange, decimalChoices);
    list.choice(19, secondColumn, settings.IncMRange, increments);
    list.choice(20, valueColumn, decimals.txtTauSq, decimalChoices);
    list.choice(21, valueColumn, decimals.txtDRange, decimalChoices);
    list.choice(22, valueColumn, decimals.txtOmega, decimalChoices);
}

void addLinks(CellList& list, Study& s, SessionSettings& settings) {
    for (int level = highestLevel; level >= lowestLevel; --level) {
        const auto offset = static_cast<std::size_t>(highestLevel - level);
        list.value(31 + offset, valueColumn, s.LinkN(level));
        list.choice(31 + offset, secondColumn, settings.IncN(level), increments);
        list.value(35 + offset, valueColumn, s.LinkCost(level));
        list.choice(35 + offset, secondColumn, settings.IncCost(level), increments);
    }
}

void addSettings(CellList& list, Study& s, SessionSettings& settings) {
    list.requiredPower(39, s.ReqPower);
    list.choice(40, valueColumn, s.PowerOption, {1, 2});
    list.positive(41, valueColumn, s.MaxCost);
    list.value(42, valueColumn, s.txtGroupName(1));
    list.value(42, secondColumn, s.txtGroupName(2));
    list.choice(43, valueColumn, s.IccMetric, {1, 2});
    list.choice(44, valueColumn, s.TauSqMetric, {1, 2, 3});
    list.effect(45, s.txtMean, s.decimals.txtMean);
    list.choice(45, thirdColumn, settings.IncMean, increments);
    list.effect(46, s.txtSD, s.decimals.txtSD);
    list.choice(46, thirdColumn, settings.IncSD, increments);
    list.value(47, valueColumn, settings.ScenarioNumber);
    list.choice(48, valueColumn, s.DType, {1, 2});
    list.value(50, valueColumn, settings.currency.Symbol);
    list.value(50, secondColumn, settings.currency.Position);
    list.choice(51, valueColumn, s.RandomizedLevel, {1, 2, 3, 4});
    list.value(52, valueColumn, s.limits.txtDelta);
    list.value(53, valueColumn, settings.ReportFont);
    list.choice(54, valueColumn, settings.ReportPaper, {1, 2});
    list.choice(55, valueColumn, settings.ShowCellCounts, {1, 2, 3});
    list.choice(56, valueColumn, settings.CellCountDetail, {1, 2, 3});
    list.choice(57, valueColumn, settings.IterationsForOptimal, {5, 10, 20, 30});
    list.value(58, valueColumn, settings.AllowLowCellCounts);
    list.choice(59, valueColumn, s.decimals.txtRsq, decimalChoices);
    list.choice(60, valueColumn, settings.ReportSpans, {1, 2});
    list.choice(61, valueColumn, settings.ReportCosts, {1, 2});
}

// A value that a computation could not work out is left out of the file: it follows from the others again.
struct TextOfTarget {
    std::string operator()(const double* value) const {
        return shortestText(std::isfinite(*value) ? *value : 0);
    }
    std::string operator()(const int* value) const { return std::to_string(*value); }
    std::string operator()(const bool* value) const { return *value ? "True" : "False"; }
    std::string operator()(const std::string* value) const { return *value; }
};

std::string cellText(const ScenarioCell& cell) {
    if (cell.rule == CellRule::requiredPower)
        return shortestText(roundHalfToEven(*std::get<double*>(cell.target) * 100));
    return std::visit(TextOfTarget(), cell.target);
}

// A cell's text as the value of its type; a text stays as it is.
using CellValue = std::variant<double, bool, std::string_view>;

// The row and column of the problem count from 1, the column 0 of the block being column 1 of the table.
[[noreturn]] void fail(std::size_t row, std::size_t column, const std::string& why) {
    throw TableProblem(row + 1, column + 1, why);
}

bool readFlag(std::string_view text, std::size_t row, std::size_t column) {
    const std::string lower = lowerCased(trimmed(text));
    if (lower == "true")
        return true;
    if (lower == "false")
        return false;
    fail(row, column, "True or False belongs here");
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

double readNumberCell(const ScenarioCell& cell, std::string_view text, std::size_t row) {
    const std::optional<double> number = readNumber(text);
    if (!number)
        fail(row, cell.column, "a number belongs here");
    const std::vector<double>& choices = cell.choices;
    if (!choices.empty() && std::find(choices.begin(), choices.end(), *number) == choices.end())
        fail(row, cell.column, "one of " + choiceWords(choices) + " belongs here");
    const bool whole = std::holds_alternative<int*>(cell.target);
    if (whole && !isWhole(number))
        fail(row, cell.column, "a whole number belongs here");
    if (cell.rule == CellRule::positive && *number <= 0)
        fail(row, cell.column, "a number above 0 belongs here");
    return cell.rule == CellRule::requiredPower ? *number / 100 : *number;
}

CellValue readCell(const ScenarioGrid& grid, const ScenarioCell& cell, std::size_t base) {
    const std::size_t row = base + cell.k;
    const std::string_view text = grid.text(row, cell.column);
    if (std::holds_alternative<std::string*>(cell.target))
        return text;
    if (std::holds_alternative<bool*>(cell.target))
        return readFlag(text, row, cell.column);
    return readNumberCell(cell, text, row);
}

void writeTarget(const ScenarioCell& cell, const CellValue& value) {
    if (double* const* number = std::get_if<double*>(&cell.target))
        **number = std::get<double>(value);
    else if (int* const* whole = std::get_if<int*>(&cell.target))
        **whole = static_cast<int>(std::get<double>(value));
    else if (bool* const* flag = std::get_if<bool*>(&cell.target))
        **flag = std::get<bool>(value);
    else
        *std::get<std::string*>(cell.target) = std::get<std::string_view>(value);
}

// Reads the whole block before anything is written.
std::vector<CellValue> readBlock(const ScenarioGrid& grid, const std::vector<ScenarioCell>& cells,
                                 std::size_t base) {
    std::vector<CellValue> values;
    values.reserve(cells.size());
    for (const ScenarioCell& cell : cells)
        values.push_back(readCell(grid, cell, base));
    return values;
}

// The level of randomization must be one of the levels.
void checkRandomizedLevel(const ScenarioGrid& grid, std::size_t base) {
    constexpr std::size_t levelsRow = 5, randomizedRow = 51;
    const std::optional<double> levels = readNumber(grid.text(base + levelsRow, valueColumn));
    const std::optional<double> randomized = readNumber(grid.text(base + randomizedRow, valueColumn));
    if (randomized > levels)
        fail(base + randomizedRow, valueColumn, "a level of the study belongs here");
}

// What the list of scenarios shows of a block without restoring it.
void checkSummary(const ScenarioGrid& grid, std::size_t row) {
    const std::string_view power = grid.text(row, powerColumn);
    if (!power.empty() && !readNumber(power))
        fail(row, powerColumn, "a number belongs here");
    const std::string_view cost = grid.text(row, costColumn);
    if (!cost.empty() && !isWhole(readNumber(cost)))
        fail(row, costColumn, "a whole number belongs here");
}

}  // namespace

std::vector<ScenarioCell> scenarioCells(Study& study, SessionSettings& settings) {
    CellList list;
    addLevels(list, study);
    addEffectAndTest(list, study, settings);
    addLinks(list, study, settings);
    addSettings(list, study, settings);
    return list.take();
}

void SaveScenario(ScenarioGrid& grid, Design& design, std::string_view name, std::string_view description) {
    const std::size_t base = grid.addBlock(name);
    const PowerResult& result = design.study().result;
    grid.setText(base + 1, descriptionColumn, std::string(description));
    grid.setText(base + 1, powerColumn,
                 result.xValid == 1 ? shortestText(result.txtPower * powerScale) : std::string());
    grid.setText(base + 1, costColumn, std::to_string(result.txtCost));
    for (const RowLabel& label : rowLabels)
        grid.setText(base + label.k, 1, label.text);
    for (const ScenarioCell& cell : scenarioCells(design.study(), design.settings()))
        grid.setText(base + cell.k, cell.column, cellText(cell));
}

void RestoreScenario(const ScenarioGrid& grid, Design& design, std::string_view name) {
    restoreBlock(grid, design, grid.findBlock(name).value_or(0));
}

void restoreBlock(const ScenarioGrid& grid, Design& design, std::size_t base) {
    const std::vector<ScenarioCell> cells = scenarioCells(design.study(), design.settings());
    const std::vector<CellValue> values = readBlock(grid, cells, base);
    checkRandomizedLevel(grid, base);
    for (std::size_t i = 0; i < cells.size(); ++i)
        writeTarget(cells[i], values[i]);
    design.applyChoices();
}

void ReplaceName(ScenarioGrid& grid, std::size_t base, std::string_view name, std::string_view description) {
    grid.renameBlock(base, name);
    grid.setText(base + 1, descriptionColumn, std::string(description));
}

void checkScenarios(const ScenarioGrid& grid) {
    Study study;
    SessionSettings settings;
    const std::vector<ScenarioCell> cells = scenarioCells(study, settings);
    for (std::size_t base = 0; base + 1 < grid.rowCount(); base += ScenarioGrid::blockRows) {
        readBlock(grid, cells, base);
        checkRandomizedLevel(grid, base);
        checkSummary(grid, base + 1);
    }
}

}  // namespace lorvane
