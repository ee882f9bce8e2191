// Opening and saving the study with its scenarios.
#include "persistence/study_files.h"

#include <utility>

#include "base/utf8.h"
#include "persistence/study_file.h"
#include "persistence/unsaved_words.h"

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

void StudyFiles::write(const std::string& path) {
    store_.save(session_, path);
    broughtBack_ = BroughtBack::none;
    remember(path);
}

void StudyFiles::save(const std::string& path) {
    store_.checkUnchanged(session_, path);
    write(path);
}

bool StudyFiles::hasChanged(const std::string& path) const {
    try {
        store_.checkUnchanged(session_, path);
        return false;
    } catch (const FileProblem&) {
        return true;
    }
}

Answer StudyFiles::askAboutChange(const std::string& path) {
    return design_.ask({"The file has changed",
                        "Another program has changed " + path +
                            " since it was opened. Saving puts this study in its place. ",
                        {{Answer::Yes, "Save anyway"}, {Answer::No, "Save as"}, Answer::Cancel},
                        Answer::No,
                        MessageKind::loss});
}

// What can be done about a failed save; the study keeps its name and its changes.
bool StudyFiles::askAfterFailure(const std::string& text) {
    return design_.ask({"File was not saved                       ",
                        text,
                        {{Answer::Yes, "Save as"}, Answer::Cancel},
                        {},
                        MessageKind::failure}) == Answer::Yes &&
           FileSave(SaveMode::saveAs);
}

// The name that the study has, or its title where it has none yet.
std::string StudyFiles::suggestedName() const {
    const std::string& file = session_.currentFile();
    const std::string name = file.empty() ? design_.screen().pnlTitle.Caption : fileStem(file);
    return name + extension;
}

// A save under the name that the study has is told in the status line; a person who chose a name gets a
// message.
bool StudyFiles::FileSave(SaveMode mode) {
    std::string path = session_.currentFile();
    if (mode == SaveMode::save && hasChanged(path)) {
        const Answer answer = askAboutChange(path);
        if (answer == Answer::Cancel)
            return false;
        mode = answer == Answer::No ? SaveMode::saveAs : mode;
    }
    if (mode == SaveMode::saveAs || path.empty()) {
        const auto chosen =
            chooseFile({FileDialog::Kind::save, "Save file", filter, "", {}, true, suggestedName()});
        if (!chosen)
            return false;
        path = *chosen;
    }
    try {
        write(path);
    } catch (const ProtectedFile& problem) {
        design_.tellStatus(problem.what());
        return askAfterFailure(problem.what());
    } catch (const FileProblem& problem) {
        design_.tellStatus(problem.what());
        return askAfterFailure(
            "File could not be saved. It is probably being used by another program                ");
    }
    design_.tellStatus("Saved in " + printable(path.substr(path.find_last_of('/') + 1)) + ".");
    MessageBox saved{"File saved", "The file " + path + " has been saved. "};
    if (mode == SaveMode::save)
        saved.kind = MessageKind::formality;
    design_.ask(saved);
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
    noteOtherStudy();
    if (!store_.isTemplate(path))
        remember(path);
    design_.showGuide();
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
        design_.tellNotOpened(problem.what());
        return false;
    }
}

// Asks whether the study may go. OK lets unsaved work go; on the screen it can be saved first. Where nothing
// would be lost a person is not asked.
bool StudyFiles::mayGo(std::string title, std::string text, Answer preset) {
    MessageBox question{std::move(title), std::move(text), {Answer::OK, Answer::Cancel}, preset};
    question.kind = session_.isAsSaved() ? MessageKind::formality : MessageKind::loss;
    question.onScreen = {saveQuestion(session_),
                         unsavedWords(session_),
                         {{Answer::OK, "Don't save"}, Answer::Cancel, Answer::Save}};
    const Answer answer = design_.ask(question);
    return answer == Answer::OK || (answer == Answer::Save && FileSave(SaveMode::save));
}

bool StudyFiles::mayClear(Answer preset) {
    return !session_.isDirty() ||
           mayGo("Confirmation needed",
                 "This will clear all data and saved scenarios. Ok to proceed?         ", preset);
}

void StudyFiles::closeRequest() {
    const bool dirty = session_.isDirty();
    if (mayGo(dirty ? "Confirmation needed" : "Confirm exit",
              dirty ? "This will clear all data and saved scenarios. Ok to exit?         "
                    : "Ok to exit?                ",
              Answer::Save))
        design_.close();
}

void StudyFiles::askAndOpen(const std::string& path, Answer preset) {
    if (mayClear(preset))
        OpenFile(path);
}

void StudyFiles::noteOtherStudy() {
    if (broughtBack_ == BroughtBack::onScreen)
        broughtBack_ = BroughtBack::letGo;
}

void StudyFiles::Clear() {
    if (!mayClear(Answer::Save))
        return;
    design_.SuspendForms(FormSet::main);
    try {
        store_.openTemplate(session_);
        design_.showGuide();
    } catch (const FileProblem&) {
        design_.RestoreForms(FormSet::main);
        startWithoutTemplate();
    }
    noteOtherStudy();
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
    return UnsavedStudy{session_.currentFile(), studyFileText(savedTable(session_)), session_.fileContent()};
}

void StudyFiles::bringBack(const LeftBehind& picture) {
    ScenarioGrid table = readStudyText(picture.study.table, picture.place);
    design_.SuspendForms(FormSet::main);
    loadTable(session_, std::move(table), picture.study.file, picture.study.fileContent);
    broughtBack_ = BroughtBack::onScreen;
    design_.showGuide();
}

}  // namespace lorvane
