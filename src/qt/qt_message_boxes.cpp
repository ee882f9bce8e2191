// Message boxes of the desktop.
#include "qt/qt_message_boxes.h"

#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <iterator>

namespace lorvane {

namespace {

struct ButtonRow {
    Answer answer;
    QMessageBox::StandardButton standard;
    QMessageBox::ButtonRole role;
};

constexpr ButtonRow buttonRows[] = {{Answer::OK, QMessageBox::Ok, QMessageBox::AcceptRole},
                                    {Answer::Cancel, QMessageBox::Cancel, QMessageBox::RejectRole},
                                    {Answer::Yes, QMessageBox::Yes, QMessageBox::AcceptRole},
                                    {Answer::No, QMessageBox::No, QMessageBox::DestructiveRole}};

const ButtonRow& rowOf(Answer answer) {
    return *std::find_if(std::begin(buttonRows), std::end(buttonRows),
                         [&](const ButtonRow& row) { return row.answer == answer; });
}

QPushButton* addButton(QMessageBox& box, const MessageButton& button) {
    const ButtonRow& row = rowOf(button.answer);
    return button.label.empty() ? box.addButton(row.standard)
                                : box.addButton(QString::fromStdString(button.label), row.role);
}

}  // namespace

// Closing a box by its frame or by Escape is its Cancel, or its only button.
Answer QtMessageBoxes::show(const MessageBox& message) {
    if (redraw_)
        redraw_();
    const QPointer<QWidget> over = owner_ ? owner_->window() : nullptr;
    QMessageBox box(over);
    box.setIcon(QMessageBox::Information);
    box.setWindowTitle(QString::fromStdString(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message.text));
    const Answer preset = message.preset.value_or(message.buttons.front().answer);
    Answer answer = message.buttons.size() == 1 ? message.buttons.front().answer : Answer::Cancel;
    for (const MessageButton& button : message.buttons) {
        QPushButton* added = addButton(box, button);
        if (button.answer == preset)
            box.setDefaultButton(added);
        if (button.answer == answer)
            box.setEscapeButton(added);
        QObject::connect(added, &QPushButton::clicked, &box,
                         [&answer, given = button.answer] { answer = given; });
    }
    box.exec();
    giveKeyboard(over);
    return answer;
}

}  // namespace lorvane
