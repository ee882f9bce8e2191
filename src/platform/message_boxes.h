// Questions and messages that hold the program until they are answered.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lorvane {

/// Save is offered on the screen alone: scripts neither give nor see it.
enum class Answer { OK, Cancel, Yes, No, Save };

/// What a message is about. A face gives each its sign, and answers a formality at once by its first button.
enum class MessageKind {
    information,
    question,
    loss,      ///< a question whose wrong answer throws work away
    failure,   ///< something could not be done
    formality  ///< told to scripts; a person sees it elsewhere, or has nothing to decide
};

/// A button by the answer that it gives, with words of its own where those of the system do not say enough.
struct MessageButton {
    MessageButton(Answer given) : answer(given) {}
    MessageButton(Answer given, std::string words) : answer(given), label(std::move(words)) {}

    Answer answer;
    std::string label;  ///< empty: the system's word for the answer
};

/// How a message stands on the screen, where its own words are not enough for a person.
struct OnScreen {
    std::string heading = {};                 ///< empty: made of title and text
    std::string more = {};                    ///< a line below the text
    std::vector<MessageButton> buttons = {};  ///< empty: those of the message
};

/// A message with its buttons. Texts keep their trailing blanks.
struct MessageBox {
    std::string title;
    std::string text;
    std::vector<MessageButton> buttons = {Answer::OK};
    std::optional<Answer> preset = {};     ///< what Enter answers; none: see presetOf
    std::optional<MessageKind> kind = {};  ///< none: a question where there is something to choose
    OnScreen onScreen = {};
};

/// A message that something could not be done.
inline MessageBox failureMessage(std::string title, std::string text) {
    return {std::move(title), std::move(text), {Answer::OK}, {}, MessageKind::failure};
}

/// Whether an answer is one of the message's own.
bool offers(const MessageBox& message, Answer answer);

/// What the message is about.
MessageKind kindOf(const MessageBox& message);

/// The answer that changes nothing: the only button, or Cancel, or No where there is no Cancel.
Answer safeAnswer(const MessageBox& message);

/// The buttons on the screen, and the one of them that Enter presses: of a loss the safe one where the
/// message names none, else the first.
const std::vector<MessageButton>& shownButtons(const MessageBox& message);
Answer presetOf(const MessageBox& message);

/// The words on the screen, without the blanks around them. A single sentence is the heading itself; of a
/// longer text the title is.
struct ShownWords {
    std::string heading;
    std::string text;  ///< may be empty
};
ShownWords shownWords(const MessageBox& message);

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    /// Shows the message and waits for the answer, one of its buttons.
    virtual Answer show(const MessageBox& message) = 0;
};

}  // namespace lorvane
