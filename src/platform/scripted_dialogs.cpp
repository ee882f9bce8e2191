// Message boxes and file dialogs of a scripted session.
#include "platform/scripted_dialogs.h"

#include <utility>

namespace lorvane {

Answer ScriptedDialogs::show(const MessageBox& message) {
    Answer answer = safeAnswer(message);
    if (!answers_.empty()) {
        if (offers(message, answers_.front()))
            answer = answers_.front();
        answers_.pop_front();
    }
    shown_.push_back(ShownMessage{message, answer});
    return answer;
}

std::optional<std::string> ScriptedDialogs::choose(const FileDialog& dialog) {
    std::optional<std::string> path;
    if (!paths_.empty()) {
        path = std::move(paths_.front());
        paths_.pop_front();
    }
    shown_.push_back(ShownFileDialog{dialog, path});
    return path;
}

std::vector<ScriptedDialogs::Shown> ScriptedDialogs::take() { return std::exchange(shown_, {}); }

}  // namespace lorvane
