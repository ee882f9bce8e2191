// A card over a window that tells what went wrong, with a button that closes it. Knows nothing of the reason.
#pragma once

#include <QPointer>
#include <QWidget>

namespace lorvane::desktop {

class PushButton;
class WrappedText;

/// Lies at the top of its parent in the middle, hidden at first; the owner shows and hides it. It takes the
/// keyboard when it is shown, and gives it back when it is hidden.
class NoticeCard : public QWidget {
    Q_OBJECT

public:
    /// Becomes a child of the widget over which it lies, and follows its size.
    explicit NoticeCard(QWidget* covered);

    /// A heading, a text, and the words of the button.
    void setNotice(const QString& heading, const QString& text, const QString& button);

signals:
    /// The user asks to close the card, by its button, Enter or Escape. It stays until the owner hides it.
    void closeRequested();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void arrange();

    WrappedText* heading_;
    WrappedText* text_;
    PushButton* button_;
    QPointer<QWidget> before_;  ///< had the keyboard
};

}  // namespace lorvane::desktop
