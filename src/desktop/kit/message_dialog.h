// A question or a message that holds the program until it is answered. Knows nothing of what is asked.
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QString>
#include <vector>

#include "desktop/kit/icons.h"

class QScrollArea;

namespace lorvane::desktop {

class PushButton;

/// One answer: its words, and what it is to the order of the buttons.
struct MessageChoice {
    QString words;
    QDialogButtonBox::ButtonRole role = QDialogButtonBox::AcceptRole;
};

/// What a message shows. The text may be empty.
struct MessageContent {
    QString title;
    QString heading;
    QString text;
    Icon sign = Icon::Details;
    bool warns = false;  ///< the sign stands in the colours of a problem
    std::vector<MessageChoice> choices;
    std::size_t preset = 0;  ///< the choice that Enter makes, and its button is the primary one
    std::size_t escape = 0;  ///< the one that Esc and the frame make
};

/// 500 wide or as wide as the screen; a text that is too long for the screen scrolls. The buttons stand in
/// the order of the desktop and have letters of their own. Ctrl+C copies the words.
class MessageDialog : public QDialog {
    Q_OBJECT

public:
    explicit MessageDialog(const MessageContent& content, QWidget* over = nullptr);

    /// Shows the message and waits; the number of the choice that was made.
    std::size_t ask();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addWords(const MessageContent& content);
    QDialogButtonBox* makeButtons(const MessageContent& content);
    void fit();

    QWidget* words_;
    QScrollArea* scroll_;
    PushButton* preset_ = nullptr;
    std::size_t chosen_;
};

}  // namespace lorvane::desktop
