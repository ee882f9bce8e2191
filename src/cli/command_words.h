// What the commands for people share: options that set fields, and lines of an answer.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "app/application.h"

namespace lorvane {

/// Carries out "FIELD=VALUE" options. Throws UseProblem and changes nothing then.
void applySettings(const std::vector<std::string>& settings, Application& application);

/// One line of an answer: a label, filled up with blanks, and a value.
void printLine(std::ostream& out, std::string label, const std::string& value);

/// The text with a capital first letter.
std::string capitalised(std::string text);

/// The text without line ends and double blanks.
std::string onOneLine(std::string text);

}  // namespace lorvane
