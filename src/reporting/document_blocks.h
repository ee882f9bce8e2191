// The steps of a document as paragraphs and tables, each with the size and the space that the steps give it.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "platform/document.h"

namespace lorvane {

/// A heading is of a part, such as the summary, or of a section in it.
enum class BlockKinds { text, part, section, table };

/// How a block comes to begin a page. A table that begins one only to stay whole has to find its page anew
/// with whoever lays it out anew: other fonts and programs make lines a little higher or lower.
enum class PageBreaks { none, keepsTable, forced };

/// What stands between two empty lines, page ends or changes of size.
struct DocumentBlock {
    BlockKinds kind = BlockKinds::text;
    std::string text = {};                 ///< of a paragraph; all of it can be shown, lines parted by "\n"
    const DocumentTable* table = nullptr;  ///< lives as long as the steps
    double points = 11;                    ///< the size of its letters
    bool bold = false;
    double above = 0;  ///< points of empty lines between it and the block before
    PageBreaks pageBreak = PageBreaks::none;

    bool isHeading() const { return kind == BlockKinds::part || kind == BlockKinds::section; }
};

/// The blocks in their order. Empty lines and page ends after the last one leave no trace.
std::vector<DocumentBlock> blocksOf(std::span<const DocumentStep> steps);

/// A cell that is seen. Places and numbers of columns leave out those that are hidden.
struct CellPlace {
    TableCell cell;  ///< all of its text can be shown
    std::size_t row = 0;
    std::size_t column = 0;
    std::size_t rows = 1;
    std::size_t columns = 1;
};

struct TableLayout {
    std::vector<double> widths;     ///< of the columns that are not hidden, inches
    std::vector<CellPlace> places;  ///< row by row, from left to right
    std::size_t rows = 0;
    std::size_t headRows = 0;

    /// The cells that a row shows a part of, from left to right.
    std::vector<const CellPlace*> across(std::size_t row) const;
};

TableLayout layoutOf(const DocumentTable& table);

/// How much of the text of a cell is bold in a table that is not.
std::size_t boldBytes(const TableCell& cell);

}  // namespace lorvane
