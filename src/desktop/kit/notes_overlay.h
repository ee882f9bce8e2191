// Notes over the content of a window: a veil and a sheet that must be closed before the window goes on. Knows
// nothing of what the notes say.
#pragma once

#include <QPointer>
#include <QWidget>

class QLabel;
class QScrollArea;

namespace lorvane::desktop {

class PushButton;

/// Lies over its parent, hidden at first. The keyboard stays on the sheet while it is shown.
class NotesOverlay : public QWidget {
    Q_OBJECT

public:
    explicit NotesOverlay(QWidget* covered);
    ~NotesOverlay() override;

    /// The title and the paragraphs, parted by empty lines.
    void setNotes(const QString& title, const QString& text);
    void setButton(const QString& words);

signals:
    /// Button, close sign, Escape or Enter. It stays open until the owner hides it.
    void closeRequested();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QWidget* makeSheet();
    void arrange();
    void keepFocus(QWidget* now);

    QLabel* title_;
    QLabel* text_;
    QScrollArea* scroll_;
    PushButton* button_;
    QWidget* sign_;
    QWidget* sheet_;
    QPointer<QWidget> before_;  ///< had the keyboard
};

}  // namespace lorvane::desktop
