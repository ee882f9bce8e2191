// What is wrong with the text of a manual.
#pragma once

#include <stdexcept>
#include <string>

namespace lorvane {

/// The message is one line, "file:line: sentence".
class ManualProblem : public std::runtime_error {
public:
    ManualProblem(const std::string& file, int line, const std::string& sentence)
        : std::runtime_error(file + ":" + std::to_string(line) + ": " + sentence) {}
};

}  // namespace lorvane
