// A button of the tool bar, with its word beside the drawing or without. What it does belongs to its action.
#pragma once

#include <QToolButton>

namespace lorvane::desktop {

/// A button with its word is as wide as it needs; one without has a fixed width.
class ToolButton : public QToolButton {
    Q_OBJECT

public:
    /// Whether the word stands beside the drawing.
    enum class Words { Beside, None };

    /// Text, drawing, tool tip, checked and enabled state follow the action, which must outlive the button.
    explicit ToolButton(QAction* action, Words words = Words::Beside, QWidget* parent = nullptr);

    /// Leaves out the word or brings it back. Tool tip and accessible name stay.
    void setWords(Words words);

protected:
    void initStyleOption(QStyleOptionToolButton* option) const override;
};

}  // namespace lorvane::desktop
