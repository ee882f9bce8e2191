// A study file on the disk: the table of scenarios as comma-separated text.
#pragma once

#include <string>

#include "platform/file_store.h"
#include "session/session.h"

namespace lorvane {

/// The table as the text of a file.
std::string studyFileText(const ScenarioGrid& grid);

/// The table that a save writes: the scenarios of the session, and last the state of the session itself.
ScenarioGrid savedTable(const Session& session);

/// Reads and checks the whole text of a file. Throws FileProblem that names the path.
ScenarioGrid readStudyText(const std::string& text, const std::string& path);

/// The whole text of a file that may be a study file. Throws FileProblem.
std::string readStudyFile(const FileStore& files, const std::string& path);

/// Reads and checks a whole file before anything else may use it. Throws FileProblem, one sentence with file,
/// row and column, for a file that cannot be read or is no study file.
ScenarioGrid LoadGrid(const FileStore& files, const std::string& path);

/// Writes the table to a file, whole or not at all. Throws FileProblem.
void SaveGrid(FileStore& files, const std::string& path, const ScenarioGrid& grid);

/// Puts a table that was read and checked into a session, under the path of its file and the hash of its
/// content, where that is known. The path is empty for a template, which gets the currency of this system. A
/// study that cannot be computed asks for other data.
void loadTable(Session& session, ScenarioGrid table, const std::string& file, std::uint64_t content = 0);

/// Puts a scenario of the session's own table on the screen, by its place. One step.
void restoreScenario(Session& session, std::size_t place);

}  // namespace lorvane
