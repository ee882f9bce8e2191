// The optimal design wizard: a row a level, the message or the cost, the trials, the buttons, the notes.
#pragma once

#include <map>
#include <vector>

#include "desktop/panel_view.h"

class QLabel;
class QRadioButton;

namespace lorvane::desktop {

class EntryCell;
class LevelName;
class Menus;
class NotesOverlay;
class NumberLabel;
class PushButton;
class ResultBand;
class TrialPlot;
class TrialTable;

/// "frmOptimal". Escape closes the notes first, then the wizard.
class OptimalView final : public PanelView {
    Q_OBJECT

public:
    OptimalView(Desk& desk, ToolPanel* panel, Menus& menus);

    bool isOpen() const override;
    void sync() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Row {
        int level;
        QWidget* line;
        LevelName* name;
        QLabel* searched;
        QRadioButton* automatic;
        QRadioButton* manual;
        EntryCell* size;
        NumberLabel* treated;
        NumberLabel* control;
        NumberLabel* block;
    };

    QWidget* makeCard();
    QWidget* makeHeads();
    QWidget* makeRow(int level);
    QWidget* makeTrials();
    QWidget* makeButtons();
    QRadioButton* makeOption(const char* stem, int level);
    EntryCell* makeSize(int level);
    NumberLabel* makeCell(int level, int width);

    void syncRow(const Row& row);
    void syncSize(const Row& row);
    void syncBand();
    void syncTrials();
    void syncButtons();
    void syncNotes();

    const OptimalWindow& model() const;
    void press(int button);
    void closeNotes();
    void leave();

    Menus& menus_;
    QLabel* title_;
    NumberLabel* heads_[2];
    std::vector<Row> rows_;
    ResultBand* band_;
    QWidget* trials_;
    TrialPlot* plot_;
    TrialTable* table_;
    std::map<int, PushButton*> buttons_;
    NotesOverlay* notes_;
    int primary_ = 0;
    bool wasOpen_ = false;
};

}  // namespace lorvane::desktop
