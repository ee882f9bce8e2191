// A study file on the disk: the table of scenarios as comma-separated text.
#pragma once

#include <string>

#include "persistence/scenario_grid.h"
#include "platform/file_store.h"

namespace lorvane {

/// The table as the text of a file.
std::string studyFileText(const ScenarioGrid& grid);

/// The same with the screen's state from another table in the place of the one that the first may hold.
std::string studyFileText(const ScenarioGrid& scenarios, const ScenarioGrid& screen);

/// Reads and checks the whole text of a file. Throws FileProblem that names the path.
ScenarioGrid readStudyText(const std::string& text, const std::string& path);

/// Reads and checks a whole file before anything else may use it. Throws FileProblem, one sentence with file,
/// row and column, for a file that cannot be read or is no study file.
ScenarioGrid LoadGrid(const FileStore& files, const std::string& path);

/// Writes the table to a file, whole or not at all. Throws FileProblem.
void SaveGrid(FileStore& files, const std::string& path, const ScenarioGrid& grid);

}  // namespace lorvane
