// A scripted session: commands in, one line of JSON a command out.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "app/application.h"

namespace lorvane {

/// Carries out one command. The answer is one line of JSON; a command that cannot be carried out answers
/// {"error": ...} and changes nothing. Empty for a blank line and a comment, which are not answered.
std::string answerTo(std::string_view line, Application& application, DistributionLibrary& distributions);

/// Reads commands to the end of the input and answers each at once.
void drive(std::istream& in, std::ostream& out, Application& application, DistributionLibrary& distributions);

}  // namespace lorvane
