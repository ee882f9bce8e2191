// Laying out a table.
#include "sheets/sheet_layout.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <stdexcept>
#include <utility>

#include "base/number_text.h"
#include "sheets/utf16.h"

namespace lorvane {

namespace {

const SheetBand* bandAt(const Sheet& sheet, std::size_t row, std::size_t column) {
    const auto found = std::find_if(sheet.bands.begin(), sheet.bands.end(), [&](const SheetBand& band) {
        return band.row == row && band.firstColumn <= column && column <= band.lastColumn;
    });
    return found == sheet.bands.end() ? nullptr : &*found;
}

SheetCell cellAt(const Sheet& sheet, std::size_t row, std::size_t column) {
    const bool isThere = row < sheet.rows.size() && column < sheet.rows[row].size();
    return isThere ? sheet.rows[row][column] : SheetCell{};
}

bool holdsNothing(const SheetCell& cell) {
    const auto* number = std::get_if<double>(&cell.value);
    const auto* text = std::get_if<std::string>(&cell.value);
    return number ? !std::isfinite(*number) : !text || text->empty();
}

CellStyle styleOf(const SheetCell& cell, bool isBand) {
    CellStyle style;
    style.heading = cell.heading || isBand;
    if (const auto* text = std::get_if<std::string>(&cell.value))
        style.wraps = text->find('\n') != std::string::npos;
    style.isNumber = std::holds_alternative<double>(cell.value);
    if (style.isNumber) {
        style.decimals = cell.decimals;
        style.thousands = cell.thousands;
    }
    return style;
}

LaidCell laidCell(const Sheet& sheet, std::size_t row, std::size_t column) {
    const SheetBand* band = bandAt(sheet, row, column);
    const std::size_t shown = band ? band->firstColumn : column;
    SheetCell cell = cellAt(sheet, row, shown);
    if (holdsNothing(cell))
        cell.value = std::monostate();
    LaidCell laid{column, {}, styleOf(cell, band != nullptr)};
    if (shown == column)
        laid.value = std::move(cell.value);
    return laid;
}

std::size_t columnsOf(const Sheet& sheet) {
    std::size_t columns = 0;
    for (const auto& row : sheet.rows)
        columns = std::max(columns, row.size());
    for (const SheetBand& band : sheet.bands)
        columns = std::max(columns, band.lastColumn + 1);
    return columns;
}

std::size_t rowsOf(const Sheet& sheet) {
    std::size_t rows = sheet.rows.size();
    for (const SheetBand& band : sheet.bands)
        rows = std::max(rows, band.row + 1);
    return rows;
}

std::size_t longestText(const SheetLayout& layout) {
    std::size_t longest = 0;
    for (const auto& row : layout.rows) {
        for (const LaidCell& cell : row) {
            if (const auto* text = std::get_if<std::string>(&cell.value))
                longest = std::max(longest, utf16(*text).size());
        }
    }
    return longest;
}

}  // namespace

std::string numberFormat(const CellStyle& style) {
    if (!style.isNumber)
        return "General";
    std::string format = style.thousands ? "#,##0" : "0";
    if (style.decimals > 0)
        format.append(".").append(static_cast<std::size_t>(style.decimals), '0');
    return format;
}

SheetLayout layOut(const Sheet& sheet) {
    SheetLayout layout;
    layout.columns = columnsOf(sheet);
    layout.rows.resize(rowsOf(sheet));
    for (std::size_t row = 0; row < layout.rows.size(); ++row) {
        for (std::size_t column = 0; column < layout.columns; ++column) {
            LaidCell cell = laidCell(sheet, row, column);
            if (cell.style != CellStyle() || !std::holds_alternative<std::monostate>(cell.value))
                layout.rows[row].push_back(std::move(cell));
        }
    }
    return layout;
}

std::vector<CellStyle> stylesOf(const SheetLayout& layout) {
    std::set<CellStyle> styles;
    for (const auto& row : layout.rows) {
        for (const LaidCell& cell : row)
            styles.insert(cell.style);
    }
    return {styles.begin(), styles.end()};
}

void requireWithin(const SheetLimits& limits, const SheetLayout& layout) {
    const struct {
        std::size_t number, most;
        const char* things;
    } checks[] = {{layout.columns, limits.columns, " columns"},
                  {layout.rows.size(), limits.rows, " rows"},
                  {longestText(layout), limits.letters, " letters in a cell"}};
    for (const auto& check : checks) {
        if (check.number > check.most)
            throw std::runtime_error(std::string(limits.file) + " holds at most " +
                                     groupedText(static_cast<std::int64_t>(check.most)) + check.things +
                                     "; save the table as " + std::string(limits.otherFiles) + ".");
    }
}

}  // namespace lorvane
