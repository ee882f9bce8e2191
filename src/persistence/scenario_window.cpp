// The window of scenarios and the dialog that names one.
#include "persistence/scenario_window.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "base/letter_case.h"
#include "base/names.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "persistence/scenario_cells.h"
#include "persistence/study_file.h"
#include "screen/questions.h"

namespace lorvane {

namespace {

constexpr const char* nameBox = "frmScenariosName.txtScenariosName";
constexpr const char* descriptionBox = "frmScenariosName.txtScenariosDesc";
constexpr std::size_t nameColumn = 1;
constexpr std::size_t descriptionOfList = 2;
constexpr std::size_t digitsOfNumber = 4;
constexpr std::size_t longestShownName = 40;  // letters
constexpr int largestNumber = 1000000000;
constexpr Colour progressColour{0, 0, 125};
const Grid::Row heads = {"", "Name", "Description", "Power", "Cost"};
constexpr const char* buttonCaptions[] = {"Add", "Restore", "Delete", "Edit", "Close"};

std::string numbered(int number) {
    std::string digits = std::to_string(number);
    digits.insert(0, digitsOfNumber - std::min(digits.size(), digitsOfNumber), '0');
    return "Scenario " + digits;
}

// A name as the status line tells it.
std::string shownName(const std::string& name) { return printable(cutInMiddle(name, longestShownName)); }

}  // namespace

ScenarioWindow::ScenarioWindow(Design& design)
    : design_(design), session_(design.session()), name_(makeNameDialog()) {
    progress_.pnlProgress.BackColor = progressColour;
    for (int button = 0; button <= cmdScenarios_.last; ++button)
        cmdScenarios_(button).Caption = buttonCaptions[button];
    ScenariosSetup();
}

Dialog ScenarioWindow::makeNameDialog() {
    Dialog dialog{"frmScenariosName",
                  WindowId::frmScenariosName,
                  "pnlLimits",
                  {},
                  {{"frmScenariosName.cmdScenarioNameOk(1)", "Cancel", [this] { closeName(); }},
                   {"frmScenariosName.cmdScenarioNameOk(0)", "Apply", [this] { applyName(); }}}};
    for (const auto& [control, label] : {std::pair{nameBox, "Name"}, {descriptionBox, "Description"}}) {
        DialogField field;
        field.control = control;
        field.label.Caption = label;
        field.entry = DialogEntry::text;
        dialog.fields.push_back(std::move(field));
    }
    dialog.title.Caption = "Edit row";
    dialog.sense.Caption = "Name and describe the scenario";
    return dialog;
}

void ScenarioWindow::registerNames(ControlRegistry& registry) const {
    registry.addGrid("frmScenarios.vsNames", vsNames_);
    registry.addGrid("frmScenarios.vsTips", [this] { return tips(); });
    registry.add("frmScenarios.pnlProgress", progress_.pnlProgress);
    registry.add("frmScenarios.pnlCount", pnlCount_);
    for (int button = 0; button <= cmdScenarios_.last; ++button)
        registry.add(indexedName("frmScenarios.cmdScenarios", button), cmdScenarios_(button));
    name_.registerNames(registry);
}

void ScenarioWindow::registerEvents(EventRegistry& events) {
    const auto close = [this] { design_.SynchForms(WindowId::frmScenarios, WindowAction::unload); };
    events.onClick("frmScenarios.cmdScenarios(0)", [this] { ScenariosAdd(); });
    events.onClick("frmScenarios.cmdScenarios(1)", [this] { ScenariosRestore(); });
    events.onClick("frmScenarios.cmdScenarios(2)", [this] { ScenariosDelete(); });
    events.onClick("frmScenarios.cmdScenarios(3)", [this] { ScenariosEdit(); });
    events.onClick("frmScenarios.cmdScenarios(4)", close);
    events.onClose("frmScenarios", close);
    events.addGrid("frmScenarios.vsNames", vsNames_);
    name_.registerEvents(events, [this] { return nameIsOpen(); });
    events.onClose("frmScenariosName", [this] {
        if (nameIsOpen() && name_.isChanged())
            askToApply(design_, WindowId::frmScenariosName, applyNamesQuestion, [this] { applyName(); });
        else
            closeName();
    });
}

Grid ScenarioWindow::tips() const {
    Grid tips{{{""}}};
    for (std::size_t row = 1; row < vsNames_.rows.size(); ++row)
        tips.rows.push_back({tip(row)});
    return tips;
}

// The heads of the list alone; a name that is being edited is forgotten.
void ScenarioWindow::ScenariosSetup() {
    vsNames_.rows = {heads};
    vsNames_.selected.clear();
    writeCount();
    closeName();
}

void ScenarioWindow::writeCount() {
    const std::size_t scenarios = vsNames_.rows.size() - 1;
    pnlCount_.Caption = std::to_string(scenarios) + (scenarios == 1 ? " scenario" : " scenarios");
}

// A change that no row shows, as a save makes it, leaves the selection. A name that is being edited stays as
// long as its row does.
void ScenarioWindow::follow(const Changed& changed) {
    if (shown_.isSame(session_.scenarios()))
        return;
    shown_ = session_.scenarios();
    std::vector<Grid::Row> rows = {heads};
    for (ScenarioLine& line : scenarioLines(shown_))
        rows.push_back({"", std::move(line.name), std::move(line.description), std::move(line.power),
                        std::move(line.cost)});
    if (!changed.otherStudy && rows == vsNames_.rows)
        return;
    const bool rowStays = !changed.otherStudy && nameIsOpen() && editedRow_ < rows.size() &&
                          rows[editedRow_] == vsNames_.rows[editedRow_];
    vsNames_.rows = std::move(rows);
    vsNames_.selected.clear();
    writeCount();
    if (!rowStays)
        closeName();
}

// The next number whose name is free, whatever the case.
int ScenarioWindow::nextNumber() const {
    std::unordered_set<std::string> taken;
    for (std::size_t row = 1; row < vsNames_.rows.size(); ++row)
        taken.insert(upperCased(vsNames_.rows[row][nameColumn]));
    int number = session_.settings().ScenarioNumber;
    do {
        number = number < 0 || number >= largestNumber ? 1 : number + 1;
    } while (taken.contains(upperCased(numbered(number))));
    return number;
}

void ScenarioWindow::ScenariosAdd() {
    if (vsNames_.rows.size() > ScenarioGrid::largestNumberOfScenarios) {
        design_.ask("Add scenario", "A study holds at most 10,000 scenarios. Please delete some first.     ");
        return;
    }
    const int number = nextNumber();
    const SessionState own = session_.ownMoment().state;
    session_.edit({"added scenario", Reach::setting}, [&](SessionState& state) {
        state.settings.ScenarioNumber = number;
        SessionState kept = own;
        kept.settings.ScenarioNumber = number;
        SaveScenario(state.scenarios, kept, numbered(number), "");
    });
    const std::size_t row = vsNames_.rows.size() - 1;
    vsNames_.selected = {row};
    design_.tellStatus("“" + numbered(number) + "” added.");
    ShowProgress(row, ProgressFlight::Direction::intoTable);
}

void ScenarioWindow::ShowProgress(std::size_t row, ProgressFlight::Direction direction) {
    progress_.pnlProgress.Caption.clear();
    progress_.pnlProgress.Flood = direction == ProgressFlight::Direction::intoTable ? 100 : 0;
    progress_.row = row;
    progress_.direction = direction;
    ++progress_.count;
}

// The row that a command works on; nothing after a message that tells why there is none. An only scenario
// need not be selected.
std::optional<std::size_t> ScenarioWindow::oneRow(const OneRowWords& words) {
    const std::vector<std::size_t>& selected = vsNames_.selected;
    if (vsNames_.rows.size() == 2)
        return 1;
    if (selected.size() == 1)
        return selected.front();
    if (!hasRows())
        design_.ask(words.title, words.noRows);
    else if (selected.empty())
        design_.ask(words.title, words.noSelection);
    else
        design_.ask(words.title, "You have selected " + std::to_string(selected.size()) +
                                     " rows. Please select one row only                 ");
    return std::nullopt;
}

void ScenarioWindow::ScenariosRestore() {
    const auto row = oneRow({"Restore scenario", "No scenarios have been saved.               ",
                             "Please click on a row to restore                "});
    if (!row)
        return;
    const std::string name = vsNames_.rows[*row][nameColumn];
    restoreScenario(session_, placeOf(*row));
    design_.tellStatus("“" + shownName(name) + "” restored. Ctrl+Z brings back what was there before.");
}

void ScenarioWindow::ScenariosDelete() {
    static constexpr const char* title = "Delete row";
    const std::vector<std::size_t> selected = vsNames_.selected;
    if (!hasRows()) {
        design_.ask(title, "There are no rows to delete.              ");
        return;
    }
    if (selected.empty()) {
        design_.ask(title, "Please select one or more rows to delete                ");
        return;
    }
    const std::string question =
        "Ok to delete " + std::to_string(selected.size()) + " rows?                 ";
    if (selected.size() > 1 &&
        design_.ask({title, question, {Answer::OK, Answer::Cancel}, {}, MessageKind::loss}) != Answer::OK)
        return;
    const std::string deleted = selected.size() == 1
                                    ? "“" + shownName(vsNames_.rows[selected[0]][nameColumn]) + "” deleted."
                                    : std::to_string(selected.size()) + " scenarios deleted.";
    std::vector<std::size_t> places;
    places.reserve(selected.size());
    const std::vector<std::size_t> listed = session_.scenarios().listed();
    for (const std::size_t row : selected)
        places.push_back(listed[row - 1]);
    session_.edit({selected.size() == 1 ? "deleted scenario" : "deleted scenarios", Reach::setting},
                  [&](SessionState& state) { state.scenarios.remove(places); });
    design_.tellStatus(deleted + " Ctrl+Z brings " + (selected.size() == 1 ? "it" : "them") + " back.");
}

void ScenarioWindow::ScenariosEdit() {
    const auto row = oneRow({"Edit row", "There are no rows to edit.               ",
                             "Please click on a row to edit                "});
    if (!row)
        return;
    editedRow_ = *row;
    name_.box(nameBox).Text = vsNames_.rows[*row][nameColumn];
    name_.box(descriptionBox).Text = vsNames_.rows[*row][descriptionOfList];
    name_.begin();
    design_.SynchForms(WindowId::frmScenariosName, WindowAction::open);
}

// The name of the screen's own state counts as taken: a save would write over it.
bool ScenarioWindow::nameExists(const std::string& name) const {
    const std::string wanted = upperCased(name);
    if (wanted == upperCased(SystemScenarioName))
        return true;
    for (std::size_t row = 1; row < vsNames_.rows.size(); ++row) {
        if (row != editedRow_ && upperCased(vsNames_.rows[row][nameColumn]) == wanted)
            return true;
    }
    return false;
}

void ScenarioWindow::applyName() {
    const std::string name(trimmed(name_.box(nameBox).Text));
    const std::string description(trimmed(name_.box(descriptionBox).Text));
    if (nameExists(name)) {
        refuse(design_, name_, "Edit row", "Name exists", {nameBox});
        return;
    }
    const std::size_t place = placeOf(editedRow_);
    const std::vector<std::size_t> selected = vsNames_.selected;
    session_.edit({"name of scenario", Reach::setting},
                  [&](SessionState& state) { ReplaceName(state.scenarios, place, name, description); });
    vsNames_.selected = selected;
    closeName();
}

// A dialog that made way for a message is open again when it is closed.
void ScenarioWindow::closeName() {
    name_.box(nameBox).Text.clear();
    name_.box(descriptionBox).Text.clear();
    design_.SynchForms(WindowId::frmScenariosName, WindowAction::bringBack);
    design_.SynchForms(WindowId::frmScenariosName, WindowAction::unload);
}

}  // namespace lorvane
