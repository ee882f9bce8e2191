// Writing comma-separated text.
#include "base/csv_text.h"

namespace lorvane {

void appendCsvCell(std::string& text, std::string_view cell) {
    if (cell.find_first_of(",\"\r\n") == std::string_view::npos) {
        text += cell;
        return;
    }
    text += '"';
    for (const char c : cell) {
        if (c == '"')
            text += '"';
        text += c;
    }
    text += '"';
}

void appendCsvLine(std::string& text, const CsvRow& row, std::size_t columns) {
    for (std::size_t column = 0; column < columns; ++column) {
        if (column > 0)
            text += ',';
        if (column < row.size())
            appendCsvCell(text, row[column]);
    }
    text += "\r\n";
}

}  // namespace lorvane
