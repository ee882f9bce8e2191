// The program without a face.
#include "app/application.h"

#include <set>
#include <utility>

#include "app/window_rows.h"
#include "base/arithmetic_fault.h"
#include "base/names.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "persistence/recovery.h"

namespace lorvane {

namespace {

GraphFacts factsOf(const GraphScreen& graph) {
    const GraphState& state = graph.state();
    return {graph.axisTitle(), graph.seriesTitle(), graph.rangeIsByHand(), state.DisplayOn,
            state.DetailsCorner};
}

}  // namespace

// What the platform leaves out is done by parts of the program's own.
Application::Application(const Platform& platform)
    : platform_(platform), session_(platform.distributions, detectCurrency(platform.locale),
                                    platform.clock == nullptr ? steadyClock_ : *platform.clock),
      design_(session_, platform.messages), recent_(platform.settings),
      store_(platform.files, platform.programFolder, platform.hourglass),
      studyFiles_(design_, store_, recent_, platform.dialogs),
      startScreen_(design_, studyFiles_, recent_, platform.files),
      optimalWindow_(design_, platform.progress == nullptr ? noProgress_ : *platform.progress),
      graph_(design_,
             {platform.dialogs, platform.files,
              platform.clipboard == nullptr ? noClipboard_ : *platform.clipboard, platform.chart,
              platform.sheets, platform.shell},
             platform.progress == nullptr ? noProgress_ : *platform.progress, platform.hourglass),
      graphGuide_(design_, [this] { return factsOf(graph_); }),
      report_(design_, {platform.dialogs, platform.files,
                        platform.clipboard == nullptr ? noClipboard_ : *platform.clipboard, platform.press}),
      about_(design_, platform.facts, platform.programFolder + "/LICENSE",
             platform.clipboard == nullptr ? noClipboard_ : *platform.clipboard, platform.shell),
      keyboard_(design_, platform.press), manuals_(platform.programFolder, platform.files, platform.shell),
      guide_(design_, details_, manuals_, platform.settings,
             {[this](const char* tool) { commands_.run(tool); },
              [this](const char* window) { events_.close(window); }}),
      commands_(commandRows({session_, design_, dialogs_, details_, mdesWindow_, optimalWindow_,
                             scenarioWindow_, studyFiles_, startScreen_, graph_, graphGuide_, report_,
                             platform.clipboard == nullptr ? noClipboard_ : *platform.clipboard, about_,
                             keyboard_, guide_, manuals_}),
                bandRows()) {
    keyboard_.fill(commands_);
    session_.follow([this](const Changed& changed) { follow(changed); });
    registerNames();
    for (Part* part : parts_)
        part->registerEvents(events_);
    registerPanels();
    commands_.sync();
}

// The one order in which the parts of the program hear of a change.
void Application::follow(const Changed& changed) {
    design_.show(changed);
    for (Part* part : parts_)
        part->follow(changed);
    commands_.sync();
}

void Application::registerNames() {
    design_.registerNames(names_);
    commands_.registerNames(names_);
    for (const Part* part : parts_)
        part->registerNames(names_);
    names_.addGrid("vsFile", [this] { return session_.scenarios().grid(); });
    names_.addGrid("flexfiles", recent_.flexfiles());
    names_.add("Clipboard.Text", &noClipboard_.content().text);
    names_.add("Clipboard.Html", &noClipboard_.content().html);
}

// A floating panel that is closed by its frame is withdrawn, since its flags take part in every computation.
void Application::registerPanels() {
    using enum WindowId;
    static constexpr std::pair<const char*, WindowId> panels[] = {
        {"frmDisplayICC", frmDisplayICC}, {"frmDisplayTauSq", frmDisplayTauSq},
        {"frmProblems", frmProblems},     {"frmProblemES", frmProblemES},
        {"frmCounts", frmCounts},         {"frmDetails", frmDetails}};
    for (const auto& [name, window] : panels)
        events_.onClose(
            name, [this, window = window] { design_.SynchForms(window, WindowAction::withdrawForGood); });
    // What a card tells is gone with any event.
    events_.onClick("cmdNotice", [] {});
    events_.onClose("Design", [this] { studyFiles_.closeRequest(); });
    for (int level = lowestLevel; level <= highestLevel; ++level)
        events_.onClick(indexedName("chkMatch", level), [this, level] { toggleBlocked(session_, level); });
}

// The graph changes without the session.
void Application::announce() {
    graphGuide_.dotips();
    commands_.sync();
    events_.announceShown();
}

// Runs an event and tells the faces that everything is right again, also after a fault. What is refused
// leaves the status line as it was.
template <typename Event>
void Application::handle(Event event) {
    const std::string status = design_.screen().pnlStatus.Caption;
    design_.tellStatus("");
    try {
        event();
    } catch (const StudyFault&) {
        announce();
        throw;
    } catch (const ArithmeticFault& fault) {
        showAgain();
        announce();
        if (fault.tellsCulprit())
            throw;
        throw StudyFault(fault, session_.study());
    } catch (const UseProblem&) {
        design_.tellStatus(status);
        announce();
        throw;
    } catch (...) {
        announce();
        throw;
    }
    announce();
}

// A search that could not go on leaves its window in the middle of its work.
void Application::showAgain() {
    try {
        session_.refresh();
    } catch (const StudyFault&) {
        // The screen asks for other data by now, and the fault that brought us here is on its way.
    }
}

void Application::tool(const std::string& name) {
    const Tool* tool = commands_.find(name);
    if (tool == nullptr)
        throw UseProblem("There is no tool " + inQuotes(name) + "; the nearest is \"" +
                         commands_.nearest(name) + "\".");
    if (!tool->Enabled)
        throw UseProblem("The tool \"" + name + "\" is not on offer as the study stands (" + tool->Reason +
                         ").");
    handle([&] { commands_.run(name); });
}

bool Application::closesForm(const std::string& name) const {
    const Tool* form = commands_.find(name);
    return form != nullptr && form->Checked && !windowOfForm(name).empty();
}

void Application::toggleForm(const std::string& name) {
    if (closesForm(name))
        close(windowOfForm(name));
    else
        tool(name);
}

void Application::click(const std::string& control) {
    handle([&] {
        if (!events_.click(control))
            throw UseProblem("There is no control " + inQuotes(control) + " to click.");
    });
}

void Application::type(const std::string& control, const std::string& text) {
    TextBox* box = events_.textBox(control);
    if (box == nullptr)
        throw UseProblem("There is no text box " + inQuotes(control) + ".");
    if (text.size() > ScenarioGrid::longestCell || !isCleanText(text))
        throw UseProblem("The text for " + control + " must be UTF-8 text of at most " +
                         std::to_string(ScenarioGrid::longestCell) + " bytes without NUL.");
    box->Text = text;
    if (const auto* typed = events_.typed(control))
        handle(*typed);
}

void Application::select(const std::string& grid, const std::vector<std::size_t>& rows) {
    Grid* table = events_.selectableGrid(grid);
    if (table == nullptr)
        throw UseProblem("There is no table " + inQuotes(grid) + " in which rows can be selected.");
    const std::set<std::size_t> chosen(rows.begin(), rows.end());
    if (table->rows.size() < 2 && !chosen.empty())
        throw UseProblem("There are no rows in " + grid + " at the moment.");
    if (chosen.contains(0) || (!chosen.empty() && *chosen.rbegin() >= table->rows.size()))
        throw UseProblem("The rows of " + grid + " go from 1 to " + std::to_string(table->rows.size() - 1) +
                         ".");
    handle([&] {
        table->selected.assign(chosen.begin(), chosen.end());
        events_.selected(grid);
    });
}

void Application::close(const std::string& window) {
    handle([&] {
        if (!events_.close(window))
            throw UseProblem("There is no window " + inQuotes(window) + " to close.");
    });
}

void Application::spin(const std::string& control, int direction, ArrowHold hold, int times) {
    if (const auto* spun = events_.spin(control)) {
        handle([&] {
            for (int i = 0; i < times; ++i)
                (*spun)(direction);
        });
        return;
    }
    const auto field = findArrows(control);
    if (!field)
        throw UseProblem("There are no arrows " + inQuotes(control) + ".");
    handle([&] { design_.Spin(*field, direction, hold, times); });
}

void Application::spinReleased() {
    handle([&] { session_.refresh(); });
}

void Application::suspendForms() {
    handle([&] { design_.SuspendForms(FormSet::main); });
}

void Application::restoreForms() {
    handle([&] { design_.RestoreForms(FormSet::main); });
}

void Application::openValue(const std::string& field, const std::string& firstText) {
    handle([&] {
        if (const auto found = findField(field))
            dialogs_.activate(*found, firstText);
    });
}

void Application::focus(FieldRef field) {
    const std::optional<FieldRef> before = design_.focus();
    if (!before || before->field != field.field || before->index != field.index)
        design_.tellStatus("");
    design_.setFocus(field);
    details_.tellOf(field);
    announce();
}

void Application::toggleLink(FieldRef field) {
    handle([&] { lorvane::toggleLink(session_, field); });
}

void Application::enterValue(FieldRef field, double value) {
    handle([&] { lorvane::enterValue(session_, field, value); });
}

void Application::setNumber(const std::string& name, double value) {
    const EventRegistry::Number* number = events_.number(name);
    if (number == nullptr)
        throw UseProblem("There is no number \"" + name + "\".");
    if (!(value >= number->low && value <= number->high))
        throw UseProblem(name + " must lie from " + shortestText(number->low) + " to " +
                         shortestText(number->high) + ", not at " + sentenceText(value) + ".");
    handle([&] { number->write(value); });
}

void Application::load(std::span<const Assignment> values) { loadValues(session_, values); }

void Application::set(std::span<const Assignment> values) { setValues(session_, values); }

void Application::start(const std::string& file) {
    handle([&] {
        recent_.GetFiles();
        const bool broughtBack = Recovery(design_, studyFiles_, platform_.unsaved).offer();
        if (!file.empty() && !broughtBack)
            studyFiles_.OpenFile(file);
        else if (!file.empty())
            studyFiles_.askAndOpen(file, Answer::Cancel);
        else if (!broughtBack)
            startScreen_.open();
        design_.showGuide();
    });
}

void Application::askAndOpen(const std::string& path) {
    handle([&] { studyFiles_.askAndOpen(path); });
}

void Application::open(const std::string& path) {
    handle([&] { studyFiles_.open(path); });
}

void Application::save(const std::string& path) {
    handle([&] { studyFiles_.save(path); });
}

void Application::restoreScenario(const std::string& name) {
    handle([&] { lorvane::restoreScenario(session_, name); });
}

}  // namespace lorvane
