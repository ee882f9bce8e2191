// How wide the columns of a table become.
#include "reporting/table_draft.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/utf8.h"

namespace lorvane {

namespace {

constexpr double usualSize = 9.5;
constexpr double pleasantSize = 7.5;  // below it, text is broken to make room for larger letters
constexpr double smallestSize = 6.5;
constexpr double padding = 10.0 / 72;  // both sides together
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

// Where a line may be broken: at a blank with words on both sides, not as in "# Cov" or "in means".
std::size_t endOfPart(std::string_view text) {
    constexpr std::size_t shortest = 3;
    std::size_t from = 0;
    for (;;) {
        const std::size_t blank = text.find(' ', from);
        if (blank == std::string_view::npos)
            return text.size();
        const std::size_t next = std::min(text.find(' ', blank + 1), text.size());
        if (blank >= shortest && next - blank - 1 >= shortest)
            return blank;
        from = blank + 1;
    }
}

// The length of the longest line, or of its longest part where lines may be broken; in digits.
double longestPart(std::string_view text, bool isBroken) {
    double longest = 0;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        const std::string_view part = isBroken ? line.substr(0, endOfPart(line)) : line;
        longest = std::max(longest, digitsOf(part));
        text.remove_prefix(std::min(part.size() + 1, text.size()));
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

namespace {

// Names and heads give way before numbers do: they may be so wide, in inches.
struct Limits {
    double name;
    double head;
};

Limits limitsOf(TableDraft::Breaks breaks) {
    using enum TableDraft::Breaks;
    return breaks == lines ? Limits{1.7, 1.2} : breaks == words ? Limits{1.2, 0.9} : Limits{1.0, 0.75};
}

}  // namespace

double TableDraft::wantedWidth(std::size_t column, double digitWidth, Breaks breaks) const {
    const Limits limits = limitsOf(breaks);
    double wanted = 0;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const TableCell& cell = rows_[row][column];
        const bool isHead = row < headRows_;
        const bool isName = column == 0 && !isHead;
        const bool isBroken = breaks == Breaks::all || (breaks == Breaks::words && (isHead || isName));
        double width = longestPart(cell.text, isBroken) * digitWidth + padding;
        if (isHead || isName)
            width = std::min(width, isHead ? limits.head * cell.columns : limits.name);
        wanted = std::max(wanted, width / cell.columns);
    }
    return wanted;
}

// Widths in inches, on letters of the usual size, that fill the page; and how much smaller the letters get.
TableDraft::Columns TableDraft::columnsFor(const PageSetup& page, Breaks breaks) const {
    const double digitWidth = digitOf(page.font) * usualSize / 72;
    Columns columns{std::vector<double>(hidden_.size(), 0.0), 1};
    for (std::size_t column = 0; column < hidden_.size(); ++column) {
        if (!hidden_[column])
            columns.widths[column] = wantedWidth(column, digitWidth, breaks);
    }
    const double wanted = std::accumulate(columns.widths.begin(), columns.widths.end(), 0.0);
    columns.scale = std::min(page.textWidth() / wanted, mostStretch);
    for (double& width : columns.widths)
        width = hundredths(width * columns.scale);
    return columns;
}

ReportTable TableDraft::fitted(const PageSetup& page) const {
    Columns columns = columnsFor(page, Breaks::lines);
    for (const Breaks breaks : {Breaks::words, Breaks::all}) {
        if (columns.scale * usualSize < pleasantSize)
            columns = columnsFor(page, breaks);
    }
    ReportTable made;
    made.fontSize = std::clamp(std::floor(usualSize * columns.scale * 2) / 2, smallestSize, usualSize);
    made.table.widths = listOfColumns(hidden_.size(), [](std::size_t) { return std::string("100"); });
    made.table.headers =
        listOfColumns(hidden_.size(), [](std::size_t column) { return std::to_string(column); });
    made.table.columnWidths = std::move(columns.widths);
    made.table.rows = rows_;
    made.table.headRows = headRows_;
    return made;
}

}  // namespace lorvane
