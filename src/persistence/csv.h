// Reads comma-separated text; base/csv_text.h writes it. Knows tables of text and nothing of studies.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "base/csv_text.h"

namespace lorvane {

/// A place in a table that cannot be read; row and column count from 1, as a spreadsheet shows them. Column 0
/// stands for the whole row.
class TableProblem : public std::runtime_error {
public:
    TableProblem(std::size_t row, std::size_t column, const std::string& why)
        : std::runtime_error(why), row_(row), column_(column) {}

    std::size_t row() const noexcept { return row_; }
    std::size_t column() const noexcept { return column_; }

private:
    std::size_t row_;
    std::size_t column_;
};

/// What a reader takes at most.
struct CsvLimits {
    std::size_t columns;  ///< every row has exactly this many cells
    std::size_t rows;
    std::size_t cellBytes;
};

/// Reads rows of cells. A byte order mark is skipped; lines may end in CR LF, LF or CR. Empty cells at the
/// end of a row are not kept. Throws TableProblem for anything that is not such a table within the limits.
std::vector<CsvRow> readCsv(std::string_view text, const CsvLimits& limits);

}  // namespace lorvane
