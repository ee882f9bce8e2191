// Message boxes of the desktop.
#include "desktop/desk_message_boxes.h"

#include <algorithm>
#include <iterator>

#include "desktop/desk.h"
#include "desktop/kit/message_dialog.h"

namespace lorvane::desktop {

namespace {

// The usual word of an answer, and what the answer is to the order of the buttons.
struct AnswerRow {
    Answer answer;
    const char* word;
    QDialogButtonBox::ButtonRole role;
};

constexpr AnswerRow answerRows[] = {{Answer::OK, "OK", QDialogButtonBox::AcceptRole},
                                    {Answer::Cancel, "Cancel", QDialogButtonBox::RejectRole},
                                    {Answer::Yes, "Yes", QDialogButtonBox::YesRole},
                                    {Answer::No, "No", QDialogButtonBox::NoRole},
                                    {Answer::Save, "Save", QDialogButtonBox::AcceptRole}};

const AnswerRow& rowOf(Answer answer) {
    return *std::find_if(std::begin(answerRows), std::end(answerRows),
                         [&](const AnswerRow& row) { return row.answer == answer; });
}

bool warns(MessageKind kind) { return kind == MessageKind::loss || kind == MessageKind::failure; }

// Beside Save an OK goes on without it.
QDialogButtonBox::ButtonRole roleOf(Answer answer, const std::vector<MessageButton>& buttons) {
    const bool saves = std::any_of(buttons.begin(), buttons.end(),
                                   [](const MessageButton& button) { return button.answer == Answer::Save; });
    return saves && answer == Answer::OK ? QDialogButtonBox::DestructiveRole : rowOf(answer).role;
}

std::size_t placeOf(Answer answer, const std::vector<MessageButton>& buttons) {
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [&](const MessageButton& button) { return button.answer == answer; });
    return found == buttons.end() ? 0 : static_cast<std::size_t>(found - buttons.begin());
}

MessageContent contentOf(const MessageBox& message) {
    const ShownWords words = shownWords(message);
    const std::vector<MessageButton>& buttons = shownButtons(message);
    MessageContent content;
    content.title = shownText(message.title).trimmed();
    content.heading = shownText(words.heading);
    content.text = shownText(words.text);
    content.warns = warns(kindOf(message));
    content.sign = content.warns ? Icon::Warning : Icon::Details;
    for (const MessageButton& button : buttons) {
        const std::string label = button.label.empty() ? rowOf(button.answer).word : button.label;
        content.choices.push_back({shownText(label), roleOf(button.answer, buttons)});
    }
    content.preset = placeOf(presetOf(message), buttons);
    content.escape = placeOf(safeAnswer(message), buttons);
    return content;
}

}  // namespace

Answer DeskMessageBoxes::show(const MessageBox& message) {
    if (kindOf(message) == MessageKind::formality)
        return message.buttons.front().answer;
    if (redraw_)
        redraw_();
    const QPointer<QWidget> over = owner_ ? owner_->window() : nullptr;
    MessageDialog dialog(contentOf(message), over);
    const std::size_t chosen = dialog.ask();
    giveKeyboard(over);
    return shownButtons(message)[chosen].answer;
}

}  // namespace lorvane::desktop
