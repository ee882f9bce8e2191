// Opening and saving the study with its scenarios.
#include "persistence/study_files.h"

#include <utility>

#include "persistence/study_file.h"

namespace lorvane {

namespace {

constexpr const char* filter = "(*.Lorvane)|*.Lorvane";
constexpr const char* extension = ".Lorvane";

// Windows that make way until the dialog is closed.
class FormsAside {
public:
    explicit FormsAside(Design& design) : design_(design) { design_.SuspendForms(FormSet::main); }
    ~FormsAside() { design_.RestoreForms(FormSet::main); }
    FormsAside(const FormsAside&) = delete;
    FormsAside& operator=(const FormsAside&) = delete;

private:
    Design& design_;
};

}  // namespace

StudyFiles::StudyFiles(Design& design, const StudyStore& store, RecentFiles& recent, FileDialogs& dialogs)
    : design_(design), session_(design.session()), store_(store), recent_(recent), dialogs_(dialogs) {}

std::optional<std::string> StudyFiles::chooseFile(const FileDialog& dialog) {
    const FormsAside aside(design_);
    return dialogs_.choose(dialog);
}

void StudyFiles::remember(const std::string& path) {
    recent_.SetFlex(path);
    recent_.SaveFiles();
}

void StudyFiles::save(const std::string& path) {
    store_.save(session_, path);
    remember(path);
}

bool StudyFiles::FileSave(SaveMode mode) {
    std::string path = session_.currentFile();
    if (mode == SaveMode::saveAs || path.empty()) {
        const auto chosen = chooseFile({FileDialog::Kind::save, "Save file", filter, ""});
        if (!chosen)
            return false;
        path = *chosen;
    }
    try {
        save(path);
    } catch (const FileProblem& problem) {
        design_.tellStatus(problem.what());
        design_.ask("File was not saved                       ",
                    "File could not be saved. It is probably being used by another program                ");
        return false;
    }
    design_.ask("File saved", "The file " + path + " has been saved. ");
    return true;
}

// The windows that an open file withdraws stay away until they are opened again; the guide opens with it.
void StudyFiles::open(const std::string& path) {
    const WindowRegistry windows = design_.windows();
    design_.SuspendForms(FormSet::main);
    try {
        store_.open(session_, path);
    } catch (...) {
        design_.putBack(windows);
        throw;
    }
    if (!store_.isTemplate(path))
        remember(path);
    design_.SynchForms(WindowId::frmTips, WindowAction::open);
}

bool StudyFiles::OpenFile(const std::string& path) {
    std::string chosen = path;
    if (path.empty()) {
        const auto answer = chooseFile({FileDialog::Kind::open, "Open file", filter, extension});
        if (!answer)
            return false;
        chosen = *answer;
    }
    try {
        open(chosen);
        return true;
    } catch (const FileProblem& problem) {
        design_.tellStatus(problem.what());
        return false;
    }
}

bool StudyFiles::mayClear() {
    return !session_.isDirty() ||
           design_.ask("Confirmation needed",
                       "This will clear all data and saved scenarios. Ok to proceed?         ",
                       {Answer::OK, Answer::Cancel}) == Answer::OK;
}

void StudyFiles::askAndOpen(const std::string& path) {
    if (mayClear())
        OpenFile(path);
}

void StudyFiles::Clear() {
    if (!mayClear())
        return;
    design_.SuspendForms(FormSet::main);
    try {
        store_.openTemplate(session_);
        design_.SynchForms(WindowId::frmTips, WindowAction::open);
    } catch (const FileProblem&) {
        design_.RestoreForms(FormSet::main);
        startWithoutTemplate();
    }
    session_.noteClean();
    session_.noteAsSaved();
}

// A program folder without its template is no reason not to start anew: the same values come from within.
void StudyFiles::startWithoutTemplate() {
    session_.edit({"", Reach::anew}, [&](SessionState& state) {
        startAnew(state);
        state.scenarios = ScenarioGrid();
        state.settings.currency = session_.systemCurrency();
    });
    session_.setCurrentFile("");
}

std::optional<UnsavedStudy> StudyFiles::unsavedStudy() const {
    if (session_.isAsSaved())
        return std::nullopt;
    return UnsavedStudy{session_.currentFile(), studyFileText(savedTable(session_))};
}

bool StudyFiles::bringBack(const UnsavedStudy& study) {
    try {
        ScenarioGrid table = readStudyText(study.table, study.file);
        design_.SuspendForms(FormSet::main);
        loadTable(session_, std::move(table), study.file);
    } catch (const FileProblem& problem) {
        design_.tellStatus(problem.what());
        return false;
    }
    design_.SynchForms(WindowId::frmTips, WindowAction::open);
    return true;
}

}  // namespace lorvane
