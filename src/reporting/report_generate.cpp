// The order of the report.
#include "reporting/report_generate.h"

#include <utility>

#include "reporting/report_sections.h"
#include "reporting/report_tables.h"

namespace lorvane {

namespace {

constexpr const char* executiveSummary = "Executive summary";
constexpr const char* detailedReport = "Detailed report";
constexpr double headingSize = 12;
constexpr double textSize = 11;
constexpr double gapSize = 8;      // of the line below a heading
constexpr double pageShare = 0.9;  // a table that would reach below begins a page
constexpr const char* lineBreak = "\n";

class Writer {
public:
    Writer(const SessionState& session, const PageSetup& page, DocumentSurface& surface)
        : facts_{session}, page_(page), surface_(surface) {}

    void DoPrint(const std::string& heading, const std::string& text);
    void SkipLine(int count);
    void print(Halves half, const ReportSection& section);
    void printTable(TableRoutine routine);
    void printIccTable();
    void summarize();
    void detail(const ReportExtras& extras);

private:
    void send(DocumentStep step) { surface_.send(step); }
    void sendTable(const ReportTable& table);
    bool isBlocked() const { return !facts_.study().isHierarchical(); }
    bool hasCosts() const { return facts_.state.settings.ReportCosts == Inclusions::include; }

    StudyFacts facts_;
    const PageSetup& page_;
    DocumentSurface& surface_;
};

void Writer::DoPrint(const std::string& heading, const std::string& text) {
    if (!heading.empty()) {
        const bool isPart = heading == executiveSummary || heading == detailedReport;
        send(step::FontSize{isPart ? partPoints : headingSize});
        send(step::FontBold{true});
        send(step::Paragraph{heading});
        send(step::FontSize{gapSize});
        send(step::Text{lineBreak});
    }
    if (!text.empty()) {
        send(step::FontSize{textSize});
        send(step::FontBold{false});
        send(step::Paragraph{text});
        send(step::FontSize{textSize});
        send(step::Text{lineBreak});
    }
}

void Writer::SkipLine(int count) {
    send(step::FontSize{textSize});
    send(step::FontBold{false});
    for (int i = 0; i < count; ++i)
        send(step::Text{lineBreak});
}

void Writer::print(Halves half, const ReportSection& section) {
    const SectionText told = sectionText(section, half, facts_);
    DoPrint(told.heading, told.text);
}

// The table is measured first, and begins a page where it would reach too far down.
void Writer::printTable(TableRoutine routine) {
    const ReportTable table = routine(facts_, page_);
    send(step::FontSize{table.fontSize});
    send(step::FontBold{false});
    if (surface_.Y1() + surface_.heightOf(table.table) >= pageShare * page_.height)
        send(step::NewPage{});
    send(table.table);
    send(step::FontSize{textSize});
}

// The note is a paragraph of its own, close below the table.
void Writer::printIccTable() {
    printTable(ReportICCTable);
    const std::string note = sectionText(iccTableNote(), Halves::detail, facts_).text;
    if (!note.empty())
        send(step::Paragraph{note});
    SkipLine(1);
}

void Writer::summarize() {
    constexpr Halves half = Halves::summary;
    DoPrint(executiveSummary, "");
    SkipLine(1);
    for (const auto* section :
         {&nullSection(), &analysisSection(), &effectSection(), &alphaSection(), &designSection()})
        print(half, *section);
    printTable(ReportMainTable);
    SkipLine(1);
    for (const auto* section : {&sampleSizeSection(), &modelSection(), &iccSection()})
        print(half, *section);
    if (isBlocked())
        print(half, tauSqSection());
    print(half, covariateSection());
    print(half, powerSection());
    if (hasCosts())
        print(half, costSection());
    print(half, disclaimerSection());
    send(step::NewPage{});
}

void Writer::detail(const ReportExtras& extras) {
    constexpr Halves half = Halves::detail;
    DoPrint(detailedReport, "");
    SkipLine(1);
    for (const auto* section : {&nullSection(), &effectSection(), &alphaSection()}) {
        print(half, *section);
        SkipLine(1);
    }
    print(half, designSection());
    printTable(ReportMainTable);
    SkipLine(1);
    for (const auto* section : {&sampleSizeSection(), &modelSection(), &iccSection()})
        print(half, *section);
    printIccTable();
    if (isBlocked()) {
        print(half, tauSqSection());
        SkipLine(1);
        printTable(ReportTauSqTable);
        SkipLine(1);
    }
    print(half, covariateSection());
    print(half, powerSection());
    if (hasCosts())
        print(half, costSection());
    if (facts_.study().isBinary()) {
        print(half, countsSection());
        printTable(ReportCountsTable);
        SkipLine(2);
    }
    print(half, disclaimerSection());
    if (extras.checklist)
        print(half, checklistSection());
}

}  // namespace

PageSetup pageOf(const StudySettings& settings, std::string title) {
    PageSetup page;
    page.title = std::move(title);
    if (settings.ReportPaper == PaperSizes::a4) {
        page.width = 210 / 25.4;
        page.height = 297 / 25.4;
    }
    if (settings.ReportFont == 1)
        page.font = "Arial";
    if (settings.ReportFont == 2)
        page.font = "Times New Roman";
    return page;
}

void ReportGenerate(const SessionState& session, const ReportExtras& extras, const PageSetup& page,
                    DocumentSurface& surface) {
    Writer writer(session, page, surface);
    writer.summarize();
    writer.detail(extras);
}

std::size_t stepsOfSummary(const Document& report) {
    for (std::size_t i = 0; i < report.steps.size(); ++i) {
        const auto* paragraph = std::get_if<step::Paragraph>(&report.steps[i]);
        if (paragraph != nullptr && paragraph->text == detailedReport)
            return i;
    }
    return report.steps.size();
}

}  // namespace lorvane
