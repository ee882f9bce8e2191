// The content of the start screen: who we are, two ways to begin, and beside them the drawing of a trial or
// the recent files. Its texts come from its owner, and so does what the choices do.
#pragma once

#include <vector>

#include <QWidget>

#include "desktop/kit/choice_card.h"
#include "desktop/kit/file_list.h"

class QLabel;

namespace lorvane::desktop {

class PushButton;
class TrialDrawing;

/// A page of fixed size. It only reports what the user does; its owner begins, opens and closes.
class StartPage : public QWidget {
    Q_OBJECT

public:
    explicit StartPage(QWidget* parent = nullptr);

    /// The name beside the mark, and the line below it.
    void setTitle(const QString& name, const QString& sense);

    /// The words over the choices, the two choices from top to bottom, and the words of both buttons.
    void setQuestion(const QString& question);
    void setChoices(const Choice& first, const Choice& second);
    void setButtons(const QString& accept, const QString& cancel);

    /// The heading of the recent files, the text of the row for other files, and the files.
    void setFiles(const QString& heading, const QString& more, const std::vector<FileEntry>& files);

    /// The choice made, 1 or 2; 1 at first. With 1 the drawing is seen, with 2 the files. Setting it sends no
    /// signal.
    void setChoice(int choice);
    int choice() const;

    /// The number of the current file, or FileList::More. Setting it sends no signal.
    void setCurrentFile(int file);
    int currentFile() const;

    /// Gives the keyboard to the list of files. setFocus() gives it to the choice made.
    void focusFiles();

signals:
    /// The user made choice 1 or 2, also the one already made.
    void choiceChosen(int choice);
    /// The user went to another file, or to FileList::More.
    void fileChosen(int file);
    /// The first button, Enter, or a double click on a file, which is then the current one.
    void accepted();
    /// The second button or Escape.
    void cancelled();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* makeChoices();
    QWidget* makeRightPane();
    void connectParts();
    void choose(int choice);
    void showChoice();

    QLabel* name_;
    QLabel* sense_;
    QLabel* question_;
    ChoiceCard* first_;
    ChoiceCard* second_;
    PushButton* accept_;
    PushButton* cancel_;
    TrialDrawing* drawing_;
    FileList* files_;
};

}  // namespace lorvane::desktop
