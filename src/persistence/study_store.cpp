// Opening and saving studies of a session, without any screen.
#include "persistence/study_store.h"

#include <filesystem>
#include <system_error>
#include <vector>

#include "base/content_hash.h"
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
    const std::string text = readStudyFile(files_, path);
    loadTable(session, readStudyText(text, path), path, contentHash(text));
    session.noteAsSaved();
}

void StudyStore::openTemplate(Session& session) const {
    const Waiting waiting(hourglass_);
    loadTable(session, LoadGrid(files_, template_), "");
}

void StudyStore::save(Session& session, const std::string& path) const {
    const Waiting waiting(hourglass_);
    ScenarioGrid table = savedTable(session);
    const std::string text = studyFileText(table);
    files_.replace(path, text);
    // The state of the screen stays in the table until the next save or open.
    session.edit({"", Reach::display}, [&](SessionState& state) { state.scenarios = std::move(table); });
    session.setCurrentFile(path, contentHash(text));
    session.noteClean();
    session.noteAsSaved();
}

void StudyStore::checkUnchanged(const Session& session, const std::string& path) const {
    if (path != session.currentFile() || !files_.exists(path))
        return;
    if (contentHash(readStudyFile(files_, path)) != session.fileContent())
        throw FileProblem("The file \"" + path +
                          "\" has been changed by another program since it was opened; save under another "
                          "name, or open it again.");
}

void StudyStore::checkFree(const std::string& path) const {
    if (files_.exists(path))
        throw FileProblem("The file \"" + path +
                          "\" is there already; choose another name, or give --force.");
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
