// The study as text to be copied.
#include "screen/study_text.h"

#include <utility>
#include <vector>

#include "base/table_text.h"

namespace lorvane {

namespace {

using Row = TextRow;

bool isOfColumn(const FieldCells& cells, std::string_view column) {
    return cells.field->index != FieldIndex::none && cells.field->cell.column == column;
}

// The cell by which a field shows in the table; null where the study shows none of its cells.
const Cell* shownCell(const FieldCells& cells, int levels) {
    for (int level = levels; level >= 1; --level) {
        if (cells(level).Visible)
            return &cells(level);
    }
    return nullptr;
}

// Fields that share a column are told apart: by the arm, or by headings of their own.
std::string headingOf(const Column& column, const FieldCells& cells, const Cell& shown) {
    if (!cells.field->cell.heading.empty())
        return std::string(cells.field->cell.heading);
    const std::string heading = cellText(column.heading.Caption);
    return shown.arm.empty() ? heading : heading + ", " + shown.arm;
}

// A column a field, with plain numbers, so that a spreadsheet can go on with them.
std::vector<Row> levelRows(const MainScreen& screen, int levels) {
    std::vector<Row> rows = {{"Level", "Role"}};
    for (int level = levels; level >= 1; --level)
        rows.push_back({screen.pnlName(level).Caption, roleWord(screen.roles(level))});
    for (const Column& column : screen.columns) {
        for (const FieldCells& cells : screen.fields) {
            const Cell* shown = isOfColumn(cells, column.key) ? shownCell(cells, levels) : nullptr;
            if (shown == nullptr || !column.heading.Visible)
                continue;
            rows[0].push_back(headingOf(column, cells, *shown));
            for (int level = levels; level >= 1; --level)
                rows[static_cast<std::size_t>(levels - level + 1)].push_back(
                    cells(level).Visible ? cells(level).number : "");
        }
    }
    return rows;
}

std::vector<Row> answerRows(const MainScreen& screen) {
    std::vector<Row> rows;
    for (const FieldCells& cells : screen.fields) {
        if (cells.field->index == FieldIndex::none && cells(0).Visible)
            rows.push_back({cells(0).words, cells(0).number});
    }
    rows.push_back({"Test", screen.pnlAlphaTails.Caption});
    rows.push_back(
        {screen.pnlPower.name, screen.pnlPower.trouble ? screen.pnlPower.Caption : screen.pnlPower.number});
    rows.push_back({screen.pnlCost.name, screen.pnlCost.number});
    return rows;
}

}  // namespace

std::string resultText(const Design& design) {
    const MainScreen& screen = design.screen();
    const std::string cost = "cost = " + screen.pnlCost.number;
    return screen.pnlPower.Caption + ", " + cost;
}

ClipboardContent studyTable(const Design& design) {
    const MainScreen& screen = design.screen();
    const std::vector<Row> levels = levelRows(screen, design.study().NumLevels);
    const std::vector<Row> answers = answerRows(screen);
    return {tabbedText(levels) + "\n" + tabbedText(answers), htmlTable(levels) + htmlTable(answers)};
}

}  // namespace lorvane
