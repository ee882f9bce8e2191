// A document as JSON.
#include "cli/document_json.h"

#include <variant>

#include "base/number_text.h"

namespace lorvane {

namespace {

using Json = nlohmann::ordered_json;

Json colourJson(const Colour& colour) { return {colour.red, colour.green, colour.blue}; }

class Commands {
public:
    void operator()(const step::FontSize& size) { all.push_back({"FontSize", size.points}); }
    void operator()(const step::FontBold& weight) { all.push_back({"FontBold", weight.on}); }
    void operator()(const step::Paragraph& paragraph) { all.push_back({"Paragraph", paragraph.text}); }
    void operator()(const step::Text& text) { all.push_back({"Text", text.text}); }
    void operator()(const DocumentPicture& picture) { all.push_back({"Picture", picture.caption}); }
    void operator()(const step::NewPage&) { send("NewPage"); }
    void operator()(const step::EndDoc&) { send("EndDoc"); }

    void operator()(const DocumentTable& table) {
        send("StartTable");
        all.push_back({"AddTable", table.widths, table.headers});
        for (std::size_t column = 0; column < table.columnWidths.size(); ++column)
            set("ColWidth", 0, column + 1, shortestText(table.columnWidths[column]) + "in");
        for (std::size_t row = 0; row < table.rows.size(); ++row) {
            for (std::size_t column = 0; column < table.rows[row].size(); ++column)
                sendCell(table.rows[row][column], row + 1, column + 1);
        }
        all.push_back({"TableBorder", 1});
        send("EndTable");
    }

    Json all = Json::array();

private:
    void send(const char* command) { all.push_back(Json::array({command})); }

    void set(const char* property, std::size_t row, std::size_t column, Json value) {
        all.push_back({"TableCell", property, row, column, std::move(value)});
    }

    // Only what differs from an empty cell.
    void sendCell(const TableCell& cell, std::size_t row, std::size_t column) {
        constexpr const char* sides[] = {"left", "center", "right"};
        if (!cell.text.empty())
            set("Text", row, column, cell.text);
        if (cell.shade)
            set("BackColor", row, column, colourJson(*cell.shade));
        if (cell.ink)
            set("ForeColor", row, column, colourJson(*cell.ink));
        if (cell.columns > 1)
            set("ColSpan", row, column, cell.columns);
        if (cell.rows > 1)
            set("RowSpan", row, column, cell.rows);
        if (cell.side != TextSides::left)
            set("Align", row, column, sides[static_cast<int>(cell.side)]);
    }
};

}  // namespace

Json documentJson(const Document& document) {
    Commands commands;
    for (const DocumentStep& step : document.steps)
        std::visit(commands, step);
    return std::move(commands.all);
}

}  // namespace lorvane
