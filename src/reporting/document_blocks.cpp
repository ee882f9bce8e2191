// Walks the steps of a document, and the cells of its tables.
#include "reporting/document_blocks.h"

#include <algorithm>
#include <iterator>
#include <variant>

#include "base/utf8.h"

namespace lorvane {

namespace {

std::string shown(const std::string& text) { return printable(text, LineEnds::kept); }

class Walk {
public:
    void operator()(const step::FontSize& size) { next.points = size.points; }
    void operator()(const step::FontBold& weight) { next.bold = weight.on; }
    void operator()(const step::NewPage&) { next.pageBreak = PageBreaks::keepsTable; }
    void operator()(const step::EndDoc&) {}

    void operator()(const step::Paragraph& paragraph) {
        forceBreak();
        next.text = (paragraph.mark.empty() ? "" : shown(paragraph.mark) + " ") + shown(paragraph.text);
        add(!next.bold                  ? BlockKinds::text
            : next.points >= partPoints ? BlockKinds::part
                                        : BlockKinds::section);
    }

    void operator()(const step::Text& text) {
        forceBreak();
        const bool belowHeading = !blocks.empty() && blocks.back().isHeading();
        const auto lines = std::count(text.text.begin(), text.text.end(), '\n');
        next.above += static_cast<double>(lines) * next.points / (belowHeading ? 2 : 1);
    }

    void operator()(const DocumentTable& table) {
        next.table = &table;
        add(BlockKinds::table);
    }

    // Text has no pictures: what is told of one stands in its place.
    void operator()(const DocumentPicture& picture) {
        forceBreak();
        next.text = shown(picture.caption);
        add(BlockKinds::text);
    }

    std::vector<DocumentBlock> blocks;

private:
    void forceBreak() {
        if (next.pageBreak != PageBreaks::none)
            next.pageBreak = PageBreaks::forced;
    }

    void add(BlockKinds kind) {
        const bool isNote = kind == BlockKinds::text && !blocks.empty() && next.above == 0 &&
                            blocks.back().kind == BlockKinds::table;
        if (isNote)
            next.above = noteGap;
        next.kind = kind;
        blocks.push_back(next);
        next = {.points = next.points, .bold = next.bold};
    }

    DocumentBlock next;
};

// Which cells lie under another one.
using Covered = std::vector<std::vector<bool>>;

CellPlace placeOf(const DocumentTable& table, std::size_t row, std::size_t column) {
    CellPlace place{table.rows[row][column], row};
    place.cell.text = shown(place.cell.text);
    place.rows = std::min(static_cast<std::size_t>(place.cell.rows), table.rows.size() - row);
    const auto from = table.columnWidths.begin() + static_cast<std::ptrdiff_t>(column);
    const auto end = std::min(from + place.cell.columns, table.columnWidths.end());
    const auto isSeen = [](double width) { return width > 0; };
    place.column = static_cast<std::size_t>(std::count_if(table.columnWidths.begin(), from, isSeen));
    place.columns = static_cast<std::size_t>(std::count_if(from, end, isSeen));
    return place;
}

void cover(Covered& covered, const TableCell& cell, std::size_t row, std::size_t column) {
    for (std::size_t i = row; i < std::min(row + static_cast<std::size_t>(cell.rows), covered.size()); ++i) {
        const std::size_t end = column + static_cast<std::size_t>(cell.columns);
        for (std::size_t j = column; j < std::min(end, covered[i].size()); ++j)
            covered[i][j] = true;
    }
}

}  // namespace

std::vector<DocumentBlock> blocksOf(std::span<const DocumentStep> steps) {
    Walk walk;
    for (const DocumentStep& step : steps)
        std::visit(walk, step);
    return std::move(walk.blocks);
}

std::vector<const CellPlace*> TableLayout::across(std::size_t row) const {
    std::vector<const CellPlace*> found;
    for (const CellPlace& place : places) {
        if (place.row <= row && row < place.row + place.rows)
            found.push_back(&place);
    }
    std::sort(found.begin(), found.end(),
              [](const CellPlace* a, const CellPlace* b) { return a->column < b->column; });
    return found;
}

TableLayout layoutOf(const DocumentTable& table) {
    TableLayout layout{{}, {}, table.rows.size(), table.headRows};
    std::copy_if(table.columnWidths.begin(), table.columnWidths.end(), std::back_inserter(layout.widths),
                 [](double width) { return width > 0; });
    Covered covered(table.rows.size(), std::vector<bool>(table.columnWidths.size()));
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        for (std::size_t column = 0; column < std::min(covered[row].size(), table.rows[row].size());
             ++column) {
            if (covered[row][column])
                continue;
            cover(covered, table.rows[row][column], row, column);
            if (CellPlace place = placeOf(table, row, column); place.columns > 0)
                layout.places.push_back(std::move(place));
        }
    }
    return layout;
}

std::size_t boldBytes(const TableCell& cell) {
    return cell.firstLineBold ? std::min(cell.text.find('\n'), cell.text.size()) : 0;
}

}  // namespace lorvane
