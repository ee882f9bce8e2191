// The words of one line of a scripted session.
#include "cli/script_words.h"

#include <nlohmann/json.hpp>

#include "app/application.h"
#include "base/number_text.h"

namespace lorvane {

ScriptWords::ScriptWords(std::string_view line) : line_(trimmed(line)) {}

void ScriptWords::skipBlanks() { line_ = trimmed(line_); }

std::string ScriptWords::takeQuoted() {
    std::size_t end = 1;
    while (end < line_.size() && line_[end] != '"')
        end += line_[end] == '\\' ? 2 : 1;
    if (end >= line_.size())
        throw UseProblem("A name in quotes has no closing quote.");
    const auto word = nlohmann::json::parse(line_.substr(0, end + 1), nullptr, false);
    if (!word.is_string())
        throw UseProblem("A name in quotes is no JSON text.");
    line_.remove_prefix(end + 1);
    skipBlanks();
    return word.get<std::string>();
}

std::optional<std::string> ScriptWords::next() {
    if (line_.empty())
        return std::nullopt;
    if (line_.front() == '"')
        return takeQuoted();
    const std::size_t end = std::min(line_.find_first_of(" \t"), line_.size());
    std::string word(line_.substr(0, end));
    line_.remove_prefix(end);
    skipBlanks();
    return word;
}

std::string ScriptWords::rest() {
    if (!line_.empty() && line_.front() == '"')
        return takeQuoted();
    std::string text(line_);
    line_ = {};
    return text;
}

std::string ScriptWords::need(const char* what) {
    if (auto word = next())
        return *word;
    throw UseProblem(std::string(what) + " is missing.");
}

}  // namespace lorvane
