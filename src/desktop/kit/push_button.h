// Buttons of windows and dialogs. What they do belongs to their owner.
#pragma once

#include <QPushButton>

namespace lorvane::desktop {

/// A button that can be made the primary one of its window and back.
class PushButton : public QPushButton {
    Q_OBJECT

public:
    enum class Rank { Plain, Primary };

    explicit PushButton(const QString& text, Rank rank = Rank::Plain, QWidget* parent = nullptr);

    void setRank(Rank rank);
    Rank rank() const { return rank_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Rank rank_;
};

PushButton* plainButton(const QString& text, QWidget* parent = nullptr);
PushButton* primaryButton(const QString& text, QWidget* parent = nullptr);

}  // namespace lorvane::desktop
