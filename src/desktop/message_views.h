// The floating windows that tell something: problems, cell counts, details.
#pragma once

#include <vector>

#include "desktop/kit/text_style.h"
#include "desktop/panel_view.h"

class QGridLayout;
class QLabel;
class QTabBar;

namespace lorvane::desktop {

/// A problem: title and text.
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
    QLabel* title_;
    QLabel* text_;
};

/// The cell counts of a binary study.
class CountsView final : public PanelView {
    Q_OBJECT

public:
    CountsView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    struct Text {
        QLabel* label;
        const Panel* model;
    };
    QLabel* addText(const Panel& model, TextStyle style);
    void addCell(QGridLayout* grid, int cell);

    std::vector<Text> texts_;
};

/// What the clicked item means.
class DetailsView final : public PanelView {
    Q_OBJECT

public:
    DetailsView(Desk& desk, ToolPanel* panel);

    bool isOpen() const override;
    void sync() override;

private:
    void syncTabs();

    QTabBar* tabs_;
    std::vector<int> levels_;  ///< of the tabs
    QLabel* title_;
    QLabel* text_;
    QLabel* rest_;
};

}  // namespace lorvane::desktop
