// The window of scenarios and the dialog that names one: their display models and commands. A row of the list
// and a block of the table belong together by position.
#pragma once

#include <optional>
#include <string>

#include "persistence/scenario_list.h"
#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "screen/design.h"
#include "screen/dialog_window.h"
#include "screen/part.h"

namespace lorvane {

/// The short flight of a scenario between the screen and its row of the list: decoration only.
struct ProgressFlight {
    enum class Direction { intoTable = 1, outOfTable = 2 };
    Panel pnlProgress;
    std::size_t row = 0;  ///< row of the list, the heads being row 0
    Direction direction = Direction::intoTable;
    int count = 0;  ///< flights so far, so that a view knows a new one
};

class ScenarioWindow final : public Part {
public:
    explicit ScenarioWindow(Design& design);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    void follow(const Changed& changed) override;

    /// The commands of the window. Each tells in a message why it cannot be carried out and changes nothing
    /// then. A scenario that cannot be computed is restored with the request for other data.
    void ScenariosAdd();
    void ScenariosRestore();
    void ScenariosDelete();
    void ScenariosEdit();

    /// What the window says below the list: "1 scenario".
    const Panel& pnlCount() const noexcept { return pnlCount_; }
    /// Its buttons, in the order Add, Restore, Delete, Edit, Close.
    const Button& cmdScenarios(int button) const { return cmdScenarios_(button); }

    /// The list: an empty column, then name, description, power, cost; the heads are row 0.
    const Grid& vsNames() const noexcept { return vsNames_; }
    /// The tip of a row; empty where it has none. It is worked out when it is asked for.
    std::string tip(std::size_t row) const { return scenarioNote(session_, placeOf(row)); }
    const Dialog& nameDialog() const noexcept { return name_; }
    bool nameIsOpen() const { return design_.isOpen(WindowId::frmScenariosName); }
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
    Grid tips() const;
    Dialog makeNameDialog();
    void ScenariosSetup();
    void writeCount();
    bool nameExists(const std::string& name) const;
    int nextNumber() const;
    std::size_t placeOf(std::size_t row) const { return session_.scenarios().listed()[row - 1]; }
    void ShowProgress(std::size_t row, ProgressFlight::Direction direction);
    void applyName();
    void closeName();

    Design& design_;
    Session& session_;
    ScenarioGrid shown_;  ///< what the list was made from
    Grid vsNames_;
    Panel pnlCount_;
    IndexedArray<Button, 0, 4> cmdScenarios_;
    ProgressFlight progress_;
    std::size_t editedRow_ = 0;
    Dialog name_;
};

}  // namespace lorvane
