// Puts tags around the blocks of a document.
#include "reporting/document_html.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "base/number_text.h"
#include "base/table_text.h"
#include "reporting/document_blocks.h"

namespace lorvane {

namespace {

constexpr double pixelsPerInch = 96;

// Text with its line breaks.
std::string textWithBreaks(const std::string& text) {
    std::string html = htmlText(text);
    for (std::size_t at = 0; (at = html.find('\n', at)) != std::string::npos;)
        html.replace(at, 1, "<br>");
    return html;
}

std::string attribute(const char* name, const std::string& value) {
    return std::string(" ").append(name).append("=\"").append(value).append("\"");
}

std::string colourText(Colour colour) {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "#%02x%02x%02x", colour.red, colour.green, colour.blue);
    return text.data();
}

std::string points(double size) { return shortestText(size) + "pt"; }

std::string textOfCell(const TableCell& cell) {
    const std::size_t end = boldBytes(cell);
    const std::string first = end > 0 ? "<b>" + htmlText(cell.text.substr(0, end)) + "</b>" : "";
    return first + textWithBreaks(cell.text.substr(end));
}

std::string cellOf(const CellPlace& place, const DocumentBlock& block) {
    constexpr const char* sides[] = {"left", "center", "right"};
    const TableCell& cell = place.cell;
    std::string tag = "<td" + attribute("align", sides[static_cast<int>(cell.side)]);
    if (place.columns > 1)
        tag += attribute("colspan", std::to_string(place.columns));
    if (place.rows > 1)
        tag += attribute("rowspan", std::to_string(place.rows));
    if (cell.shade)
        tag += attribute("bgcolor", colourText(*cell.shade));
    const std::string ink = cell.ink ? ";color:" + colourText(*cell.ink) : "";
    const std::string weight = block.bold ? ";font-weight:bold" : "";
    tag += attribute("style", "font-size:" + points(block.points) + weight + ink);
    return tag + ">" + textOfCell(cell) + "</td>";
}

std::string tableOf(const DocumentBlock& block) {
    const TableLayout layout = layoutOf(*block.table);
    std::string html = R"(<table border="1" cellspacing="0" cellpadding="4")";
    html += attribute("style", "border-collapse:collapse;margin-top:" + points(block.above)) + ">\n";
    for (const double width : layout.widths)
        html += "<col" + attribute("width", std::to_string(std::lround(width * pixelsPerInch))) + ">";
    for (std::size_t row = 0; row < layout.rows; ++row) {
        html += "<tr>";
        for (const CellPlace* place : layout.across(row))
            html += place->row == row ? cellOf(*place, block) : "";
        html += "</tr>\n";
    }
    return html + "</table>\n";
}

std::string paragraphOf(const DocumentBlock& block) {
    const std::string tag = block.kind == BlockKinds::part ? "h1" : block.isHeading() ? "h2" : "p";
    const std::string style =
        "font-size:" + points(block.points) + ";margin-bottom:0;margin-top:" + points(block.above);
    return "<" + tag + attribute("style", style) + ">" + textWithBreaks(block.text) + "</" + tag + ">\n";
}

}  // namespace

std::string htmlOf(std::span<const DocumentStep> steps) {
    std::string html = "<meta charset=\"utf-8\">\n";
    for (const DocumentBlock& block : blocksOf(steps))
        html += block.table ? tableOf(block) : paragraphOf(block);
    return html;
}

}  // namespace lorvane
