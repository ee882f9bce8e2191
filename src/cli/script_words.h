// The words of one line of a scripted session.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// A line taken word by word. A word with blanks stands in double quotes, as JSON has them.
class ScriptWords {
public:
    explicit ScriptWords(std::string_view line);

    /// The next word; nothing at the end of the line. Throws UseProblem for a quote that is not closed.
    std::optional<std::string> next();

    /// What is left of the line, as one word where it is quoted, else as it stands without the blanks around
    /// it.
    std::string rest();

    /// The next word. Throws UseProblem that names what is missing.
    std::string need(const char* what);

    bool atEnd() const { return line_.empty(); }

private:
    std::string takeQuoted();
    void skipBlanks();

    std::string_view line_;
};

}  // namespace lorvane
