// The table of a graph as it is read.
#include "graphs/graph_sheet.h"

#include "base/number_text.h"
#include "base/table_text.h"

namespace lorvane {

namespace {

// The rows of the costs lie as far below those of the power.
constexpr int rowsOfBlock = GraphRows::cost - GraphRows::power;

bool isHead(int row) { return row % rowsOfBlock <= GraphRows::powerHead; }

const Grid::Row& rowOf(const GraphTable& table, int row) {
    return table.cells.rows[static_cast<std::size_t>(row)];
}

int decimalsOf(const std::string& number) {
    const std::size_t point = number.find('.');
    return point == std::string::npos ? 0 : static_cast<int>(number.size() - point - 1);
}

SheetCell cellOf(const GraphTable& table, int row, int column) {
    const std::string& text = rowOf(table, row)[static_cast<std::size_t>(column)];
    SheetCell cell;
    cell.heading = isHead(row);
    if (column == 0 && !cell.heading) {
        cell.value = rowHead(table.cells, row);
        return cell;
    }
    if (text.empty())
        return cell;
    const auto number = cell.heading ? std::nullopt : table.number(row, column);
    if (!number) {
        cell.value = cellText(text);
        return cell;
    }
    cell.value = *number;
    cell.decimals = decimalsOf(text);
    cell.thousands = row > GraphRows::cost;
    return cell;
}

}  // namespace

bool isShownRow(const GraphTable& table, int row, bool withCost) {
    const bool isCost = row >= rowsOfBlock;
    const int inBlock = row % rowsOfBlock;
    const bool hasLine = inBlock > GraphRows::power && inBlock <= GraphRows::power + table.NumLines;
    return (inBlock <= GraphRows::powerX || hasLine) && (!isCost || withCost);
}

std::string rowHead(const Grid& table, int row) {
    const Grid::Row& cells = table.rows[static_cast<std::size_t>(row)];
    const std::string name = cellText(cells.front());
    if (row % rowsOfBlock == GraphRows::powerHead && cells.size() > 1)
        return name.empty() ? cells[1] : cells[1] + ", " + name;
    if (name.empty() && row % rowsOfBlock > GraphRows::power)
        return row > rowsOfBlock ? "Cost" : "Power";
    return name;
}

Sheet graphSheet(const GraphTable& table, bool withCost) {
    Sheet sheet{"Graph", {}, {}};
    for (int row = 0; row < GraphRows::count; ++row) {
        if (!isShownRow(table, row, withCost) || (row == rowsOfBlock))
            continue;
        const auto columns = static_cast<int>(rowOf(table, row).size());
        if (isHead(row) && columns > 2)
            sheet.bands.push_back({sheet.rows.size(), row == 0 ? 0U : 1U, rowOf(table, row).size() - 1});
        sheet.rows.emplace_back();
        for (int column = 0; column < columns; ++column)
            sheet.rows.back().push_back(cellOf(table, row, column));
    }
    return sheet;
}

// A heading that stretches over its columns stands once.
ClipboardContent graphTableText(const GraphTable& table, bool withCost) {
    std::vector<TextRow> rows;
    for (int row = 0; row < GraphRows::count; ++row) {
        if (!isShownRow(table, row, withCost) || row == rowsOfBlock)
            continue;
        rows.push_back(rowOf(table, row));
        if (isHead(row))
            rows.back().resize(2);
    }
    return {tabbedText(rows), htmlTable(rows)};
}

}  // namespace lorvane
