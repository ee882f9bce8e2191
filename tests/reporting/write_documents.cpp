// Writes documents in every format: write_documents FOLDER TEXT... A small one and one of several pages; one
// holds the texts, as paragraphs and then in the first column of a table.
#include <fstream>
#include <span>

#include "cli/document_json.h"
#include "cli/json_text.h"
#include "reporting/document_html.h"
#include "reporting/document_rtf.h"
#include "reporting/document_text.h"

using namespace lorvane;

namespace {

// Levels with two heads; the columns 5, 7 and 8 are hidden.
DocumentTable sampleTable() {
    constexpr Colour yellow{255, 255, 150}, blue{210, 210, 255}, green{192, 255, 192};
    const Colour shades[] = {yellow, yellow, yellow, blue,   blue, blue, blue,
                             blue,   green,  green,  yellow, blue, blue};
    const std::vector<std::vector<std::string>> texts = {
        {"", "Number of units", "", "Size\nof the\nICC", "", "Variation\nin means", "", "", "Covariates", "",
         "Model", "Cost per unit", ""},
        {"", "Treated", "Control", "", "", "", "", "", "# Cov", "R-sq", "", "Treated", "Control"},
        {"Schools\n(Randomized)", "15", "15", "0.10", "", "137.2", "", "", "1", "0.50", "Random", "$2,500",
         "$1,500"},
        {"Classes\n(Nested)", "3", "3", "0.05", "", "97.0", "", "", "0", "0.00", "Fixed", "$300", "$300"},
        {"Students\n(Nested)", "20", "20", "", "", "400.0", "", "", "1", "0.40", "Random", "$20", "$20"}};
    DocumentTable table{"100|100", "1|2", {1.1, .63, .63, .46, 0, .73, 0, 0, .5, .46, .71, .65, .63}, {}, 2};
    for (std::size_t row = 0; row < texts.size(); ++row) {
        table.rows.emplace_back();
        for (std::size_t column = 0; column < texts[row].size(); ++column) {
            using enum TextSides;
            const bool isHead = row < 2;
            table.rows[row].push_back({texts[row][column], column == 0              ? left
                                                           : isHead || column == 10 ? centre
                                                                                    : right});
            if (isHead && column > 0)
                table.rows[row][column].shade = shades[column];
            table.rows[row][column].firstLineBold = column == 0;
        }
    }
    constexpr struct {
        std::size_t column;
        int columns, rows;
    } merged[] = {{0, 1, 2}, {1, 2, 1}, {3, 1, 2}, {5, 3, 2}, {8, 2, 1}, {10, 1, 2}, {11, 2, 1}};
    for (const auto& cell : merged) {
        table.rows[0][cell.column].columns = cell.columns;
        table.rows[0][cell.column].rows = cell.rows;
    }
    table.rows[4][9].shade = Colour{200, 0, 0};
    table.rows[4][9].ink = Colour{255, 255, 255};
    return table;
}

// Two parts with tables, the first with that many paragraphs between two of them.
Document sampleDocument(int paragraphs) {
    Document document{{.title = "Läns-kurs {1}"}, {}};
    const auto send = [&](auto... steps) { (document.steps.push_back(steps), ...); };
    const auto heading = [&](const char* text, double points) {
        send(step::FontSize{points}, step::FontBold{true}, step::Paragraph{text}, step::FontSize{8},
             step::Text{"\n"}, step::FontSize{11}, step::FontBold{false});
    };
    const auto table = [&] {
        send(step::FontSize{9.5}, sampleTable(), step::FontSize{11}, step::Text{"\n"});
    };
    heading("Executive summary", 14);
    send(step::Text{"\n"});
    heading("Design", 12);
    send(step::Paragraph{"The schools are randomized (see table)."}, step::Text{"\n"});
    table();
    for (int i = 0; i < paragraphs; ++i)
        send(step::Paragraph{"The number of units is:\nSchools 15 (Treated) + 15 (Control)"},
             step::Text{"\n"});
    send(step::NewPage{});
    table();
    send(step::NewPage{});
    heading("Detailed report", 14);
    send(step::NewPage{}, step::Text{"\n"});
    table();
    table();
    send(step::EndDoc{});
    return document;
}

Document documentOf(std::span<char*> texts) {
    DocumentTable table{"100|100", "1|2", {3, .3}, {}};
    std::vector<DocumentStep> steps;
    for (const char* text : texts) {
        steps.push_back(step::Paragraph{text});
        table.rows.push_back({{text}, {"|"}});
    }
    steps.push_back(table);
    return {{}, steps};
}

}  // namespace

int main(int count, char** arguments) {
    const std::span<char*> all(arguments, static_cast<std::size_t>(count));
    const auto write = [&](const std::string& name, const Document& document) {
        const std::string path = std::string(all[1]).append("/").append(name);
        std::ofstream(path + ".rtf", std::ios::binary) << rtfOf(document);
        std::ofstream(path + ".txt", std::ios::binary) << plainTextOf(document);
        std::ofstream(path + ".html", std::ios::binary) << htmlOf(document.steps);
        std::ofstream(path + ".json", std::ios::binary) << jsonText(documentJson(document));
    };
    write("small", sampleDocument(1));
    write("pages", sampleDocument(10));
    write("texts", documentOf(all.subspan(2)));
}
