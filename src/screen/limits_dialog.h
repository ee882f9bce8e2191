// The dialog of the limits of risks: a lower and an upper limit a level, and what they imply.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screen/dialog_window.h"

namespace lorvane {

class LimitsDialog {
public:
    explicit LimitsDialog(Design& design);

    /// The other heads of its table: over the groups of columns, over the names and the limits.
    static constexpr const char* entered = "Entered";
    static constexpr const char* impliedGroup = "Implied";
    static constexpr const char* levels = "Level";
    static constexpr const char* lowerLimits = "Lower limit";
    static constexpr const char* upperLimits = "Upper limit";

    /// Which keys change a limit.
    static constexpr const char* hint =
        "Up and Down change it by its last decimal. A digit opens it for typing.";

    /// What a column of implied values shows, a cell a level, level 1 being unused.
    struct Column {
        const char* name;  ///< "pnlSpan"
        Panel heading;
        PerLevel<Panel> cells;
    };

    const Dialog& dialog() const noexcept { return dialog_; }
    Dialog& dialog() noexcept { return dialog_; }

    /// Name of a level; a level that is not in use is not visible.
    const Panel& levelName(int level) const { return names_(level); }

    /// The limits of a level, and the arrows of one, "frmLimits.spnLL(2)".
    const DialogField& lower(int level) const;
    const DialogField& upper(int level) const;
    static std::string arrowsOf(const DialogField& field);

    const std::vector<Column>& implied() const noexcept { return implied_; }

    /// Opens it; by a change, when a step of undo has just put limits in force, which Cancel takes back.
    void open(bool byChange = false);

    /// Brings what is implied into step with the study.
    void follow();

    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

private:
    void makeFields();
    void step(DialogField& field, int direction);
    void showImplied();
    void writeImplied(const Study& trial, int level);
    void clearImplied();
    void tell(std::string text, bool trouble);
    bool refusesLimits();
    void writeLimits(Study& study) const;
    void apply();
    void useLimits();
    void useSpans();
    void cancel();

    Design& design_;
    Session& session_;
    Dialog dialog_;
    std::optional<std::size_t> openedAt_;  ///< depth of undo when a change has opened it
    PerLevel<Panel> names_;
    std::vector<Column> implied_;
};

}  // namespace lorvane
