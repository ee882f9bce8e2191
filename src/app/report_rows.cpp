// The rows of the commands of the report and its viewer.
#include "app/report_rows.h"

#include "app/command_table.h"

namespace lorvane {

namespace {

using enum ToolCategory;
using P = const Program&;
using W = WindowId;

constexpr const char* reportScreen = "frmPrint";

// How commands stand
// -----------------------------------------------------------------------------------------

constexpr const char* noReport = "There is no report yet";

ToolState ifReport(P p) { return enabledIf(p.report.hasReport(), noReport); }

ToolState ifPagesBefore(P p) {
    return enabledIf(p.report.view().CurrentPage > 1, "No page comes before this one");
}

ToolState ifPagesAfter(P p) {
    return enabledIf(p.report.view().CurrentPage < p.report.view().pages, "No page follows this one");
}

ToolState ifMatches(P p) {
    return enabledIf(p.report.hasReport() && !p.report.txtFind().Text.empty(), "Find a text first");
}

template <Zooms zoom>
ToolState isZoom(P p) {
    return {.checked = p.report.view().zoom == zoom, .enabled = p.report.hasReport(), .reason = noReport};
}

template <int font>
void setFont(P p) {
    p.report.setFont(font);
}

// A number that names no font is that of the last one.
template <int font>
ToolState isFont(P p) {
    const int chosen = p.session.settings().ReportFont;
    const bool isOther = chosen != 1 && chosen != 2;
    return checkedIf(chosen == font || (font == 3 && isOther));
}

template <PaperSizes paper>
void setPaper(P p) {
    p.report.setPaper(paper);
}

template <PaperSizes paper>
ToolState isPaper(P p) {
    return checkedIf(p.session.settings().ReportPaper == paper);
}

template <Inclusions costs>
void setCosts(P p) {
    p.report.setCosts(costs);
}

template <Inclusions costs>
ToolState areCosts(P p) {
    return checkedIf(p.session.settings().ReportCosts == costs);
}

template <Inclusions spans>
void setSpans(P p) {
    p.report.setSpans(spans);
}

// Only where the ICCs of means are entered the user decides.
template <Inclusions spans>
ToolState areSpans(P p) {
    const bool open = spansAreOpen(p.session.study());
    const Inclusions told = spansToTell(p.session.state());
    return {.checked = told == spans,
            .enabled = open,
            .reason = "The report decides this, unless ICCs of means are entered"};
}

template <int pages>
void goBy(P p) {
    p.report.goTo(p.report.view().CurrentPage + pages);
}

template <int direction>
void zoom(P p) {
    p.report.zoomBy(direction);
}

// Captions of the page show in the tool bar between the arrows.
ToolState captionOfPage(P p) { return {.caption = p.report.caption().Caption}; }

const CommandRow reportTable[] = {
    {"gfrmPrint",
     "&Report",
     "Make a report",
     window,
     [](P p) { p.report.open(); },
     [](P p) { return checkedIf(p.report.isOpen()); },
     {Sign::report, true, "Ctrl+P"}},
    // File
    {"RTF Save",
     "Save as &RTF ...",
     "Save the report for a word processor",
     file,
     [](P p) { p.report.SaveRTF(); },
     ifReport,
     {Sign::saveGraph, true, "Ctrl+S", "Save as RTF", true}},
    {"PDF Save",
     "Save as &PDF ...",
     "Save the report as pages that look the same everywhere",
     file,
     [](P p) { p.report.SaveFilePDF(); },
     ifReport,
     {Sign::saveGraph, true, "Ctrl+Shift+S", "Save as PDF", true}},
    {"RTF open", "Open the report", "The report is open already", file, [](P) {}},
    {"Print page",
     "Print pa&ge ...",
     "Print the page that is shown",
     file,
     [](P p) { p.report.print(p.report.view().CurrentPage); },
     ifReport,
     {.opensDialog = true}},
    {"Print all",
     "Print &all ...",
     "Print the whole report",
     file,
     [](P p) { p.report.print({}); },
     ifReport,
     {Sign::print, true, "Ctrl+P", "Print", true}},
    {"frmPrint.Copy",
     "&Copy page",
     "Copy the page as a picture",
     file,
     [](P p) { p.report.copyPage(); },
     ifReport,
     {Sign::copy, false, "Ctrl+C"}},
    {"Copy paragraph",
     "Copy para&graph",
     "Copy the executive summary, for a protocol",
     file,
     [](P p) { p.report.copySummary(); },
     [](P p) {
         return enabledIf(p.report.isOpen() || p.session.study().result.xValid, "The study has no power");
     },
     {Sign::none, false, "Ctrl+Shift+C"}},
    {"Make again",
     "Make a&new",
     "Make the report of the study as it stands now",
     command,
     [](P p) { p.report.makeAgain(); },
     ifReport,
     {Sign::none, false, "F5"}},
    {"frmPrint.Close",
     "C&lose",
     "Close the report",
     command,
     [](P p) { p.report.close(); },
     nullptr,
     {Sign::close, true, "Esc Ctrl+W"}},
    // Pages
    {"Top of page", "&Top of page", "Go to the top of the page", command, [](P p) { p.report.topOfPage(); },
     ifReport},
    {"First",
     "&First",
     "Go to the first page",
     command,
     [](P p) { p.report.goTo(1); },
     ifPagesBefore,
     {Sign::first, false, "Ctrl+Home"}},
    {"Previous",
     "&Previous",
     "Go to the page before",
     command,
     goBy<-1>,
     ifPagesBefore,
     {Sign::left, false, "Ctrl+PgUp"}},
    {"Next",
     "&Next",
     "Go to the next page",
     command,
     goBy<1>,
     ifPagesAfter,
     {Sign::right, false, "Ctrl+PgDown"}},
    {"Last",
     "&Last",
     "Go to the last page",
     command,
     [](P p) { p.report.goTo(p.report.view().pages); },
     ifPagesAfter,
     {Sign::last, false, "Ctrl+End"}},
    {"Caption", "Page", "The page that is shown", display, [](P) {}, captionOfPage},
    // View
    {"Page width",
     "Page &width",
     "Show the page as wide as the window",
     choice,
     [](P p) { p.report.setZoom(Zooms::pageWidth); },
     isZoom<Zooms::pageWidth>,
     {Sign::pageWidth, true, "Ctrl+1"}},
    {"Fit page",
     "&Fit page",
     "Show the whole page",
     choice,
     [](P p) { p.report.setZoom(Zooms::fitPage); },
     isZoom<Zooms::fitPage>,
     {Sign::fitPage, true, "Ctrl+2"}},
    {"True size",
     "&True size",
     "Show the page as large as on paper",
     command,
     zoom<0>,
     ifReport,
     {Sign::none, false, "Ctrl+0"}},
    {"Zoom in",
     "Zoom &in",
     "Show the page larger",
     command,
     zoom<1>,
     ifReport,
     {Sign::none, false, "Ctrl++ Ctrl+="}},
    {"Zoom out",
     "Zoom &out",
     "Show the page smaller",
     command,
     zoom<-1>,
     ifReport,
     {Sign::none, false, "Ctrl+-"}},
    {"Find",
     "&Find ...",
     "Find a text in the report",
     command,
     [](P p) { p.report.find(); },
     ifReport,
     {Sign::none, false, "Ctrl+F"}},
    {"Find next",
     "Find &next",
     "Go to the next place of the text",
     command,
     [](P p) { p.report.findNext(1); },
     ifMatches,
     {Sign::down, false, "F3"}},
    {"Find previous",
     "Find &previous",
     "Go to the place of the text before",
     command,
     [](P p) { p.report.findNext(-1); },
     ifMatches,
     {Sign::up, false, "Shift+F3"}},
    // Settings
    {"Font Arial", "&Arial", "Write the report in Arial", choice, setFont<1>, isFont<1>},
    {"Font Times Roman", "&Times New Roman", "Write the report in Times New Roman", choice, setFont<2>,
     isFont<2>},
    {"Font Calibri", "&Calibri", "Write the report in Calibri", choice, setFont<3>, isFont<3>},
    {"Paper US", "Paper size &8.5 x 11 inches", "Print the report on US letter", choice,
     setPaper<PaperSizes::usLetter>, isPaper<PaperSizes::usLetter>},
    {"Paper UK", "Paper size &A4", "Print the report on A4", choice, setPaper<PaperSizes::a4>,
     isPaper<PaperSizes::a4>},
    {"Include costs in table", "&Include costs in table", "Tell the costs", choice,
     setCosts<Inclusions::include>, areCosts<Inclusions::include>},
    {"Do not include costs in table", "&Do not include costs in table", "Leave the costs out", choice,
     setCosts<Inclusions::leaveOut>, areCosts<Inclusions::leaveOut>},
    {"Include spans in report", "Include &spans in report",
     "Tell the spans of means; on offer where ICCs of means are entered", choice,
     setSpans<Inclusions::include>, areSpans<Inclusions::include>},
    {"Do not include spans in report", "Do not include s&pans in report",
     "Leave the spans of means out; on offer where ICCs of means are entered", choice,
     setSpans<Inclusions::leaveOut>, areSpans<Inclusions::leaveOut>},
    {"Include checklist in report", "Include chec&klist in report",
     "List what a paper on a cluster trial has to tell of its sample size", window,
     [](P p) { p.report.setChecklist(!p.report.hasChecklist()); },
     [](P p) { return checkedIf(p.report.hasChecklist()); }},
};

using Keys = std::vector<std::string>;

const Keys fonts = {"Font Arial", "Font Times Roman", "Font Calibri"};
const Keys papers = {"Paper US", "Paper UK"};
const Keys contents = {"Include costs in table",     "Do not include costs in table",  "-",
                       "Include spans in report",    "Do not include spans in report", "-",
                       "Include checklist in report"};

std::vector<MenuRow> reportMenus() {
    using enum BandKind;
    return {
        {"popReportFile",
         "&File",
         menu,
         {"RTF Save", "PDF Save", "-", "Print page", "Print all", "-", "frmPrint.Copy", "Copy paragraph", "-",
          "Make again", "frmPrint.Close"}},
        {"popReportPage", "&Page", menu, {"First", "Previous", "Next", "Last", "-", "Top of page"}},
        {"popReportView",
         "&View",
         menu,
         {"Page width", "Fit page", "True size", "-", "Zoom in", "Zoom out", "-", "Find", "Find next",
          "Find previous"}},
        {"popReportFont", "F&ont", menu, fonts},
        {"popReportPaper", "P&aper", menu, papers},
        {"popReportContents", "&Contents", menu, contents},
        {"frmPrintBar",
         "Tool bar of the report",
         toolbar,
         {"RTF Save", "PDF Save", "Print all", "frmPrint.Copy", "-", "First", "Previous", "Caption", "Next",
          "Last", "-", "Page width", "Fit page", ">", "frmPrint.Close"}},
    };
}

}  // namespace

void addReportCommands(std::vector<Command>& commands, const Program& program) {
    addCommands(commands, program, reportTable);
}

std::vector<Band> reportBands() {
    std::vector<Band> bands;
    for (const MenuRow& row : reportMenus()) {
        bands.push_back(bandOf(row));
        bands.back().screen = reportScreen;
    }
    return bands;
}

std::vector<std::string> reportSettingKeys() {
    Keys keys;
    for (const Keys* group : {&fonts, &papers, &contents}) {
        keys.push_back("-");
        keys.insert(keys.end(), group->begin(), group->end());
    }
    return keys;
}

}  // namespace lorvane
