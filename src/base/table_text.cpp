// A table of texts as other programs take it.
#include "base/table_text.h"

#include "base/number_text.h"

namespace lorvane {

std::string htmlText(std::string_view text) {
    std::string safe;
    for (const char c : text) {
        switch (c) {
        case '&':
            safe += "&amp;";
            break;
        case '<':
            safe += "&lt;";
            break;
        case '>':
            safe += "&gt;";
            break;
        default:
            safe += c;
        }
    }
    return safe;
}

std::string cellText(std::string text) {
    for (char& c : text) {
        if (c == '\n' || c == '\t')
            c = ' ';
    }
    while (const auto twice = text.find("  ") + 1)
        text.erase(twice, 1);
    return std::string(trimmed(text));
}

std::string tabbedText(const std::vector<TextRow>& rows) {
    std::string text;
    for (const TextRow& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (i > 0)
                text += '\t';
            text += cellText(row[i]);
        }
        text += '\n';
    }
    return text;
}

std::string htmlTable(const std::vector<TextRow>& rows) {
    std::string html = "<table>";
    for (const TextRow& row : rows) {
        html += "<tr>";
        for (const std::string& cell : row)
            html.append("<td>").append(htmlText(cellText(cell))).append("</td>");
        html += "</tr>";
    }
    return html + "</table>";
}

}  // namespace lorvane
