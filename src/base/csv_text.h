// Writes comma-separated text as RFC 4180 has it: UTF-8, comma, quotes doubled, CR LF at the end of a line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

using CsvRow = std::vector<std::string>;

/// Appends one cell, in quotes where it needs them.
void appendCsvCell(std::string& text, std::string_view cell);

/// Appends one line; cells beyond the row's own are empty.
void appendCsvLine(std::string& text, const CsvRow& row, std::size_t columns);

}  // namespace lorvane
