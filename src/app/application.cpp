// The program without a face.
#include "app/application.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

#include "base/arithmetic_fault.h"
#include "base/names.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "engine/effect_metrics.h"
#include "persistence/scenario_cells.h"
#include "screen/commands.h"
#include "screen/whole_change.h"

namespace lorvane {

namespace {

// The last value that is given for a name.
const Assignment* findAssignment(std::span<const Assignment> values, std::string_view name) {
    const auto found = std::find_if(values.rbegin(), values.rend(),
                                    [&](const Assignment& value) { return value.name == name; });
    return found == values.rend() ? nullptr : &*found;
}

int wholeOf(const Assignment& assignment) { return static_cast<int>(std::get<double>(assignment.value)); }

std::optional<bool> readFlag(std::string_view text) {
    const std::string lower = lowerCased(trimmed(text));
    if (lower == "true" || lower == "1")
        return true;
    if (lower == "false" || lower == "0")
        return false;
    return std::nullopt;
}

}  // namespace

Application::Application(const Platform& platform)
    : platform_(platform), design_(platform.distributions, platform.locale, platform.messages),
      dialogs_(design_), details_(design_), mdesWindow_(design_), scenarioWindow_(design_, scenarios_),
      recent_(platform.settings), studyFiles_(design_, scenarios_, scenarioWindow_, recent_, platform.files,
                                              platform.dialogs, platform.programFolder),
      startScreen_(design_, studyFiles_, recent_, platform.files),
      optimalWindow_(design_, platform.distributions,
                     platform.progress == nullptr ? noProgress_ : *platform.progress) {
    design_.registerNames(names_);
    dialogs_.registerNames(names_);
    details_.registerNames(names_);
    mdesWindow_.registerNames(names_);
    scenarioWindow_.registerNames(names_);
    startScreen_.registerNames(names_);
    optimalWindow_.registerNames(names_);
    names_.addGrid("vsFile", scenarios_.grid());
    names_.addGrid("flexfiles", recent_.flexfiles());
    registerCommands(events_, design_);
    dialogs_.registerEvents(events_);
    details_.registerEvents(events_);
    mdesWindow_.registerEvents(events_);
    scenarioWindow_.registerEvents(events_);
    studyFiles_.registerEvents(events_);
    startScreen_.registerEvents(events_);
    optimalWindow_.registerEvents(events_);
    registerPanels();
    disableToolsWithoutSubject();
}

// A tool whose subject the program does not have is there, and cannot be used.
void Application::disableToolsWithoutSubject() {
    for (const Tool& tool : design_.tools().tools()) {
        if (!events_.knowsTool(tool.Name))
            design_.tools().setEnabled(tool.Name, false);
    }
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
    events_.onClose("Design", [this] { design_.closeRequest(); });
}

// Runs an event and tells the faces that everything is right again, also after a fault.
template <typename Event>
void Application::handle(Event event) {
    struct Announce {
        Application& application;
        ~Announce() {
            application.design_.showTools();
            application.events_.announceShown();
        }
    } const announce{*this};
    design_.tellStatus("");
    try {
        event();
    } catch (const ArithmeticFault&) {
        refreshOrShowFault(design_);
        throw;
    }
}

void Application::tool(const std::string& name) {
    const Tool* tool = design_.tools().find(name);
    if (tool == nullptr)
        throw UseProblem("There is no tool \"" + name + "\"; the nearest is \"" + nearestTool(name) + "\".");
    if (!tool->Enabled)
        throw UseProblem("The tool \"" + name + "\" is not on offer as the study stands (" +
                         tool->ToolTipText + ").");
    handle([&] { events_.tool(name); });
}

std::string Application::nearestTool(const std::string& name) const {
    std::vector<std::string> known;
    for (const Tool& tool : design_.tools().tools())
        known.push_back(tool.Name);
    return nearestName(name, known);
}

void Application::click(const std::string& control) {
    handle([&] {
        if (!events_.click(control))
            throw UseProblem("There is no control \"" + control + "\" to click.");
    });
}

void Application::type(const std::string& control, const std::string& text) {
    TextBox* box = events_.textBox(control);
    if (box == nullptr)
        throw UseProblem("There is no text box \"" + control + "\".");
    if (text.size() > ScenarioGrid::longestCell || !isCleanText(text))
        throw UseProblem("The text for " + control + " must be UTF-8 text of at most " +
                         std::to_string(ScenarioGrid::longestCell) + " bytes without NUL.");
    box->Text = text;
}

void Application::select(const std::string& grid, const std::vector<std::size_t>& rows) {
    Grid* table = events_.selectableGrid(grid);
    if (table == nullptr)
        throw UseProblem("There is no table \"" + grid + "\" in which rows can be selected.");
    const std::set<std::size_t> chosen(rows.begin(), rows.end());
    if (chosen.contains(0) || (!chosen.empty() && *chosen.rbegin() >= table->rows.size()))
        throw UseProblem("The rows of " + grid + " go from 1 to " + std::to_string(table->rows.size() - 1) +
                         ".");
    handle([&] { table->selected.assign(chosen.begin(), chosen.end()); });
}

void Application::close(const std::string& window) {
    handle([&] {
        if (!events_.close(window))
            throw UseProblem("There is no window \"" + window + "\" to close.");
    });
}

void Application::spin(const std::string& control, int direction, Design::SpinMode mode) {
    if (const auto* spun = events_.spin(control)) {
        handle([&] { (*spun)(direction); });
        return;
    }
    const IndexedName name = splitName(control);
    const bool ofLevel = name.index && *name.index >= lowestLevel && *name.index <= highestLevel;
    const auto arrows = findSpin(control);
    if (!arrows && !(ofLevel && (name.stem == "spnModel" || name.stem == "spnPop")))
        throw UseProblem("There are no arrows \"" + control + "\".");
    handle([&] {
        if (arrows)
            design_.Spin(*arrows, direction, mode);
        else if (name.stem == "spnModel")
            design_.spinModel(*name.index, direction);
        else
            design_.spinPop(*name.index, direction);
    });
}

void Application::spinReleased() {
    handle([&] { design_.DoRefresh(true); });
}

void Application::suspendForms() {
    handle([&] { design_.SuspendForms(FormSet::main); });
}

void Application::restoreForms() {
    handle([&] { design_.RestoreForms(FormSet::main); });
}

void Application::openValue(const std::string& field) {
    handle([&] { dialogs_.openValue(field); });
}

void Application::setNumber(const std::string& name, double value) {
    const EventRegistry::Number* number = events_.number(name);
    if (number == nullptr)
        throw UseProblem("There is no number \"" + name + "\".");
    if (!(value >= number->low && value <= number->high))
        throw UseProblem(name + " must lie from " + shortestText(number->low) + " to " +
                         shortestText(number->high) + ", not at " + shortestText(value) + ".");
    handle([&] { number->write(value); });
}

const StudyField& Application::knownField(const std::string& name) const {
    const StudyField* field = fields().find(name);
    if (field == nullptr)
        throw UseProblem("There is no field \"" + name + "\"; the nearest is \"" + fields().nearest(name) +
                         "\".");
    return *field;
}

Assignment Application::parse(const std::string& name, const std::string& text) const {
    const StudyField& field = knownField(name);
    if (std::holds_alternative<std::string*>(field.target))
        return {name, text};
    if (std::holds_alternative<bool*>(field.target)) {
        if (const auto flag = readFlag(text))
            return {name, *flag};
        throw UseProblem(name + " takes true or false, not \"" + text + "\".");
    }
    if (const auto number = readNumber(text))
        return {name, *number};
    throw UseProblem(name + " takes a number, not \"" + text + "\".");
}

void Application::check(std::span<const Assignment> values, Kind kind, ValueSource source) const {
    for (const Assignment& value : values) {
        const StudyField& field = knownField(value.name);
        if (field.isDesignChoice != (kind == Kind::choices))
            continue;
        const std::string why = refusal(fields(), field, value.value, source);
        if (!why.empty())
            throw UseProblem(why);
    }
}

// The number of levels moves the randomization to the top; a level of randomization of its own comes after
// it.
void Application::applyChoices(std::span<const Assignment> values) {
    const Study& study = design_.study();
    for (const Assignment& value : values) {
        const StudyField& field = knownField(value.name);
        if (field.isDesignChoice && field.name != "NumLevels" && field.name != "RandomizedLevel")
            writeField(field, value.value);
    }
    const Assignment* levels = findAssignment(values, "NumLevels");
    if (levels != nullptr && wholeOf(*levels) != study.NumLevels)
        design_.setNumLevels(wholeOf(*levels));
    if (const Assignment* randomized = findAssignment(values, "RandomizedLevel")) {
        if (wholeOf(*randomized) > study.NumLevels)
            throw UseProblem("RandomizedLevel must lie from 1 to " + std::to_string(study.NumLevels) +
                             ", the number of levels.");
        design_.randomize(wholeOf(*randomized));
    }
}

void Application::write(std::span<const Assignment> values) {
    for (const Assignment& value : values) {
        const StudyField& field = knownField(value.name);
        if (!field.isDesignChoice)
            writeField(field, value.value);
    }
    design_.applyChoices();
}

void Application::load(std::span<const Assignment> values) {
    check(values, Kind::choices, ValueSource::file);
    check(values, Kind::values, ValueSource::file);
    changeOrUndo(design_, [&] {
        design_.startAnew();
        applyChoices(values);
        write(values);
        design_.settings().CurrentFile.clear();
    });
    studyFiles_.forgetScenarios();
}

void Application::set(std::span<const Assignment> values) {
    check(values, Kind::choices, ValueSource::dialog);
    changeOrUndo(design_, [&] {
        applyChoices(values);
        check(values, Kind::values, ValueSource::dialog);
        write(values);
    });
}

void Application::start(const std::string& file) {
    handle([&] {
        recent_.GetFiles();
        const bool broughtBack = offerLeftBehind();
        if (!file.empty() && !broughtBack)
            studyFiles_.OpenFile(file);
        else if (!file.empty())
            studyFiles_.askAndOpen(file);
        else if (!broughtBack)
            startScreen_.open();
        design_.SynchForms(WindowId::frmTips, WindowAction::open);
    });
}

// Whether the study on screen is one that an earlier run has left behind.
bool Application::offerLeftBehind() {
    const auto left = platform_.unsaved == nullptr ? std::nullopt : platform_.unsaved->takeLeftBehind();
    if (!left)
        return false;
    const std::string whose = left->file.empty() ? "a new study" : "\"" + left->file + "\"";
    const Answer answer =
        design_.ask("Unsaved study",
                    "Lorvane ended before the last changes of " + whose + " were saved. Bring them back?",
                    {Answer::Yes, Answer::No});
    const bool back = answer == Answer::Yes && studyFiles_.bringBack(*left);
    if (!back)
        platform_.unsaved->drop();
    return back;
}

std::optional<UnsavedStudy> Application::unsavedStudy() const { return studyFiles_.unsavedStudy(); }

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
    if (!scenarios_.findBlock(name)) {
        std::vector<std::string> known;
        for (const ScenarioLine& line : scenarios())
            known.push_back(line.name);
        const std::string hint =
            known.empty() ? "the study has none" : "the nearest is \"" + nearestName(name, known) + "\"";
        throw UseProblem("There is no scenario \"" + name + "\"; " + hint + ".");
    }
    changeOrUndo(
        design_,
        [&] {
            design_.startAnew();
            RestoreScenario(scenarios_, design_, name);
        },
        IfFault::show);
}

bool Application::hasPower() const {
    const Study& s = design_.study();
    const bool tested =
        s.isMeans() || s.BinaryType == BinaryTypes::oddsRatio || s.BinaryType == BinaryTypes::riskDifference;
    return s.result.xValid == 1 && tested;
}

std::string Application::whyNoPower() const {
    const Study& s = design_.study();
    if (!design_.faultWords().empty())
        return design_.faultWords();
    if (s.result.xValid == 1)
        return "The effect metric \"" + std::string(GetESName(s)) +
               "\" has no test; state the effect as an odds ratio or a risk difference.";
    const std::string& reason = s.result.ValidES == 0         ? design_.effectProblems().pnlErrES.Caption
                                : s.outcome.ValidICC(0) == 0  ? design_.iccPanel().pnlMsgInner.Caption
                                : s.effect.ValidTauSq(0) == 0 ? design_.tauSqPanel().pnlMsgInner.Caption
                                                              : design_.problems().pnlErr.Caption;
    return reason.empty() ? design_.screen().pnlPower.Caption : reason;
}

}  // namespace lorvane
