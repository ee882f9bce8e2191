// How wide the columns of a table become.
#include "reporting/table_draft.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/utf8.h"

namespace lorvane {

namespace {

constexpr double usualSize = 9.5;
constexpr double smallestSize = 6.5;
constexpr double padding = 10.0 / 72;  // both sides together
constexpr double widestName = 1.7;
constexpr double mostStretch = 1.5;

// How wide a letter is beside a digit.
double shareOf(std::string_view letter) {
    constexpr std::string_view wide = "MWmw%";
    constexpr std::string_view narrow = "Iijltfr.,:;()|' ";
    if (wide.find(letter) != std::string_view::npos)
        return 1.65;
    return narrow.find(letter) != std::string_view::npos ? 0.62 : 1.08;
}

double digitsOf(std::string_view text) {
    double digits = 0;
    while (!text.empty()) {
        const std::size_t length = std::max<std::size_t>(letterLength(text), 1);
        const bool isDigit = text.front() >= '0' && text.front() <= '9';
        digits += isDigit ? 1 : shareOf(text.substr(0, length));
        text.remove_prefix(length);
    }
    return digits;
}

// A digit is so wide beside the size of the letters.
double digitOf(const std::string& font) { return font == "Arial" ? 0.556 : 0.507; }

// The length of the longest line, in digits.
double longestLine(std::string_view text) {
    double longest = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        longest = std::max(longest, digitsOf(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return longest;
}

// "100|100|100" and "1|2|3".
template <typename Text>
std::string listOfColumns(std::size_t columns, Text text) {
    std::string list;
    for (std::size_t column = 1; column <= columns; ++column)
        list.append(column > 1 ? "|" : "").append(text(column));
    return list;
}

double hundredths(double value) { return std::floor(value * 100) / 100; }

}  // namespace

TableDraft::TableDraft(std::size_t columns, std::size_t headRows, std::size_t bodyRows)
    : rows_(headRows + bodyRows, std::vector<TableCell>(columns)), headRows_(headRows), hidden_(columns) {}

TableCell& TableDraft::cell(std::size_t row, std::size_t column) { return rows_[row - 1][column - 1]; }

void TableDraft::head(std::size_t row, std::size_t column, std::string text, Colour shade, Over over) {
    TableCell& head = cell(row, column);
    head.text = std::move(text);
    head.side = row > 1 && over.columns == 1 ? TextSides::right : TextSides::centre;
    head.shade = shade;
    head.columns = over.columns;
    head.rows = over.rows;
}

void TableDraft::number(std::size_t row, std::size_t column, std::string text) {
    cell(row, column).text = std::move(text);
    cell(row, column).side = TextSides::right;
}

void TableDraft::hide(std::size_t column) {
    hidden_[column - 1] = true;
    for (auto& row : rows_)
        row[column - 1] = TableCell();
}

// A long name is broken, in the end between its letters.
double TableDraft::wantedWidth(std::size_t column, double digitWidth) const {
    double wanted = 0;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const TableCell& cell = rows_[row][column];
        const bool isName = column == 0 && row >= headRows_;
        const double width = longestLine(cell.text) * digitWidth + padding;
        wanted = std::max(wanted, (isName ? std::min(width, widestName) : width) / cell.columns);
    }
    return wanted;
}

ReportTable TableDraft::fitted(const PageSetup& page) const {
    const double digitWidth = digitOf(page.font) * usualSize / 72;
    std::vector<double> widths(hidden_.size(), 0.0);
    for (std::size_t column = 0; column < widths.size(); ++column)
        widths[column] = hidden_[column] ? 0 : wantedWidth(column, digitWidth);
    const double wanted = std::accumulate(widths.begin(), widths.end(), 0.0);
    const double scale = std::min(page.textWidth() / wanted, mostStretch);
    for (double& width : widths)
        width = hundredths(width * scale);
    ReportTable made;
    made.fontSize = std::clamp(std::floor(usualSize * scale * 2) / 2, smallestSize, usualSize);
    made.table.widths = listOfColumns(widths.size(), [](std::size_t) { return std::string("100"); });
    made.table.headers =
        listOfColumns(widths.size(), [](std::size_t column) { return std::to_string(column); });
    made.table.columnWidths = std::move(widths);
    made.table.rows = rows_;
    made.table.headRows = headRows_;
    return made;
}

}  // namespace lorvane
