// Questions and messages that hold the program until they are answered.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lorvane {

enum class Answer { OK, Cancel, Yes, No };

/// A button by the answer that it gives, with words of its own where those of the system do not say enough.
struct MessageButton {
    MessageButton(Answer given) : answer(given) {}
    MessageButton(Answer given, std::string words) : answer(given), label(std::move(words)) {}

    Answer answer;
    std::string label;  ///< empty: the system's word for the answer
};

/// A message with its buttons. All carry the information icon. Texts keep their trailing blanks.
struct MessageBox {
    std::string title;
    std::string text;
    std::vector<MessageButton> buttons = {Answer::OK};
    std::optional<Answer> preset = {};  ///< what Enter answers; none: the first button
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// Shows the message and waits for the answer, one of its buttons.
    virtual Answer show(const MessageBox& message) = 0;
};

}  // namespace lorvane
