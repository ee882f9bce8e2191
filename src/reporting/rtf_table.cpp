// A row tells its cells first, then their texts. A cell over several columns is a wide one; below a cell over
// several rows stand empty ones that are merged with it.
#include "reporting/rtf_table.h"

#include <numeric>

#include "base/rtf_text.h"

namespace lorvane {

namespace {

constexpr Colour lineColour{150, 150, 150};

// Programs disagree where the left line of a table with space inside its cells stands. So cells have space
// above and below their text only, and paragraphs are indented.
constexpr const char* rowForm =
    "\\trowd\\trgaph0\\trleft0\\trkeep"
    "\\trpaddl0\\trpaddfl3\\trpaddr0\\trpaddfr3\\trpaddt45\\trpaddft3\\trpaddb45\\trpaddfb3";
constexpr const char* indents = "\\li90\\ri90";

class RtfRows {
public:
    RtfRows(const DocumentBlock& tableBlock, RtfColours& fileColours)
        : block(tableBlock), layout(layoutOf(*tableBlock.table)), colours(fileColours) {}

    std::string text() {
        std::string rtf;
        for (std::size_t row = 0; row < layout.rows; ++row) {
            rtf += rowForm;
            rtf += row < layout.headRows ? "\\trhdr\n" : "\n";
            for (const CellPlace* place : layout.across(row))
                rtf += formOf(*place, row);
            for (const CellPlace* place : layout.across(row))
                rtf += textOf(*place, row);
            rtf += "\\row\n";
        }
        return rtf;
    }

private:
    const DocumentBlock& block;
    const TableLayout layout;
    RtfColours& colours;

    std::string formOf(const CellPlace& place, std::size_t row) {
        std::string rtf = place.rows == 1 ? "" : row == place.row ? "\\clvmgf" : "\\clvmrg";
        rtf += "\\clvertalc";
        for (const char* side : {"t", "l", "b", "r"}) {
            rtf.append("\\clbrdr").append(side).append("\\brdrs\\brdrw15");
            rtf += rtfWord("brdrcf", colours.numberOf(lineColour));
        }
        if (place.cell.shade)
            rtf += rtfWord("clcbpat", colours.numberOf(*place.cell.shade));
        const auto end = layout.widths.begin() + static_cast<std::ptrdiff_t>(place.column + place.columns);
        const double right = std::accumulate(layout.widths.begin(), end, 0.0);
        return rtf + rtfWord("cellx", twipsOfInches(right)) + "\n";
    }

    std::string textOf(const CellPlace& place, std::size_t row) {
        constexpr const char* sides[] = {"\\ql", "\\qc", "\\qr"};
        const TableCell& cell = place.cell;
        std::string rtf = "\\pard\\plain\\intbl";
        // Every row but the last one stays with the next.
        rtf += row + 1 < layout.rows ? "\\keepn" : "";
        rtf.append(sides[static_cast<int>(cell.side)]).append(indents);
        rtf += "\\f0" + rtfSize(block.points) + (block.bold ? "\\b" : "");
        if (cell.ink)
            rtf += rtfWord("cf", colours.numberOf(*cell.ink));
        if (row > place.row)
            return rtf + "\\cell\n";
        const std::size_t end = boldBytes(cell);
        rtf += end > 0 ? "{\\b " + rtfText(cell.text.substr(0, end)) + "}" : " ";
        return rtf + rtfText(cell.text.substr(end)) + "\\cell\n";
    }
};

}  // namespace

std::string rtfTable(const DocumentBlock& block, RtfColours& colours) {
    return RtfRows(block, colours).text();
}

}  // namespace lorvane
