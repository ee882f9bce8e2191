// Opening and saving the study with its scenarios: the operations, their dialogs and their messages.
#pragma once

#include <optional>
#include <string>

#include "persistence/recent_files.h"
#include "persistence/study_store.h"
#include "platform/file_dialogs.h"
#include "platform/unsaved_store.h"
#include "screen/design.h"

namespace lorvane {

enum class SaveMode { save = 0, saveAs = 1 };

/// A study that was brought back keeps its picture until it is saved.
enum class BroughtBack {
    none,      ///< there is none, or it has been saved
    onScreen,  ///< it stands on the screen
    letGo      ///< another study has taken its place
};

class StudyFiles {
public:
    StudyFiles(Design& design, const StudyStore& store, RecentFiles& recent, FileDialogs& dialogs);
    StudyFiles(const StudyFiles&) = delete;
    StudyFiles& operator=(const StudyFiles&) = delete;

    /// Saves under the name that the study has, or asks for one; true when the file is written. The status
    /// line and a message tell how it went; on a failure the study keeps its name and stays unsaved.
    bool FileSave(SaveMode mode);

    /// Opens a file, asking for it when the path is empty; true when it is open. On Cancel and on a file that
    /// cannot be opened nothing changes; the status line tells why.
    bool OpenFile(const std::string& path);

    /// The same without dialogs and messages. Throws FileProblem and changes nothing then; so it does for the
    /// study's own file when another program has written it since.
    void open(const std::string& path);
    void save(const std::string& path);

    /// Asks what becomes of unsaved work, and opens the file; an empty path asks for it. Enter gives the
    /// preset answer.
    void askAndOpen(const std::string& path, Answer preset = Answer::Save);

    /// Asks for a file to open; nothing on Cancel.
    std::optional<std::string> chooseFile(const FileDialog& dialog);

    /// Begins a new study, after a question where unsaved work would be lost.
    void Clear();

    /// The close request of the screen: asks what becomes of unsaved work, and ends the program.
    void closeRequest();

    /// The study as it would be saved now; nothing while it is as it was opened or saved. Changes nothing.
    std::optional<UnsavedStudy> unsavedStudy() const;

    /// Puts a study that was not saved on the screen, under the name of its file. Throws FileProblem and
    /// changes nothing then.
    void bringBack(const LeftBehind& picture);

    /// What became of the study that was brought back.
    BroughtBack broughtBack() const noexcept { return broughtBack_; }

private:
    bool mayGo(std::string title, std::string text, Answer preset);
    bool mayClear(Answer preset);
    std::string suggestedName() const;
    bool hasChanged(const std::string& path) const;
    Answer askAboutChange(const std::string& path);
    bool askAfterFailure(const std::string& text);
    void write(const std::string& path);
    void noteOtherStudy();
    void startWithoutTemplate();
    void remember(const std::string& path);

    Design& design_;
    Session& session_;
    const StudyStore& store_;
    RecentFiles& recent_;
    FileDialogs& dialogs_;
    BroughtBack broughtBack_ = BroughtBack::none;
};

}  // namespace lorvane
