// Questions and messages that hold the program until they are answered.
#pragma once

#include <string>
#include <vector>

namespace lorvane {

enum class Answer { OK, Cancel, Yes, No };

/// A message with its buttons. All carry the information icon. Texts keep their trailing blanks.
struct MessageBox {
    std::string title;
    std::string text;
    std::vector<Answer> buttons = {Answer::OK};
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// Shows the message and waits for the answer, one of its buttons.
    virtual Answer show(const MessageBox& message) = 0;
};

}  // namespace lorvane
