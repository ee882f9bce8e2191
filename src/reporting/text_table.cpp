// Finds how wide the columns of a table and how high its rows are, and sets its lines.
#include "reporting/text_table.h"

#include <algorithm>
#include <numeric>
#include <string_view>

#include "base/utf8.h"
#include "reporting/document_blocks.h"
#include "reporting/text_lines.h"

namespace lorvane {

namespace {

constexpr std::size_t longestLine = 28;
constexpr std::string_view gap = "  ";

std::string padded(std::string_view text, std::size_t width, TextSides side) {
    const std::size_t spare = width - shownWidth(text);
    const std::size_t left = side == TextSides::left ? 0 : side == TextSides::right ? spare : (spare + 1) / 2;
    return std::string(left, ' ').append(text).append(spare - left, ' ');
}

class TextTable {
public:
    explicit TextTable(const DocumentTable& table)
        : layout(layoutOf(table)), texts(layout.places.size()), widths(layout.widths.size()),
          heights(layout.rows, 1) {
        fitWidths();
        fitHeights();
    }

    Lines lines() const {
        Lines lines;
        for (std::size_t row = 0; row < layout.rows; ++row) {
            for (std::size_t i = 0; i < heights[row]; ++i)
                lines.push_back(line(row, i));
            if (row + 1 == layout.headRows)
                lines.emplace_back(width(0, widths.size()), '-');
        }
        return lines;
    }

private:
    TableLayout layout;
    std::vector<Lines> texts;          // of the places
    std::vector<std::size_t> widths;   // of the columns
    std::vector<std::size_t> heights;  // of the rows

    bool isHead(const CellPlace& place) const { return place.row < layout.headRows; }

    // Narrow cells come first, since a wide one takes what its columns have.
    void fitWidths() {
        for (std::size_t columns = 1; columns <= widths.size(); ++columns) {
            for (std::size_t i = 0; i < texts.size(); ++i) {
                if (layout.places[i].columns == columns)
                    fitWidth(layout.places[i], texts[i]);
            }
        }
    }

    void fitWidth(const CellPlace& place, Lines& text) {
        const std::size_t given = width(place.column, place.columns);
        text = brokenLines(place.cell.text, std::max(given, longestLine));
        for (std::size_t taken = given; taken < widest(text); ++taken)
            ++widths[place.column + (taken - given) % place.columns];
    }

    void fitHeights() {
        for (std::size_t rows = 1; rows <= heights.size(); ++rows) {
            for (std::size_t i = 0; i < texts.size(); ++i) {
                const CellPlace& place = layout.places[i];
                const std::size_t given = height(place.row, place.rows);
                if (place.rows == rows && texts[i].size() > given)
                    heights[isHead(place) ? place.row : place.row + rows - 1] += texts[i].size() - given;
            }
        }
    }

    std::size_t width(std::size_t column, std::size_t columns) const {
        const auto from = widths.begin() + static_cast<std::ptrdiff_t>(column);
        const auto end = from + static_cast<std::ptrdiff_t>(columns);
        return std::accumulate(from, end, columns == 0 ? 0 : (columns - 1) * gap.size());
    }

    std::size_t height(std::size_t row, std::size_t rows) const {
        const auto from = heights.begin() + static_cast<std::ptrdiff_t>(row);
        return std::accumulate(from, from + static_cast<std::ptrdiff_t>(rows), std::size_t{0});
    }

    // What a cell shows on a line of its rows: heads stand on the rule, other cells begin at the top.
    std::string_view piece(const CellPlace& place, std::size_t line) const {
        const Lines& text = texts[static_cast<std::size_t>(&place - layout.places.data())];
        const std::size_t first = isHead(place) ? height(place.row, place.rows) - text.size() : 0;
        return line < first || line - first >= text.size() ? std::string_view() : text[line - first];
    }

    std::string line(std::size_t row, std::size_t number) const {
        std::string line;
        for (const CellPlace* place : layout.across(row)) {
            const std::size_t start = place->column == 0 ? 0 : width(0, place->column) + gap.size();
            line.append(start - shownWidth(line), ' ');
            const std::string_view text = piece(*place, height(place->row, row - place->row) + number);
            line += padded(text, width(place->column, place->columns), place->cell.side);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        return line;
    }
};

}  // namespace

std::vector<std::string> linesOf(const DocumentTable& table) { return TextTable(table).lines(); }

}  // namespace lorvane
