// What tests of files share: one cell of a table, and all of the screen that a file brings back.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/application.h"
#include "persistence/scenario_cells.h"
#include "persistence/study_file.h"

namespace lorvane {

/// Sets a cell of a scenario by row and column of the table. The header is row 0, and column 0 the name.
inline void setCell(ScenarioGrid& grid, std::size_t row, std::size_t column, std::string_view text) {
    const std::size_t place = (row - 1) / ScenarioGrid::blockRows;
    Scenario scenario = grid.scenario(place);
    scenario.block.put((row - 1) % ScenarioGrid::blockRows + 1, column, text);
    grid.replace(place, std::move(scenario));
}

using State = std::vector<ControlValue>;

/// The names of everything on the screen that is the study's, and not the session's.
inline const std::vector<std::string>& studyNames(const Application& application) {
    static constexpr std::string_view ofSession[] = {
        "StudyDirty", "CurrentFile", "Design.Caption", "window:",    "tool:gfrm", "UndoDepth",
        "UndoName",   "RedoName",    "tool:Undo.",     "tool:Redo.", "Clipboard."};
    static const std::vector<std::string> names = [&] {
        std::vector<std::string> all = application.names().names();
        std::erase_if(all, [](const std::string& name) {
            return std::any_of(std::begin(ofSession), std::end(ofSession),
                               [&](std::string_view start) { return name.starts_with(start); });
        });
        return all;
    }();
    return names;
}

inline State stateOf(const Application& application) {
    State values;
    for (const std::string& name : studyNames(application))
        values.push_back(*application.names().read(name));
    return values;
}

}  // namespace lorvane
