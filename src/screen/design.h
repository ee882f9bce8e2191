// The study screen: owns the one study, the settings of the session and the display models of its windows,
// and runs the refresh that makes all of it right after an edit.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "base/arithmetic_fault.h"
#include "engine/compute_display.h"
#include "engine/study.h"
#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/distribution_library.h"
#include "platform/message_boxes.h"
#include "platform/system_locale.h"
#include "screen/compute_screen.h"
#include "screen/dispersion_panels.h"
#include "screen/main_screen.h"
#include "screen/session_settings.h"
#include "screen/spin_table.h"
#include "screen/study_fields.h"
#include "screen/tool_book.h"
#include "screen/window_registry.h"
#include "validation/cell_counts.h"

namespace lorvane {

/// Parts of the program that a refresh brings up to date after the screen, in this order.
enum class RefreshFollower { mdes, tips, optimal, details };
inline constexpr std::size_t refreshFollowers = 4;

/// The windows that make way for a message or a file dialog.
enum class FormSet { main, graph };

class Design {
public:
    Design(DistributionLibrary& library, const SystemLocale& locale, MessageBoxes& messages);
    Design(const Design&) = delete;
    Design& operator=(const Design&) = delete;

    /// The whole cycle after an edit, in its one order: ICC and span, dispersion of the effect, the effect
    /// itself, power and cost; with Show also everything on display and the followers. Without Show nothing
    /// is drawn, no window moves and nothing is allocated: searches and graphs run that way. Throws
    /// ArithmeticFault when a formula cannot go on; the entered values stay.
    void DoRefresh(bool Show);

    /// After an arithmetic fault: a request for other data in the place of the earlier power.
    void showFault(const ArithmeticFault& fault);

    /// Why the last computation could not go on; empty when it did.
    const std::string& faultWords() const noexcept { return faultWords_; }

    /// The currency of the system's regional settings.
    const Currency& systemCurrency() const noexcept { return systemCurrency_; }

    /// Draws an outline around the rectangle between two controls, and takes it away again. A computation
    /// clears those of number 2 to 6.
    void outline(int number, std::string from, std::string to) {
        screen_.OutlineProblem(number, problemColour, std::move(from), std::move(to));
    }
    void clearOutline(int number) { screen_.outlines(number).Visible = false; }

    /// What the status line tells of a file.
    void tellStatus(std::string text) { screen_.pnlStatus.Caption = std::move(text); }

    /// Brings tools and title into step with study, settings and windows, without a computation.
    void showTools();

    /// What a part of the program does when the screen has been refreshed.
    void follow(RefreshFollower follower, std::function<void()> refresh);

    /// The study, settings and display models of a new study, two levels with means. The open file, the
    /// currency and the windows stay, and so do the settings that no study file holds. Needs a refresh to
    /// follow.
    void startAnew();

    /// A new study, refreshed.
    void ResetToStart();

    /// Applies what hangs on the design choices as they stand in the study: roles of the levels, what is
    /// shown, modes of power and cost. Needs a refresh to follow.
    void applyChoices();

    /// What is shown, from the modes of the study as they stand, and a refresh.
    void Reset();

    /// Sets the number of levels, held to 2 to 4; the randomization moves to the new top level. Needs a
    /// refresh to follow, like randomize().
    void setNumLevels(int levels);
    void randomize(int level);

    /// One step of a field by its arrows. The problem window does not open by itself during a tick of a held
    /// arrow; its release asks for a refresh. Throws ArithmeticFault.
    enum class SpinMode { click, tick };
    void Spin(const SpinControl& control, int direction, SpinMode mode = SpinMode::click);

    /// The sampling model of a level by its arrows: up is fixed, down random.
    void spinModel(int level, int direction);
    void spinPop(int level, int direction);

    /// Writes a field by name as its value dialog does, with the other arm where the two are linked, and
    /// refreshes. The value must lie within the field's limits. Throws ArithmeticFault.
    void setValue(const std::string& field, double value);

    /// Changes the decimals of a field: all stored values are rounded to what is shown.
    void SETDECS(std::string_view fieldStem, int decimals);

    /// Withdraws the windows of a set, and brings the same ones back.
    void SuspendForms(FormSet set);
    void RestoreForms(FormSet set);

    /// Shows a message between SuspendForms and RestoreForms and returns the answer.
    Answer ask(std::string title, std::string text, std::vector<Answer> buttons = {Answer::OK});

    /// The close request of the screen asks first; true when the program is to end.
    bool closeRequest();
    bool isClosed() const noexcept { return closed_; }

    /// Opens the panel of a dispersion when its setting is automatic or always on; closes it.
    void ShowICC(bool show);
    void ShowTauSq(bool show);
    void SynchCellCounts();

    /// The study with its scenarios is on the disk as it is now, or is a new one; any edit ends that. Opening
    /// a file makes it so too, though StudyDirty asks a careful question after it.
    void noteAsSaved() { asSaved_ = true; }
    bool isAsSaved() const noexcept { return asSaved_; }

    /// Something changed that a save would keep.
    void noteChange() {
        settings_.StudyDirty = true;
        asSaved_ = false;
    }

    /// Whether the study is saved, for the status line.
    std::string savedWords() const;

    /// The title of the screen: product, effect metric, file.
    std::string SetCaption() const;

    Study& study() noexcept { return study_; }
    const Study& study() const noexcept { return study_; }
    SessionSettings& settings() noexcept { return settings_; }
    const SessionSettings& settings() const noexcept { return settings_; }
    const StudyFields& fields() const noexcept { return fields_; }
    ToolBook& tools() noexcept { return tools_; }
    const ToolBook& tools() const noexcept { return tools_; }
    const MainScreen& screen() const noexcept { return screen_; }
    const ProblemWindow& problems() const noexcept { return problems_; }
    const EffectProblemWindow& effectProblems() const noexcept { return effectProblems_; }
    const IccPanel& iccPanel() const noexcept { return iccPanel_; }
    const TauSqPanel& tauSqPanel() const noexcept { return tauSqPanel_; }
    const Grid& spreadICC() const noexcept { return spreadICC_; }
    const Grid& spreadTauSq() const noexcept { return spreadTauSq_; }
    const CellCountsPanel& countsPanel() const noexcept { return countsPanel_; }
    const WindowRegistry& windows() const noexcept { return windows_; }
    /// Shows the diagnostic panel.
    void showDiagnostics() { screen_.pnlAI.Visible = true; }

    /// Puts all windows back into earlier states.
    void putBack(const WindowRegistry& windows) {
        windows_ = windows;
        showTools();
    }
    void SynchForms(WindowId window, WindowAction action) { windows_.SynchForms(window, action); }

    /// Enters every value and display model of the screen under its name.
    void registerNames(ControlRegistry& registry) const;

private:
    void synchronise(bool Show, ComputeDisplay& display);
    void showEntered();
    void showAll();
    void applyModelRule();
    void setField(const SpinControl& control, double value);
    void ShowCounts(bool show);

    DistributionLibrary& library_;
    MessageBoxes& messages_;
    Study study_;
    SessionSettings settings_;
    const Currency systemCurrency_;
    StudyFields fields_;
    WindowRegistry windows_;
    ToolBook tools_;
    MainScreen screen_;
    ProblemWindow problems_;
    EffectProblemWindow effectProblems_;
    IccPanel iccPanel_;
    TauSqPanel tauSqPanel_;
    CellCountsPanel countsPanel_;
    Grid spreadICC_;
    Grid spreadTauSq_;
    Panel caption_;
    std::string faultWords_;
    bool asSaved_ = false;
    bool silentTick_ = false;
    bool closed_ = false;
    ComputeScreen computeScreen_;
    SilentDisplay silent_;
    std::array<std::function<void()>, refreshFollowers> followers_;
};

}  // namespace lorvane
