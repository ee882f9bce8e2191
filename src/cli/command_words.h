// What the commands for people share: the study that they work on, options that set fields, lines of an
// answer.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "persistence/study_store.h"
#include "platform/file_store.h"
#include "session/session.h"

namespace lorvane {

// Exit codes of the command line.
namespace ExitCodes {
inline constexpr int done = 0;
inline constexpr int noAnswer = 1;
inline constexpr int wrongUse = 2;
inline constexpr int fileFailed = 3;
}  // namespace ExitCodes

/// A session without a screen, the files around it, and where answers go.
struct CommandLine {
    Session& session;
    const StudyStore& store;
    std::ostream& out;
    std::ostream& errors;
};

/// Carries out "FIELD=VALUE" options. Throws UseProblem, also for a value that has no effect in the study
/// that they make, so that none is dropped without a word.
void applySettings(const std::vector<std::string>& settings, Session& session);

/// One line of an answer: a label, filled up with blanks, and a value.
void printLine(std::ostream& out, std::string label, const std::string& value);

/// A note below the lines of an answer; nothing where there is none.
void printNote(std::ostream& out, const std::string& note);

/// The text with a capital first letter.
std::string capitalised(std::string text);

/// The text without line ends and double blanks, fit for a screen.
std::string onOneLine(std::string text);

}  // namespace lorvane
