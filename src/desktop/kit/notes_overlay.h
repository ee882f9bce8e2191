// Notes over the content of a window: a veil and a sheet that must be closed before the window goes on. Knows
// nothing of what the notes say.
#pragma once

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class QLabel;
class QScrollArea;

namespace lorvane::desktop {

class PushButton;

/// One note: plain text, and the words of a button below it; without these there is none.
struct Note {
    QString text;
    QString button = {};
    bool operator==(const Note&) const = default;
};

/// Lies over its parent, hidden at first; the owner shows and hides it. While it is shown the keyboard stays
/// on the sheet. When it is hidden the keyboard goes back to where it was.
class NotesOverlay : public QWidget {
    Q_OBJECT

public:
    /// Becomes a child of the widget that it covers, and follows its size.
    explicit NotesOverlay(QWidget* covered);
    ~NotesOverlay() override;

    /// The title and the notes, with lines between them. More than fit scroll.
    void setNotes(const QString& title, const QList<Note>& notes);
    /// The words of the button that closes; "Close notes" at first.
    void setButton(const QString& words);

signals:
    /// The user asks to close the notes, by the button, the close sign, Escape, or Enter elsewhere than on
    /// the button of a note. They stay open until the owner hides them.
    void closeRequested();
    /// The user presses the button of a note, by its number.
    void pressed(int note);

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
    int addNote(const Note& note, int number, int top);
    QList<QWidget*> stops() const;
    void arrange();
    void keepFocus(QWidget* now);

    QLabel* title_;
    QWidget* text_;  ///< the paragraphs
    QList<Note> shown_;
    QScrollArea* scroll_;
    PushButton* button_;
    QWidget* sign_;
    QWidget* sheet_;
    QPointer<QWidget> before_;  ///< had the keyboard
};

}  // namespace lorvane::desktop
