// A table laid out for writing: which cells a file holds and how they look. Knows no format of files.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <tuple>
#include <variant>
#include <vector>

#include "platform/sheet.h"

namespace lorvane {

/// What cells that look alike have in common.
struct CellStyle {
    bool isNumber = false;
    int decimals = 0;
    bool thousands = false;
    bool heading = false;
    bool wraps = false;

    auto parts() const { return std::tie(isNumber, decimals, thousands, heading, wraps); }
    bool operator==(const CellStyle&) const = default;
    bool operator<(const CellStyle& other) const { return parts() < other.parts(); }
};

/// The style's form of numbers, as every spreadsheet spells it: "General", "0.00", "#,##0".
std::string numberFormat(const CellStyle& style);

struct LaidCell {
    std::size_t column;
    std::variant<std::monostate, double, std::string> value;
    CellStyle style;
};

struct SheetLayout {
    std::vector<std::vector<LaidCell>> rows;  ///< without the cells that hold nothing and show nothing
    std::size_t columns = 0;
};

/// Lays a table out. A band shows the cell in its first column, and nothing of the cells behind it; a number
/// that is not finite and an empty text leave their cell empty.
SheetLayout layOut(const Sheet& sheet);

/// All styles of a table, each one once, in order.
std::vector<CellStyle> stylesOf(const SheetLayout& layout);

/// What a format holds at most, in the words of a refusal.
struct SheetLimits {
    std::string_view file;        ///< "An .xls file"
    std::string_view otherFiles;  ///< those that hold more: ".xlsx or .csv"
    std::size_t columns;
    std::size_t rows;
    std::size_t letters;  ///< of one cell, in UTF-16
};

/// Throws std::runtime_error with a sentence where a table goes beyond the limits.
void requireWithin(const SheetLimits& limits, const SheetLayout& layout);

}  // namespace lorvane
