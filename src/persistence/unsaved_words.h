// How the question about unsaved work is worded for a person.
#pragma once

#include <string>

#include "session/session.h"

namespace lorvane {

/// The name of a file without its folder and its last ending.
std::string fileStem(const std::string& path);

/// "Save the changes to “Reading grant 2026”?"
std::string saveQuestion(const Session& session);

/// "12 changes and 2 scenarios since 14:05 are not in the file."
std::string unsavedWords(const Session& session);

}  // namespace lorvane
