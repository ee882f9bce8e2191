// The report with its viewer.
#include "reporting/report_screen.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "base/number_text.h"
#include "base/while_set.h"
#include "reporting/document_search.h"
#include "session/field_book.h"
#include "validation/icc_messages.h"

namespace lorvane {

namespace {

constexpr const char* createReport = "  Create report";
constexpr double noEffect = 0.0001;
constexpr int trueSize = 100;
constexpr int zoomSteps[] = {50, 67, 75, 90, 100, 110, 125, 150, 200, 300};

// What of the settings a report depends on.
ReportSettings settingsOf(const StudySettings& s) {
    return {s.ReportFont, s.ReportPaper, s.ReportCosts, s.ReportSpansChoice};
}

}  // namespace

// Making
// ---------------------------------------------------------------------------------------------------

void ReportScreen::open() {
    if (!ReportMake("", ReportModes::view, EffectQuestion::ask))
        return;
    if (!isOpen())
        goTo(1);
    design_.SuspendForms(FormSet::main);
    design_.SynchForms(WindowId::frmPrint, WindowAction::open);
}

bool ReportScreen::ReportMake(const std::string& fileName, ReportModes mode, EffectQuestion question) {
    if (!passesChecks(question))
        return false;
    madeWith_ = settingsOf(design_.settings());
    const WhileSet making(isMaking_);
    generate();
    madeFor_ = design_.session().state();
    tell("");
    if (mode != ReportModes::view && !fileName.empty() && files_.write(report_.document, fileName, mode))
        ReportFilePath_ = fileName;
    return true;
}

bool ReportScreen::passesChecks(EffectQuestion question) {
    if (!design_.study().result.xValid) {
        files_.ask({createReport, "Please modify data and try again.             "});
        return false;
    }
    return question == EffectQuestion::leaveOut || !lacksEffect() ||
           files_.ask({createReport,
                       "You have not yet entered an effect size. Would you like to proceed anyway?       ",
                       {Answer::Yes, Answer::No},
                       Answer::No}) == Answer::Yes;
}

bool ReportScreen::lacksEffect() const {
    const Study& s = design_.study();
    return std::fabs(s.isMeans() ? s.txtd : s.ComputedOR - 1) < noEffect;
}

void ReportScreen::generate() {
    ++revision_;
    makeReport(design_.session(), extras_, press_, report_);
    view_.pages = report_.pages;
    view_.CurrentPage = std::clamp(view_.CurrentPage, 1, view_.pages);
    Displaypage();
    if (view_.isFinding)
        search(view_.match.value_or(0));
}

// What was done, and what a reader of the report has to know.
void ReportScreen::tell(std::string done) {
    const bool isOld = !sameValues(madeFor_, design_.session().state());
    const std::string known = isOld ? "The study has changed since this report was made; F5 makes it anew."
                                    : truncationNote(madeFor_.study);
    if (!done.empty() && !known.empty())
        done += ' ';
    pnlStatus_.Caption = done + known;
}

void ReportScreen::makeAgain() { ReportMake("", ReportModes::view, EffectQuestion::leaveOut); }

// Settings -------------------------------------------------------------------------------------------------

// A report that is not shown is not missed where the study has none.
void ReportScreen::afterSetting() {
    if (isOpen() || design_.study().result.xValid)
        makeAgain();
}

template <typename Change>
void ReportScreen::set(const char* name, Change change) {
    {
        const WhileSet making(isMaking_);
        design_.session().edit({name, Reach::setting}, [&](SessionState& state) { change(state.settings); });
    }
    afterSetting();
}

void ReportScreen::setFont(int font) {
    set("font of the report", [font](StudySettings& settings) { settings.ReportFont = font; });
}

void ReportScreen::setPaper(PaperSizes paper) {
    set("paper of the report", [paper](StudySettings& settings) { settings.ReportPaper = paper; });
}

void ReportScreen::setCosts(Inclusions costs) {
    set("costs in the report", [costs](StudySettings& settings) { settings.ReportCosts = costs; });
}

void ReportScreen::setSpans(Inclusions spans) {
    set("spans in the report",
        [spans](StudySettings& settings) { settings.ReportSpans = settings.ReportSpansChoice = spans; });
}

void ReportScreen::setChecklist(bool included) {
    extras_.checklist = included;
    afterSetting();
}

// The viewer -----------------------------------------------------------------------------------------------

void ReportScreen::Displaypage() {
    caption_.Caption = "Page " + std::to_string(view_.CurrentPage) + " of " + std::to_string(view_.pages);
}

void ReportScreen::goTo(int page) {
    view_.CurrentPage = std::clamp(page, 1, std::max(view_.pages, 1));
    topOfPage();
}

void ReportScreen::topOfPage() {
    ++view_.jump;
    Displaypage();
}

void ReportScreen::setZoom(Zooms zoom) { view_.zoom = zoom; }

void ReportScreen::zoomBy(int direction) {
    view_.zoom = Zooms::percent;
    if (direction == 0) {
        view_.percent = trueSize;
        return;
    }
    const auto* larger = std::upper_bound(std::begin(zoomSteps), std::end(zoomSteps), view_.percent);
    const auto* here = std::lower_bound(std::begin(zoomSteps), std::end(zoomSteps), view_.percent);
    if (direction > 0 && larger != std::end(zoomSteps))
        view_.percent = *larger;
    if (direction < 0 && here != std::begin(zoomSteps))
        view_.percent = *std::prev(here);
}

// The panels that made way come back; those that the study has no use for by now close again.
void ReportScreen::close() {
    endFind();
    design_.SynchForms(WindowId::frmPrint, WindowAction::unload);
    design_.RestoreForms(FormSet::main);
    design_.closeUnfit();
}

// Finding --------------------------------------------------------------------------------------------------

void ReportScreen::find() {
    view_.isFinding = true;
    search(0);
}

void ReportScreen::endFind() {
    view_.isFinding = false;
    view_.matches.clear();
    view_.match.reset();
    pnlFound_.Caption.clear();
}

// Goes to the match of a number, or to the last one where there are fewer.
void ReportScreen::search(std::size_t match) {
    view_.matches = placesOf(txtFind_.Text, report_.document);
    view_.match.reset();
    if (!view_.matches.empty())
        view_.match = std::min(match, view_.matches.size() - 1);
    tellMatch();
}

void ReportScreen::findNext(int direction) {
    if (!view_.isFinding)
        find();
    if (!view_.match)
        return;
    const std::size_t count = view_.matches.size();
    view_.match = (*view_.match + (direction > 0 ? 1 : count - 1)) % count;
    tellMatch();
}

void ReportScreen::tellMatch() {
    ++view_.search;
    pnlFound_.trouble = !view_.match && !txtFind_.Text.empty();
    pnlFound_.Caption = pnlFound_.trouble ? "Not found" : "";
    if (view_.match)
        pnlFound_.Caption = std::to_string(*view_.match + 1) + " of " + std::to_string(view_.matches.size());
}

// Files ----------------------------------------------------------------------------------------------------

void ReportScreen::SaveRTF() {
    if (const auto path = files_.GetFileName())
        ReportMake(*path, ReportModes::rtf, EffectQuestion::leaveOut);
}

void ReportScreen::SaveFilePDF() {
    if (const auto path = files_.GetFileNamePDF())
        ReportMake(*path, ReportModes::pdf, EffectQuestion::leaveOut);
}

void ReportScreen::copyPage() { tell(files_.copyPage(report_.document, view_.CurrentPage)); }

// While the viewer is closed, the report would be an old one.
void ReportScreen::copySummary() {
    if (!isOpen() && !ReportMake("", ReportModes::view, EffectQuestion::leaveOut))
        return;
    const std::string told = files_.copySummary(report_.document);
    tell(told);
    if (!isOpen())
        design_.tellStatus(told);
}

void ReportScreen::print(std::optional<int> page) { tell(files_.print(report_.document, page)); }

// What happens around it -----------------------------------------------------------------------------------

// The report is a picture of the study at one moment: it follows its own settings and nothing else, once the
// study gives an answer.
void ReportScreen::follow(const Changed& changed) {
    if (!isOpen() || isMaking_)
        return;
    if (changed.otherStudy)
        close();
    else if (madeWith_ != settingsOf(design_.settings()) && design_.study().result.xValid)
        makeAgain();
    else if (changed.reach == Reach::study)
        tell("");
}

void ReportScreen::registerNames(ControlRegistry& registry) const {
    registry.add("ReportFilePath", &ReportFilePath_);
    registry.add("frmPrint.Caption", &caption_.Caption);
    registry.add("frmPrint.CurrentPage", &view_.CurrentPage);
    registry.add("frmPrint.Pages", &view_.pages);
    registry.add("frmPrint.Zoom", &view_.percent);
    registry.add("frmPrint.pnlStatus", pnlStatus_);
    registry.add("frmPrint.txtFind", &txtFind_.Text);
    registry.add("frmPrint.pnlFound", pnlFound_);
}

void ReportScreen::registerEvents(EventRegistry& events) {
    constexpr double mostPages = 10000;
    constexpr double mostPercent = 10000;
    events.addTextBox("frmPrint.txtFind", txtFind_);
    events.onTyped("frmPrint.txtFind", [this] { find(); });
    events.onClick("frmPrint.cmdEndFind", [this] { endFind(); });
    events.onClose("frmPrint", [this] { close(); });
    // The viewer was scrolled to another page, or has made the pages fit; steps of the zoom begin there.
    events.addNumber("frmPrint.Zoom",
                     {1, mostPercent, [this](double percent) { view_.percent = static_cast<int>(percent); }});
    events.addNumber("frmPrint.CurrentPage", {1, mostPages, [this](double page) {
                                                  view_.CurrentPage = std::clamp(static_cast<int>(page), 1,
                                                                                 std::max(view_.pages, 1));
                                                  Displaypage();
                                              }});
}

}  // namespace lorvane
