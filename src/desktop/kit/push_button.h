// Buttons of windows and dialogs. What they do belongs to their owner.
#pragma once

#include <QPushButton>

namespace lorvane::desktop {

/// A button that can be made the primary one of its window and back.
class PushButton : public QPushButton {
    Q_OBJECT

public:
    /// The primary button of a window is filled with the colour of accent.
    enum class Rank { Plain, Primary };

    explicit PushButton(const QString& text, Rank rank = Rank::Plain, QWidget* parent = nullptr);

    /// The look only; which button Enter presses is the dialog's own matter.
    void setRank(Rank rank);
    Rank rank() const { return rank_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Rank rank_;
};

/// A new button of either rank. It belongs to the parent, or to the widget whose layout takes it.
PushButton* plainButton(const QString& text, QWidget* parent = nullptr);
PushButton* primaryButton(const QString& text, QWidget* parent = nullptr);

}  // namespace lorvane::desktop
