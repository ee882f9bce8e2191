// The optimal design wizard: the question, the levels, the message or the cost, the design beside the trials,
// the trials, the buttons, the notes.
#pragma once

#include <map>
#include <optional>

#include "desktop/panel_view.h"

class QLabel;

namespace lorvane::desktop {

class GoalLine;
class Menus;
class NotesOverlay;
class OfferCard;
class OptimalLevels;
class PushButton;
class ResultBand;
class TrialPlot;
class TrialTable;

/// "frmOptimal". Escape closes the notes first, then the wizard. With trials the window has any height in
/// which three to ten of them are seen, on a low screen two.
class OptimalView final : public PanelView {
    Q_OBJECT

public:
    OptimalView(Desk& desk, ToolPanel* panel, Menus& menus);

    bool isOpen() const override;
    void sync() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* makeTrials();
    QWidget* makeButtons();
    PushButton* makeButton(const std::string& control);

    void syncBand();
    void showTrials(const OptimalOutcome& outcome);
    void syncTrials();
    void syncButtons();
    void syncNotes();
    void keepFocus();
    int room() const;
    bool isLow() const;
    void fitSpacing();
    void fitHeight(int trials);
    void keepOnScreen();

    const OptimalWindow& model() const;
    PushButton* primary() const;
    void press(const std::string& control);
    void select(int trial);
    void leave();

    GoalLine* goal_;
    QLabel* title_;
    OptimalLevels* levels_;
    ResultBand* band_;
    OfferCard* other_;
    QWidget* trials_;
    TrialPlot* plot_;
    TrialTable* table_;
    std::map<int, PushButton*> buttons_;
    PushButton* openNotes_;
    NotesOverlay* notes_;
    std::optional<int> chosenHeight_;  ///< of the trials, by the user
    int givenHeight_ = 0;              ///< of the trials as they came
    int primary_ = 0;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
