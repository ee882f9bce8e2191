// Message boxes of a scripted session.
#include "platform/scripted_message_boxes.h"

#include <algorithm>
#include <utility>

namespace lorvane {

namespace {

bool offers(const MessageBox& message, Answer answer) {
    return std::find(message.buttons.begin(), message.buttons.end(), answer) != message.buttons.end();
}

Answer safeAnswer(const MessageBox& message) {
    if (message.buttons.size() == 1)
        return message.buttons.front();
    return offers(message, Answer::Cancel) ? Answer::Cancel : Answer::No;
}

}  // namespace

Answer ScriptedMessageBoxes::show(const MessageBox& message) {
    Answer answer = safeAnswer(message);
    if (!queued_.empty()) {
        if (offers(message, queued_.front()))
            answer = queued_.front();
        queued_.pop_front();
    }
    shown_.push_back({message, answer});
    return answer;
}

std::vector<ScriptedMessageBoxes::Shown> ScriptedMessageBoxes::take() { return std::exchange(shown_, {}); }

}  // namespace lorvane
