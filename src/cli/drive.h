// A scripted session: commands in, one line of JSON a command out.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "app/application.h"
#include "platform/scripted_dialogs.h"

namespace lorvane {

/// What a session acts on.
struct DriveSession {
    Application& application;
    DistributionLibrary& distributions;
    ScriptedDialogs& messages;
};

/// Carries out one command. The answer is one line of JSON; a command that cannot be carried out answers
/// {"error": ...} and changes nothing. Empty for a blank line and a comment, which are not answered.
std::string answerTo(std::string_view line, DriveSession& session);

/// Reads commands to the end of the input and answers each at once. Ends earlier when an answer cannot be
/// written; the state of the output tells.
void drive(std::istream& in, std::ostream& out, DriveSession& session);

}  // namespace lorvane
