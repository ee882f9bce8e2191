// Message boxes of a scripted session: answered from a queue, and kept to be read.
#pragma once

#include <deque>
#include <vector>

#include "platform/message_boxes.h"

namespace lorvane {

class ScriptedMessageBoxes final : public MessageBoxes {
public:
    struct Shown {
        MessageBox message;
        Answer answer;
    };

    /// Queues the answer to the next message box.
    void queue(Answer answer) { queued_.push_back(answer); }

    /// With no answer queued that the box offers: its only button, else Cancel, or No where there is no
    /// Cancel.
    Answer show(const MessageBox& message) override;

    /// The message boxes since the last call.
    std::vector<Shown> take();

private:
    std::deque<Answer> queued_;
    std::vector<Shown> shown_;
};

}  // namespace lorvane
