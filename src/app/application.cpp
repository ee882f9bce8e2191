// The program without a face.
#include "app/application.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/arithmetic_fault.h"
#include "base/names.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"
#include "persistence/scenario_cells.h"
#include "persistence/study_file.h"
#include "screen/commands.h"

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
      dialogs_(design_), details_(design_) {
    design_.registerNames(names_);
    dialogs_.registerNames(names_);
    details_.registerNames(names_);
    names_.addGrid("vsFile", scenarios_.grid());
    registerCommands(events_, design_);
    dialogs_.registerEvents(events_);
    details_.registerEvents(events_);
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
    try {
        event();
    } catch (const ArithmeticFault&) {
        design_.showFault();
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
    box->Text = text;
}

void Application::close(const std::string& window) {
    handle([&] {
        if (!events_.close(window))
            throw UseProblem("There is no window \"" + window + "\" to close.");
    });
}

void Application::spin(const std::string& control, int direction, Design::SpinMode mode) {
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

// Puts study, settings, windows and screen back when the change cannot be carried out.
template <typename Change>
void Application::changeOrUndo(Change change) {
    const Study study = design_.study();
    const SessionSettings settings = design_.settings();
    const WindowRegistry windows = design_.windows();
    try {
        change();
        design_.DoRefresh(true);
    } catch (...) {
        design_.study() = study;
        design_.settings() = settings;
        design_.applyChoices();
        showAsItWas();
        design_.settings().StudyDirty = settings.StudyDirty;
        design_.putBack(windows);
        throw;
    }
}

// The study before a refused change may be one that cannot be computed either.
void Application::showAsItWas() {
    try {
        design_.DoRefresh(true);
    } catch (const ArithmeticFault&) {
        design_.showFault();
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
    changeOrUndo([&] {
        design_.startAnew();
        applyChoices(values);
        write(values);
        design_.settings().CurrentFile.clear();
    });
    scenarios_ = ScenarioGrid();
}

void Application::set(std::span<const Assignment> values) {
    check(values, Kind::choices, ValueSource::dialog);
    changeOrUndo([&] {
        applyChoices(values);
        check(values, Kind::values, ValueSource::dialog);
        write(values);
    });
}

void Application::open(const std::string& path) {
    ScenarioGrid loaded = LoadGrid(platform_.files, path);
    changeOrUndo([&] {
        design_.startAnew();
        RestoreScenario(loaded, design_, SystemScenarioName);
        design_.settings().CurrentFile = path;
    });
    loaded.DeleteScenario(SystemScenarioName);
    scenarios_ = std::move(loaded);
}

void Application::save(const std::string& path) {
    scenarios_.DeleteScenario(SystemScenarioName);
    SaveScenario(scenarios_, design_, SystemScenarioName, SystemScenarioName);
    SaveGrid(platform_.files, path, scenarios_);
    design_.settings().CurrentFile = path;
    design_.settings().StudyDirty = false;
    design_.showTools();
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
    changeOrUndo([&] {
        design_.startAnew();
        RestoreScenario(scenarios_, design_, name);
    });
}

bool Application::hasPower() const {
    const Study& s = design_.study();
    const bool tested =
        s.isMeans() || s.BinaryType == BinaryTypes::oddsRatio || s.BinaryType == BinaryTypes::riskDifference;
    return s.result.xValid == 1 && tested;
}

std::string Application::whyNoPower() const {
    const Study& s = design_.study();
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
