// Message boxes of the desktop.
#include "qt/qt_message_boxes.h"

#include <QMessageBox>

namespace lorvane {

namespace {

struct ButtonRow {
    Answer answer;
    QMessageBox::StandardButton button;
};

constexpr ButtonRow buttonRows[] = {{Answer::OK, QMessageBox::Ok},
                                    {Answer::Cancel, QMessageBox::Cancel},
                                    {Answer::Yes, QMessageBox::Yes},
                                    {Answer::No, QMessageBox::No}};

QMessageBox::StandardButton buttonOf(Answer answer) {
    for (const ButtonRow& row : buttonRows) {
        if (row.answer == answer)
            return row.button;
    }
    return QMessageBox::NoButton;
}

// Closing a box by its frame is its Cancel, or its only button.
Answer answerOf(int button, const MessageBox& message) {
    for (const ButtonRow& row : buttonRows) {
        if (row.button == button)
            return row.answer;
    }
    return message.buttons.size() == 1 ? message.buttons.front() : Answer::Cancel;
}

}  // namespace

Answer QtMessageBoxes::show(const MessageBox& message) {
    if (redraw_)
        redraw_();
    QMessageBox box(owner_);
    box.setIcon(QMessageBox::Information);
    box.setWindowTitle(QString::fromStdString(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message.text));
    QMessageBox::StandardButtons buttons;
    for (const Answer answer : message.buttons)
        buttons |= buttonOf(answer);
    box.setStandardButtons(buttons);
    box.setDefaultButton(buttonOf(message.buttons.front()));
    return answerOf(box.exec(), message);
}

}  // namespace lorvane
