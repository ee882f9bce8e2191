// Writing a table as comma-separated text.
#include "sheets/csv_sheet.h"

#include "base/csv_text.h"
#include "base/number_text.h"
#include "sheets/sheet_layout.h"

namespace lorvane {

namespace {

// A spreadsheet takes a text with such a head for a formula and runs it when it opens the file.
constexpr std::string_view headsOfFormulas = "=+-@\t\r";

// A leading apostrophe keeps a name such as "=1+2" a text in every spreadsheet, at the price that some show
// it. A text that spells a number is one, and stays as it is.
std::string harmless(const std::string& text) {
    const bool isFormula = headsOfFormulas.find(text.front()) != std::string_view::npos;
    return isFormula && !readNumber(text) ? "'" + text : text;
}

std::string cellText(const LaidCell& cell) {
    if (const auto* number = std::get_if<double>(&cell.value))
        return fixedText(*number, cell.style.decimals);
    const auto* text = std::get_if<std::string>(&cell.value);
    return text ? harmless(*text) : std::string();
}

}  // namespace

std::string csvFile(const Sheet& sheet) {
    const SheetLayout layout = layOut(sheet);
    std::string file;
    for (const auto& cells : layout.rows) {
        CsvRow row(layout.columns);
        for (const LaidCell& cell : cells)
            row[cell.column] = cellText(cell);
        appendCsvLine(file, row, layout.columns);
    }
    return file;
}

}  // namespace lorvane
