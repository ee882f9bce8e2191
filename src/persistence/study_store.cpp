// Opening and saving studies of a session, without any screen.
#include "persistence/study_store.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "base/names.h"
#include "base/use_problem.h"
#include "persistence/scenario_list.h"
#include "persistence/study_file.h"

namespace lorvane {

namespace {

constexpr const char* templateName = "/Template Means.Lorvane";

}  // namespace

StudyStore::StudyStore(FileStore& files, const std::string& programFolder, Hourglass* hourglass)
    : files_(files), hourglass_(hourglass), template_(programFolder + templateName) {}

// A path that leads nowhere, as an empty one or one from a folder that is gone, is not the template's.
bool StudyStore::isTemplate(const std::string& path) const {
    std::error_code error;
    return std::filesystem::absolute(path, error).lexically_normal() == template_;
}

void StudyStore::open(Session& session, const std::string& path) const {
    if (isTemplate(path)) {
        openTemplate(session);
        return;
    }
    const Waiting waiting(hourglass_);
    loadTable(session, LoadGrid(files_, path), path);
    session.noteAsSaved();
}

void StudyStore::openTemplate(Session& session) const {
    const Waiting waiting(hourglass_);
    loadTable(session, LoadGrid(files_, template_), "");
}

void StudyStore::save(Session& session, const std::string& path) const {
    const Waiting waiting(hourglass_);
    ScenarioGrid table = savedTable(session);
    SaveGrid(files_, path, table);
    // The state of the screen stays in the table until the next save or open.
    session.edit({"", Reach::display}, [&](SessionState& state) { state.scenarios = std::move(table); });
    session.setCurrentFile(path);
    session.noteClean();
    session.noteAsSaved();
}

void restoreScenario(Session& session, const std::string& name) {
    if (const auto place = session.scenarios().find(name)) {
        restoreScenario(session, *place);
        return;
    }
    std::vector<std::string> known;
    for (const ScenarioLine& line : scenarioLines(session.scenarios()))
        known.push_back(line.name);
    const std::string hint =
        known.empty() ? "the study has none" : "the nearest is \"" + nearestName(name, known) + "\"";
    throw UseProblem("There is no scenario \"" + name + "\"; " + hint + ".");
}

}  // namespace lorvane
