// A button of the tool bar, with its word beside the drawing or without. What it does is its action's.
#pragma once

#include <QToolButton>

namespace lorvane::desktop {

class ToolButton : public QToolButton {
    Q_OBJECT

public:
    enum class Words { Beside, None };

    /// Text, drawing, tool tip, checked and enabled state follow the action.
    explicit ToolButton(QAction* action, Words words = Words::Beside, QWidget* parent = nullptr);

    /// Leaves out the word, which then stays as tool tip and accessible name, or brings it back.
    void setWords(Words words);

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;
};

}  // namespace lorvane::desktop
