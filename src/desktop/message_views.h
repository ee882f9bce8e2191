// The floating windows that tell something: problems, cell counts, details.
#pragma once

#include <vector>

#include "desktop/kit/text_style.h"
#include "desktop/panel_view.h"

class QGridLayout;
class QLabel;

namespace lorvane::desktop {

class LevelTabs;
class MessageCard;
class ParagraphView;
class PushButton;
class RestSheet;
class WrappedLabel;

/// A problem: its title over a card with the text.
class ProblemView final : public PanelView {
    Q_OBJECT

public:
    ProblemView(Desk& desk, ToolPanel* panel, const std::string& name, WindowId window, const Panel& title,
                const Panel& text);

    bool isOpen() const override;
    void sync() override;

private:
    WindowId window_;
    const Panel& titleModel_;
    const Panel& textModel_;
    WrappedLabel* title_;
    MessageCard* text_;
};

/// The cell counts of a binary study: a row a cell.
class CountsView final : public PanelView {
    Q_OBJECT

public:
    CountsView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    struct Text {
        WrappedLabel* label;
        const Panel* model;
    };
    QLabel* addText(const Panel& model, TextStyle style);
    void addHeads(QGridLayout* grid);
    void addCell(QGridLayout* grid, int cell);

    std::vector<Text> texts_;
};

/// What the clicked item means: a tab a level, heading and paragraphs, or a yellow sheet at rest. Where it
/// floats it has a button to close it.
class DetailsView final : public PanelView {
    Q_OBJECT

public:
    DetailsView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    void addText();
    void syncTabs();
    void syncMargins(bool atRest);

    QWidget* text_;  ///< all but the sheet
    LevelTabs* tabs_;
    std::vector<int> levels_;  ///< of the tabs
    QWidget* tabRule_;
    WrappedLabel* title_;
    ParagraphView* paragraphs_;
    WrappedLabel* hint_;
    PushButton* close_;
    RestSheet* rest_;
};

}  // namespace lorvane::desktop
