// Any bytes as a study file. What opens must save, open again and save the same text; what is refused must
// leave the study as it was; and every scenario must restore or be refused.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "app/application.h"
#include "base/arithmetic_fault.h"
#include "base/number_text.h"
#include "persistence/csv.h"
#include "session/field_book.h"
#include "support/test_platform.h"

namespace lorvane {
namespace {

// The one place that makes an application. Making one costs more than all checks of an input, so inputs share
// it and start from a new study.
struct Bench {
    void startAnew() {
        app.load({});
        outside.messages.take();
    }

    TestPlatform outside;
    Application app{outside.platform()};
};

void demand(bool holds, const char* property) {
    if (holds)
        return;
    std::fprintf(stderr, "Broken: %s.\n", property);
    std::abort();
}

std::string savedText(Bench& bench) {
    bench.app.save("saved");
    return bench.outside.files.files["saved"];
}

// Opens or restores; the answer is whether the program took it.
template <typename Action>
bool isTaken(Bench& bench, Action action) {
    const std::string before = savedText(bench);
    try {
        action();
        return true;
    } catch (const FileProblem&) {
    } catch (const TableProblem&) {
    } catch (const ArithmeticFault&) {
    }
    demand(savedText(bench) == before, "what is refused leaves the study as it was");
    return false;
}

bool isOpened(Bench& bench, const std::string& content) {
    bench.outside.files.files["study"] = content;
    return isTaken(bench, [&] { bench.app.open("study"); });
}

// Two scenarios whose texts and numbers the edits change.
constexpr const char* scenarioName = "Case";

std::vector<CsvRow> goodRows() {
    Bench bench;
    const std::vector<CsvRow> screen = readCsv(savedText(bench), {ScenarioGrid::columns, 101, 100});
    std::vector<CsvRow> rows = screen;
    for (std::size_t i = 1; i < rows.size(); ++i)
        rows[i][0] = scenarioName;
    rows.insert(rows.end(), screen.begin() + 1, screen.end());
    return rows;
}

std::string_view takeUntil(std::string_view& text, char end) {
    const std::size_t length = std::min(text.find(end), text.size());
    const std::string_view part = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    return part;
}

std::size_t takeNumber(std::string_view& edit) {
    const std::string_view digits = takeUntil(edit, ',');
    unsigned short number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

// Columns beyond the table drop the row or double it.
void applyEdit(std::vector<CsvRow>& rows, std::string_view edit) {
    const std::size_t index = takeNumber(edit) % rows.size();
    const std::size_t column = takeNumber(edit) % (ScenarioGrid::columns + 2);
    if (column < ScenarioGrid::columns) {
        CsvRow& row = rows[index];
        row.resize(std::max(row.size(), column + 1));
        row[column] = edit;
    } else if (column == ScenarioGrid::columns && rows.size() > 1) {
        rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(index));
    } else {
        const CsvRow copy = rows[index];
        rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(index), copy);
    }
}

// "row,column,text|row,column,text": any text into any cell.
void applyTexts(std::vector<CsvRow>& rows, std::string_view edits) {
    while (!edits.empty())
        applyEdit(rows, takeUntil(edits, '|'));
}

constexpr const char* texts[] = {"",           "Pupils", "a,b",          "say \"so\"", "two\r\nlines",
                                 "two\rlines", "Ж中",    "System ABCDE", " "};
constexpr const char* numbers[] = {"0",     "1",      "2",      "3",          "4",     "10",   "100",
                                   "1000",  "0.5",    "0.05",   "0.01",       "0.999", "1e-9", "1e-300",
                                   "1e6",   "1e9",    "1e15",   "1e300",      "-0",    "-1",   "-0.5",
                                   "-1e-9", "-1e300", "0.3333", "2147483647", "1.5"};

// A cell of a block and what it takes.
struct BlockCell {
    std::size_t k;
    std::size_t column;
    FieldKind kind;
    std::vector<double> choices;
};

void addCell(std::vector<BlockCell>& cells, const FilePlace& place, int index, FieldKind kind,
             std::vector<double> choices) {
    if (place.column > 0)
        cells.push_back({static_cast<std::size_t>(place.row + index * place.rowsPerIndex),
                         static_cast<std::size_t>(place.column + index * place.columnsPerIndex), kind,
                         std::move(choices)});
}

std::vector<double> choicesOf(const Field& field) {
    std::vector<double> choices(field.choices.begin(), field.choices.end());
    for (double& choice : choices)
        choice = field.isPercent ? std::round(choice * 100) : choice;
    return choices;
}

// From the first row down, since an input tells a cell by its number.
std::vector<BlockCell> blockCells() {
    std::vector<BlockCell> cells;
    forEachField([&](FieldRef ref) {
        addCell(cells, ref->place, ref.index, ref->member.kind, choicesOf(*ref.field));
    });
    for (const Field& field : fieldBook())
        addCell(cells, field.decimalsPlace, 0, FieldKind::whole, {0, 1, 2, 3, 4, 5});
    std::sort(cells.begin(), cells.end(), [](const BlockCell& a, const BlockCell& b) {
        return std::pair(a.k, a.column) < std::pair(b.k, b.column);
    });
    return cells;
}

// A text that the cell takes, told by one number.
std::string textFor(const BlockCell& cell, std::size_t value) {
    if (cell.kind == FieldKind::flag)
        return value % 2 == 0 ? "True" : "False";
    if (cell.kind == FieldKind::text)
        return texts[value % std::size(texts)];
    if (!cell.choices.empty())
        return shortestText(cell.choices[value % cell.choices.size()]);
    return value < std::size(numbers) ? numbers[value] : shortestText(static_cast<double>(value) / 128);
}

// Two bytes an edit, a cell and its value: studies of every kind, most of which open.
void applyValues(std::vector<CsvRow>& rows, std::string_view edits) {
    static const std::vector<BlockCell> cells = blockCells();
    for (; edits.size() >= 2; edits.remove_prefix(2)) {
        const BlockCell& cell = cells[static_cast<unsigned char>(edits[0]) % cells.size()];
        const auto value = static_cast<unsigned char>(edits[1]);
        CsvRow& row = rows[cell.k + (value < 128 ? ScenarioGrid::blockRows : 0)];
        row.resize(std::max(row.size(), cell.column + 1));
        row[cell.column] = textFor(cell, value % 128);
    }
}

// Quotes every cell, so that the program's own quoting has to stand the test.
void appendLine(std::string& text, CsvRow row) {
    row.resize(ScenarioGrid::columns);
    for (const std::string& cell : row) {
        text += &cell == &row.front() ? "\"" : ",\"";
        for (const char letter : cell)
            text.append(letter == '"' ? 2 : 1, letter);
        text += '"';
    }
    text += '\n';
}

std::string editedFile(void (*apply)(std::vector<CsvRow>&, std::string_view), std::string_view edits) {
    static const std::vector<CsvRow> good = goodRows();
    std::vector<CsvRow> rows = good;
    apply(rows, edits);
    std::string text;
    for (const CsvRow& row : rows)
        appendLine(text, row);
    return text;
}

// The first letter tells what the rest is. Bytes alone seldom pass the door of 30 columns and 100 rows a
// scenario.
std::string fileOf(std::string_view input) {
    if (input.starts_with('='))
        return editedFile(applyTexts, input.substr(1));
    if (input.starts_with('#'))
        return editedFile(applyValues, input.substr(1));
    return std::string(input);
}

void checkThatItComesBack(Bench& bench) {
    static Bench other;
    const std::string text = savedText(bench);
    other.startAnew();
    demand(isOpened(other, text), "what is saved opens again");
    demand(savedText(other) == text, "what is saved comes back the same");
}

void checkStudyFile(std::string_view input) {
    static Bench bench;
    bench.startAnew();
    if (!isOpened(bench, fileOf(input)))
        return;
    checkThatItComesBack(bench);
    for (const ScenarioLine& line : bench.app.scenarios()) {
        if (isTaken(bench, [&] { bench.app.restoreScenario(line.name); }))
            checkThatItComesBack(bench);
    }
}

}  // namespace
}  // namespace lorvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lorvane::checkStudyFile({reinterpret_cast<const char*>(data), size});
    return 0;
}
