// A document of two parts with the size of a large report.
#pragma once

#include "platform/document.h"

namespace lorvane {

/// Builds documents as the report does: a heading, a text, and lines between them.
class SampleDocument {
public:
    SampleDocument& heading(const std::string& text, double points) {
        add(step::FontSize{points}, step::FontBold{true}, step::Paragraph{text});
        add(step::FontSize{8}, step::Text{"\n"}, step::FontSize{11}, step::FontBold{false});
        return *this;
    }

    SampleDocument& section(const std::string& title, const std::string& text) {
        heading(title, 12).add(step::Paragraph{text}, step::Text{"\n"});
        return *this;
    }

    SampleDocument& table(const DocumentTable& table, double points = 9.5) {
        add(step::FontSize{points}, table, step::FontSize{11}, step::Text{"\n"});
        return *this;
    }

    template <class... Steps>
    void add(Steps... steps) {
        (document.steps.emplace_back(steps), ...);
    }

    Document document;
};

/// Heads in two rows with bands, a hidden column, and a row a level with its name and its role.
inline DocumentTable sampleTable(const std::string& level = "Schools", std::size_t levels = 3) {
    const Colour yellow{255, 255, 150}, blue{210, 210, 255};
    const auto right = [](const char* text) { return TableCell{text, TextSides::right}; };
    DocumentTable table{"100|100|100|100|100|100", "1|2|3|4|5|6", {1.2, 0.9, 0.9, 0.6, 0, 1.1}, {}, 2};
    table.rows.push_back({{.rows = 2},
                          {"Number of units", TextSides::centre, yellow, {}, false, 2},
                          {},
                          {"ICC", TextSides::centre, blue, {}, false, 1, 2},
                          {},
                          {"Variation\nin means", TextSides::centre, blue, {}, false, 1, 2}});
    table.rows.push_back(
        {{}, {"Treated", TextSides::right, yellow}, {"Control", TextSides::right, yellow}, {}, {}, {}});
    for (std::size_t i = 0; i < levels; ++i)
        table.rows.push_back({{level + "\n(Nested)", TextSides::left, {}, {}, true},
                              right("15"),
                              right("1,500"),
                              right("0.10"),
                              {"unseen"},
                              {"137.2", TextSides::right, Colour{255, 200, 200}, problemColour}});
    return table;
}

/// Six pages with 180 lines of text and six tables, in which the first level has a name.
inline Document sampleDocument(const std::string& level = "Schools") {
    const std::string goal = "One goal of the proposed study is to test the null hypothesis that the "
                             "population means in the two groups "
                             "(treated and control) are identical, or (equivalently) that the true effect "
                             "size, d (total), is zero. ";
    const std::string design =
        "The study uses students within classes within " + level + ", and " + level +
        " are randomized (see table). Statistics of fit, affinity and efficiency follow.";
    const std::string sizes = "The number of units at each level is as follows: \n" + level +
                              " 15 (Treated) + 15 (Control)\nClasses 3 (Treated) + 3 (Control)\n"
                              "Students 20 (Treated) + 20 (Control)";
    const std::string notes = goal + design + "\n" + goal + "\n" + design;
    SampleDocument made;
    made.document.page.title = "Report of the study";
    for (const char* part : {"Executive summary", "Detailed report"}) {
        made.heading(part, 14).add(step::Text{"\n"});
        for (int i = 1; i <= 3; ++i) {
            const std::string number = " " + std::to_string(i);
            made.section("Null hypothesis" + number, goal).section("Design" + number, design);
            made.table(sampleTable(level)).section("Sample size" + number, sizes);
            made.section("Variance in control-group means " + number, notes);
        }
        if (part[0] == 'E')
            made.add(step::NewPage{});
    }
    made.add(step::EndDoc{});
    return made.document;
}

}  // namespace lorvane
