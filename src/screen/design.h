// The study screen: the display models of its windows, and the showing half of the refresh that makes all of
// them right after a change. Computes nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/message_boxes.h"
#include "screen/dispersion_panels.h"
#include "screen/main_screen.h"
#include "screen/window_registry.h"
#include "session/arrows.h"
#include "session/session.h"
#include "validation/cell_counts.h"

namespace lorvane {

/// The windows that make way for a message or a file dialog.
enum class FormSet { main, graph };

class Design {
public:
    /// Shows the session as it stands. The session must outlive it.
    Design(Session& session, MessageBoxes& messages);
    Design(const Design&) = delete;
    Design& operator=(const Design&) = delete;

    Session& session() noexcept { return session_; }
    const Session& session() const noexcept { return session_; }
    const Study& study() const noexcept { return session_.study(); }
    const StudySettings& settings() const noexcept { return session_.settings(); }
    const DisplaySettings& display() const noexcept { return session_.display(); }

    // The showing half of the refresh -----------------------------------------------------------------------

    /// Brings every display model into step with the session; after a computation windows open and close,
    /// too.
    void show(const Changed& changed);

    /// Opens or closes the panel of the cell counts, by what the screening found and its setting.
    void SynchCellCounts();

    /// Opens the panel of a dispersion when its setting is automatic or always on; closes it.
    void ShowICC(bool show);
    void ShowTauSq(bool show);

    /// Steps of a field by its arrows, after the panel that belongs to it. The problem window does not
    /// open by itself during a tick of a held arrow; its release asks for a refresh. Throws ArithmeticFault.
    void Spin(FieldRef field, int direction, ArrowHold hold = ArrowHold::click, int times = 1);

    /// Draws an outline around the rectangle between two controls, where they are shown, and takes it away
    /// again. A computation clears those of number 2 to 6.
    void outline(int number, std::string from, std::string to) {
        screen_.OutlineProblem(number, problemColour, std::move(from), std::move(to));
    }
    void clearOutline(int number) { screen_.outlines(number).Visible = false; }

    /// What the status line tells of what was done. The card of a file goes.
    void tellStatus(std::string text);

    /// Tells in the status line and on a card that a file cannot be opened, until the next event.
    void tellNotOpened(const std::string& reason);

    /// Shows the diagnostic panel.
    void showDiagnostics() { screen_.pnlAI.Visible = true; }

    /// The cell that had the focus last; nothing before the first, or where the study no longer shows it.
    void setFocus(FieldRef field) { focus_ = field; }
    std::optional<FieldRef> focus() const;

    /// Tells one study from the next: a new one, one from a file.
    int studyNumber() const noexcept { return studyNumber_; }

    /// Sets digits or bar for power and cost.
    void DisplayPowerMode(DisplayModes mode);
    void DisplayCostMode(DisplayModes mode);

    /// Sets omega in the panel of the effects, the top of the cost bar, the detail of the cell counts:
    /// changes of the display that leave every answer as it is.
    void setShowOmega(bool show);
    void setMaxCost(double cost);
    void setCellCountDetail(DetailLevels detail);
    void setShowCellCounts(SchematicModes mode);
    void setIccSchematic(SchematicModes mode);
    void setTauSqSchematic(SchematicModes mode);

    // Windows and questions ---------------------------------------------------------------------------------

    /// What a person or a command does to a window; one that is opened again comes to the front.
    void SynchForms(WindowId window, WindowAction action);
    bool isOpen(WindowId window) const { return windows_.state(window) == WindowStates::open; }

    /// Whether a window of a problem is worth its place: it says more than the card of the power does, or it
    /// was asked for.
    bool problemIsDrawn(WindowId window) const;

    /// Whether the study has something for a window to show, and why not. Most windows have.
    bool hasSubject(WindowId window) const { return whyNoSubject(window).empty(); }
    std::string whyNoSubject(WindowId window) const;

    /// Opens the guide by itself, as a study comes onto the screen; not where a person has closed it for
    /// good.
    void showGuide();
    void setGuideWanted(bool wanted) { guideIsWanted_ = wanted; }

    /// Puts all windows back into earlier states.
    void putBack(const WindowRegistry& windows) { windows_ = windows; }

    /// Closes windows that the study has no use for, as those of a problem that is gone.
    void closeUnfit();

    /// Withdraws the windows of a set, and brings the same ones back.
    void SuspendForms(FormSet set);
    void RestoreForms(FormSet set);

    /// Whether the windows of the main set are away for a while.
    bool formsAreAway() const noexcept { return formsAreAway_; }

    /// Shows a message between SuspendForms and RestoreForms and returns the answer. Enter gives the preset
    /// one, or the first where there is none.
    Answer ask(const MessageBox& message);
    Answer ask(std::string title, std::string text, std::vector<MessageButton> buttons = {Answer::OK},
               std::optional<Answer> preset = {});

    /// Tells that a dialog refuses what was typed. The dialog stays where it is and shows the reason itself.
    void tellRefusal(std::string title, std::string text);

    /// Ends the program. Whoever calls it has asked about unsaved work.
    void close() noexcept { closed_ = true; }
    bool isClosed() const noexcept { return closed_; }

    /// Whether the study is saved, for the status line.
    std::string savedWords() const;

    /// The title of the screen: product, effect metric, file.
    std::string SetCaption() const;

    // Models ------------------------------------------------------------------------------------------------

    const MainScreen& screen() const noexcept { return screen_; }
    const ProblemWindow& problems() const noexcept { return problems_; }
    const EffectProblemWindow& effectProblems() const noexcept { return effectProblems_; }
    const IccPanel& iccPanel() const noexcept { return iccPanel_; }
    const TauSqPanel& tauSqPanel() const noexcept { return tauSqPanel_; }
    const Grid& spreadICC() const noexcept { return spreadICC_; }
    const Grid& spreadTauSq() const noexcept { return spreadTauSq_; }
    const CellCountsPanel& countsPanel() const noexcept { return countsPanel_; }
    const WindowRegistry& windows() const noexcept { return windows_; }

    /// Enters every value and display model of the screen under its name.
    void registerNames(ControlRegistry& registry) const;

private:
    void forgetModels();
    void writeModels();
    void writeEffect();
    void writeDispersion();
    void writeOutcome();
    void outlineDispersion();
    void outlineLevels();
    void writeReason();
    void writePower();
    void writeCost();
    void moveWindows(bool heldArrow);
    void ShowCounts(bool show);

    Session& session_;
    MessageBoxes& messages_;
    WindowRegistry windows_;
    MainScreen screen_;
    ProblemWindow problems_;
    EffectProblemWindow effectProblems_;
    IccPanel iccPanel_;
    TauSqPanel tauSqPanel_;
    CellCountsPanel countsPanel_;
    Grid spreadICC_;
    Grid spreadTauSq_;
    std::optional<FieldRef> focus_;
    int studyNumber_ = 0;
    bool closed_ = false;
    bool formsAreAway_ = false;
    bool guideIsWanted_ = true;
};

}  // namespace lorvane
