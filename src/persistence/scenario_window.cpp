// The window of scenarios and the dialog that names one.
#include "persistence/scenario_window.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

#include "base/names.h"
#include "base/number_text.h"
#include "persistence/scenario_cells.h"
#include "persistence/scenario_list.h"
#include "screen/ask_to_apply.h"
#include "screen/whole_change.h"

namespace lorvane {

namespace {

constexpr std::size_t nameColumn = 1;
constexpr std::size_t descriptionOfList = 2;
constexpr std::size_t digitsOfNumber = 4;
constexpr int largestNumber = 1000000000;
constexpr Colour progressColour{0, 0, 125};

std::string numbered(int number) {
    std::string digits = std::to_string(number);
    digits.insert(0, digitsOfNumber - std::min(digits.size(), digitsOfNumber), '0');
    return "Scenario " + digits;
}

}  // namespace

ScenarioWindow::ScenarioWindow(Design& design, ScenarioGrid& grid) : design_(design), grid_(grid) {
    progress_.pnlProgress.BackColor = progressColour;
    ScenariosSetup();
}

void ScenarioWindow::registerNames(ControlRegistry& registry) const {
    registry.addGrid("frmScenarios.vsNames", vsNames_);
    registry.add("frmScenarios.pnlProgress", progress_.pnlProgress);
    registry.add("frmScenariosName.txtScenariosName.Text", &txtScenariosName_.Text);
    registry.add("frmScenariosName.txtScenariosDesc.Text", &txtScenariosDesc_.Text);
}

void ScenarioWindow::registerEvents(EventRegistry& events) {
    const auto open = [this] { design_.SynchForms(WindowId::frmScenarios, WindowAction::open); };
    const auto close = [this] { design_.SynchForms(WindowId::frmScenarios, WindowAction::unload); };
    events.onTool("gfrmScenarios", open);
    events.onTool("Show scenarios", open);
    events.onTool("Add scenario", [this] { ScenariosAdd(); });
    events.onTool("Restore scenario", [this] { ScenariosRestore(); });
    events.onClick("frmScenarios.cmdScenarios(0)", [this] { ScenariosAdd(); });
    events.onClick("frmScenarios.cmdScenarios(1)", [this] { ScenariosRestore(); });
    events.onClick("frmScenarios.cmdScenarios(2)", [this] { ScenariosDelete(); });
    events.onClick("frmScenarios.cmdScenarios(3)", [this] { ScenariosEdit(); });
    events.onClick("frmScenarios.cmdScenarios(4)", close);
    events.onClose("frmScenarios", close);
    events.addGrid("frmScenarios.vsNames", vsNames_);
    events.addTextBox("frmScenariosName.txtScenariosName", txtScenariosName_);
    events.addTextBox("frmScenariosName.txtScenariosDesc", txtScenariosDesc_);
    events.onClick("frmScenariosName.cmdScenarioNameOk(0)", [this] { applyName(); });
    events.onClick("frmScenariosName.cmdScenarioNameOk(1)", [this] { closeName(); });
    events.onClose("frmScenariosName", [this] {
        if (nameIsOpen() && nameHasChanged())
            askToApply(design_, WindowId::frmScenariosName, applyNamesQuestion, [this] { applyName(); });
        else
            closeName();
    });
}

void ScenarioWindow::ScenariosSetup() {
    vsNames_.rows = {{"", "Name", "Description", "Power", "Cost"}};
    vsNames_.selected.clear();
    closeName();
}

void ScenarioWindow::appendRow(std::size_t base) {
    ScenarioLine line = scenarioLine(grid_, base);
    vsNames_.rows.push_back(
        {"", std::move(line.name), std::move(line.description), std::move(line.power), std::move(line.cost)});
}

void ScenarioWindow::rebuild() {
    ScenariosSetup();
    for (const std::size_t base : grid_.listedBlocks())
        appendRow(base);
}

// The next number whose name is free.
std::string ScenarioWindow::nextName() {
    std::unordered_set<std::string_view> taken;
    for (std::size_t row = 1; row < vsNames_.rows.size(); ++row)
        taken.insert(vsNames_.rows[row][nameColumn]);
    int& number = design_.settings().ScenarioNumber;
    std::string name;
    do {
        number = number < 0 || number >= largestNumber ? 1 : number + 1;
        name = numbered(number);
    } while (taken.contains(name));
    return name;
}

void ScenarioWindow::ScenariosAdd() {
    if (vsNames_.rows.size() > ScenarioGrid::largestNumberOfScenarios) {
        design_.ask("Add scenario", "A study holds at most 10,000 scenarios. Please delete some first.     ");
        return;
    }
    SaveScenario(grid_, design_, nextName(), "");
    appendRow(grid_.rowCount() - 1 - ScenarioGrid::blockRows);
    const std::size_t row = vsNames_.rows.size() - 1;
    vsNames_.selected = {row};
    design_.noteChange();
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
    const std::size_t base = baseOf(*row);
    changeOrUndo(
        design_,
        [&] {
            design_.startAnew();
            restoreBlock(grid_, design_, base);
        },
        IfFault::show);
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
    if (selected.size() > 1 && design_.ask(title, question, {Answer::OK, Answer::Cancel}) != Answer::OK)
        return;
    const std::vector<std::size_t> blocks = grid_.listedBlocks();
    std::vector<std::size_t> bases;
    bases.reserve(selected.size());
    for (const std::size_t row : selected)
        bases.push_back(blocks[row - 1]);
    grid_.removeBlocks(bases);
    rebuild();
    design_.noteChange();
}

void ScenarioWindow::ScenariosEdit() {
    const auto row = oneRow({"Edit row", "There are no rows to edit.               ",
                             "Please click on a row to edit                "});
    if (!row)
        return;
    editedRow_ = *row;
    txtScenariosName_.Text = vsNames_.rows[*row][nameColumn];
    txtScenariosDesc_.Text = vsNames_.rows[*row][descriptionOfList];
    design_.SynchForms(WindowId::frmScenariosName, WindowAction::open);
}

bool ScenarioWindow::nameIsOpen() const {
    return design_.windows().state(WindowId::frmScenariosName) == WindowStates::open;
}

bool ScenarioWindow::nameHasChanged() const {
    const Grid::Row& row = vsNames_.rows[editedRow_];
    return txtScenariosName_.Text != row[nameColumn] || txtScenariosDesc_.Text != row[descriptionOfList];
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
    if (!nameIsOpen())
        return;
    const std::string name(trimmed(txtScenariosName_.Text));
    const std::string description(trimmed(txtScenariosDesc_.Text));
    if (nameExists(name)) {
        design_.ask("Edit row", "Name exists");
        return;
    }
    ReplaceName(grid_, baseOf(editedRow_), name, description);
    vsNames_.rows[editedRow_][nameColumn] = name;
    vsNames_.rows[editedRow_][descriptionOfList] = description;
    design_.noteChange();
    closeName();
}

// A dialog that made way for a message is open again when it is closed.
void ScenarioWindow::closeName() {
    txtScenariosName_.Text.clear();
    txtScenariosDesc_.Text.clear();
    design_.SynchForms(WindowId::frmScenariosName, WindowAction::bringBack);
    design_.SynchForms(WindowId::frmScenariosName, WindowAction::unload);
}

}  // namespace lorvane
