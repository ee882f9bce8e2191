// What follows from a message for those who show it.
#include "platform/message_boxes.h"

#include <algorithm>

#include "base/number_text.h"

namespace lorvane {

namespace {

constexpr std::size_t longestHeading = 120;  // bytes

// The text without the blanks at the ends of its lines and without empty lines at its end.
std::string withoutTrailingBlanks(const std::string& text) {
    std::string trimmed;
    for (const char letter : text) {
        if (letter == '\n')
            trimmed.erase(trimmed.find_last_not_of(' ') + 1);
        trimmed += letter;
    }
    trimmed.erase(trimmed.find_last_not_of(" \n") + 1);
    return trimmed;
}

bool isOneSentence(const std::string& text) {
    return text.size() <= longestHeading && text.find('\n') == std::string::npos &&
           text.find(". ") == std::string::npos && text.find("? ") == std::string::npos;
}

}  // namespace

bool offers(const MessageBox& message, Answer answer) {
    return std::any_of(message.buttons.begin(), message.buttons.end(),
                       [&](const MessageButton& button) { return button.answer == answer; });
}

MessageKind kindOf(const MessageBox& message) {
    return message.kind.value_or(message.buttons.size() == 1 ? MessageKind::information
                                                             : MessageKind::question);
}

Answer safeAnswer(const MessageBox& message) {
    if (message.buttons.size() == 1)
        return message.buttons.front().answer;
    return offers(message, Answer::Cancel) ? Answer::Cancel : Answer::No;
}

const std::vector<MessageButton>& shownButtons(const MessageBox& message) {
    return message.onScreen.buttons.empty() ? message.buttons : message.onScreen.buttons;
}

Answer presetOf(const MessageBox& message) {
    const bool isLoss = kindOf(message) == MessageKind::loss;
    return message.preset.value_or(isLoss ? safeAnswer(message) : message.buttons.front().answer);
}

ShownWords shownWords(const MessageBox& message) {
    const std::string text = withoutTrailingBlanks(message.text);
    const std::string& heading = message.onScreen.heading;
    if (heading.empty() && message.onScreen.more.empty() && isOneSentence(text))
        return {text, ""};
    const std::string more = message.onScreen.more.empty() ? "" : "\n" + message.onScreen.more;
    return {heading.empty() ? std::string(trimmed(message.title)) : heading, text + more};
}

}  // namespace lorvane
