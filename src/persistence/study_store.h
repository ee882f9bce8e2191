// Opening and saving studies of a session, without any screen: what the command line needs, and what the
// commands of the screen stand on.
#pragma once

#include <string>

#include "platform/file_store.h"
#include "platform/hourglass.h"
#include "session/session.h"

namespace lorvane {

class StudyStore {
public:
    /// The template of a new study is the file of that name in the program's folder.
    /// Every file that is read or written is waited for under the hourglass, where there is one.
    StudyStore(FileStore& files, const std::string& programFolder, Hourglass* hourglass = nullptr);

    /// Opens a study file: all scenarios, and the state of the screen when it was saved. The template opens
    /// as a study without a name. Throws FileProblem and changes nothing then.
    void open(Session& session, const std::string& path) const;

    /// Opens the template. Throws FileProblem.
    void openTemplate(Session& session) const;

    /// Saves the study with its scenarios under a path, which becomes its file. Throws FileProblem; the file
    /// that was there stays then.
    void save(Session& session, const std::string& path) const;

    /// Passes when the path is the session's file as it was read or last saved, or when nothing is there that
    /// saving would lose. Throws FileProblem when another program has written the session's file since.
    void checkUnchanged(const Session& session, const std::string& path) const;

    /// Throws FileProblem when there is something at the path.
    void checkFree(const std::string& path) const;

    bool isTemplate(const std::string& path) const;

private:
    FileStore& files_;
    Hourglass* hourglass_;
    std::string template_;
};

/// Puts a scenario of the study on the screen by its name. Throws UseProblem when there is none of that name,
/// with the nearest that there is.
void restoreScenario(Session& session, const std::string& name);

}  // namespace lorvane
