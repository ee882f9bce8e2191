// A table as a spreadsheet holds it, with numbers as numbers, and what turns it into a file.
#pragma once

#include <cstddef>
#include <string>
#include <variant>
#include <vector>

namespace lorvane {

/// A text is UTF-8; one with line ends is shown in lines. A number that is not finite leaves the cell empty.
struct SheetCell {
    std::variant<std::monostate, double, std::string> value;
    int decimals = 0;        ///< of a number, 0 to 30
    bool thousands = false;  ///< parts the thousands of a number
    bool heading = false;    ///< bold, on the ground of a head
};

/// The cell in the first column as a heading that stretches over several columns of its row, and hides the
/// cells in the others. Both columns are inside it; bands do not overlap.
struct SheetBand {
    std::size_t row;
    std::size_t firstColumn;
    std::size_t lastColumn;
};

struct Sheet {
    std::string name;  ///< at most 31 letters, none of []:*?/\ in it
    std::vector<std::vector<SheetCell>> rows;
    std::vector<SheetBand> bands;
    std::size_t firstColumnWidth = 24;  ///< in letters
    std::size_t columnWidth = 10;       ///< of all others
};

enum class SheetFormats { xls, xlsx, csv };

class SheetWriter {
public:
    virtual ~SheetWriter() = default;

    /// The table as the bytes of a file. Throws std::runtime_error with a sentence when it cannot be written,
    /// as for more columns than the format has.
    virtual std::string write(const Sheet& sheet, SheetFormats format) = 0;
};

}  // namespace lorvane
