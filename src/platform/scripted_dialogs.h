// Message boxes and file dialogs of a scripted session: answered from queues, and kept to be read.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/file_dialogs.h"
#include "platform/message_boxes.h"

namespace lorvane {

class ScriptedDialogs final : public MessageBoxes, public FileDialogs {
public:
    struct ShownMessage {
        MessageBox message;
        Answer answer;
    };
    struct ShownFileDialog {
        FileDialog dialog;
        std::optional<std::string> answer;
    };
    using Shown = std::variant<ShownMessage, ShownFileDialog>;

    /// Queues the answer to the next message box.
    void queue(Answer answer) { answers_.push_back(answer); }

    /// Queues the answer to the next file dialog, nothing being Cancel.
    void queueFile(std::optional<std::string> path) { paths_.push_back(std::move(path)); }

    /// With no answer queued that the box offers: its only button, else Cancel, or No where there is no
    /// Cancel.
    Answer show(const MessageBox& message) override;

    /// With no path queued: Cancel.
    std::optional<std::string> choose(const FileDialog& dialog) override;

    /// The message boxes and file dialogs since the last call, in their order.
    std::vector<Shown> take();

private:
    std::deque<Answer> answers_;
    std::deque<std::optional<std::string>> paths_;
    std::vector<Shown> shown_;
};

}  // namespace lorvane
