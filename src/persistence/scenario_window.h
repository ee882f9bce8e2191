// The window of scenarios and the dialog that names one: their display models and commands. A row of the list
// and a block of the table belong together by position.
#pragma once

#include <optional>
#include <string>

#include "persistence/scenario_grid.h"
#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "screen/design.h"

namespace lorvane {

/// The short flight of a scenario between the screen and its row of the list: decoration only.
struct ProgressFlight {
    enum class Direction { intoTable = 1, outOfTable = 2 };
    Panel pnlProgress;
    std::size_t row = 0;  ///< row of the list, the heads being row 0
    Direction direction = Direction::intoTable;
    int count = 0;  ///< flights so far, so that a view knows a new one
};

class ScenarioWindow {
public:
    ScenarioWindow(Design& design, ScenarioGrid& grid);
    ScenarioWindow(const ScenarioWindow&) = delete;
    ScenarioWindow& operator=(const ScenarioWindow&) = delete;

    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

    /// The heads of the list alone; a name that is being edited is forgotten.
    void ScenariosSetup();

    /// The list anew from the table.
    void rebuild();

    /// The commands of the window. Each tells in a message why it cannot be carried out and changes nothing
    /// then. A scenario that cannot be computed is restored with the request for other data.
    void ScenariosAdd();
    void ScenariosRestore();
    void ScenariosDelete();
    void ScenariosEdit();

    /// The list: an empty column, then name, description, power, cost; the heads are row 0.
    const Grid& vsNames() const noexcept { return vsNames_; }
    const TextBox& name() const noexcept { return txtScenariosName_; }
    const TextBox& description() const noexcept { return txtScenariosDesc_; }
    const ProgressFlight& progress() const noexcept { return progress_; }

private:
    /// The messages of a command that works on one selected row.
    struct OneRowWords {
        const char* title;
        const char* noRows;
        const char* noSelection;
    };
    std::optional<std::size_t> oneRow(const OneRowWords& words);
    bool hasRows() const { return vsNames_.rows.size() > 1; }
    bool nameExists(const std::string& name) const;
    std::string nextName();
    std::size_t baseOf(std::size_t row) const { return grid_.listedBlocks()[row - 1]; }
    void appendRow(std::size_t base);
    void ShowProgress(std::size_t row, ProgressFlight::Direction direction);
    void applyName();
    void closeName();
    bool nameIsOpen() const;
    bool nameHasChanged() const;

    Design& design_;
    ScenarioGrid& grid_;
    Grid vsNames_;
    ProgressFlight progress_;
    std::size_t editedRow_ = 0;
    TextBox txtScenariosName_;
    TextBox txtScenariosDesc_;
};

}  // namespace lorvane
