// A table of the report while it is put together: its cells, then columns wide enough for them.
#pragma once

#include <string>
#include <vector>

#include "platform/document.h"

namespace lorvane {

inline constexpr Colour reportYellow{255, 255, 150};
inline constexpr Colour reportBlue{210, 210, 255};
inline constexpr Colour reportGreen{192, 255, 192};

/// A table with the size of its letters in points.
struct ReportTable {
    DocumentTable table;
    double fontSize = 9.5;
};

/// Rows and columns are counted from 1.
class TableDraft {
public:
    /// Where texts may be broken: nowhere, between the words of heads and names, between all words.
    enum class Breaks { lines, words, all };

    TableDraft(std::size_t columns, std::size_t headRows, std::size_t bodyRows);

    /// A head, over several columns or rows. In the second row one over numbers stands at the right, as they
    /// do.
    struct Over {
        int columns = 1;
        int rows = 1;
    };
    void head(std::size_t row, std::size_t column, std::string text, Colour shade, Over over = {1, 1});

    TableCell& cell(std::size_t row, std::size_t column);

    /// A cell of the body with a number, at the right.
    void number(std::size_t row, std::size_t column, std::string text);

    /// Hides a column with all that it holds.
    void hide(std::size_t column);

    /// The table with columns as wide as their texts want. Where the page is too narrow for them the letters
    /// get a little smaller, then text is broken, then they get smaller still.
    ReportTable fitted(const PageSetup& page) const;

private:
    struct Columns {
        std::vector<double> widths;
        double scale;
    };

    double wantedWidth(std::size_t column, double digitWidth, Breaks breaks) const;
    Columns columnsFor(const PageSetup& page, Breaks breaks) const;

    std::vector<std::vector<TableCell>> rows_;
    std::size_t headRows_;
    std::vector<bool> hidden_;
};

}  // namespace lorvane
