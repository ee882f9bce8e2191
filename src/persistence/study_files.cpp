// Opening and saving the study with its scenarios.
#include "persistence/study_files.h"

#include <filesystem>
#include <utility>

#include "persistence/scenario_cells.h"
#include "persistence/study_file.h"
#include "screen/whole_change.h"

namespace lorvane {

namespace {

constexpr const char* templateName = "/Template Means.Lorvane";
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

StudyFiles::StudyFiles(Design& design, ScenarioGrid& grid, ScenarioWindow& scenarios, RecentFiles& recent,
                       FileStore& files, FileDialogs& dialogs, const std::string& programFolder)
    : design_(design), grid_(grid), scenarios_(scenarios), recent_(recent), files_(files), dialogs_(dialogs),
      template_(programFolder + templateName) {}

void StudyFiles::registerEvents(EventRegistry& events) {
    events.onTool("Save", [this] { FileSave(SaveMode::save); });
    events.onTool("SaveAs", [this] { FileSave(SaveMode::saveAs); });
    events.onTool("Open", [this] { askAndOpen(""); });
    events.onTool("Clear", [this] { Clear(); });
}

std::optional<std::string> StudyFiles::chooseFile(const FileDialog& dialog) {
    const FormsAside aside(design_);
    return dialogs_.choose(dialog);
}

void StudyFiles::write(const std::string& path) {
    grid_.DeleteScenario(SystemScenarioName);
    SaveScenario(grid_, design_, SystemScenarioName, SystemScenarioName);
    SaveGrid(files_, path, grid_);
}

void StudyFiles::remember(const std::string& path) {
    recent_.SetFlex(path);
    recent_.SaveFiles();
}

void StudyFiles::save(const std::string& path) {
    write(path);
    design_.settings().CurrentFile = path;
    remember(path);
    design_.settings().StudyDirty = false;
    design_.noteAsSaved();
}

bool StudyFiles::FileSave(SaveMode mode) {
    std::string path = design_.settings().CurrentFile;
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
void StudyFiles::show(ScenarioGrid loaded, const std::string& file) {
    changeOrUndo(
        design_,
        [&] {
            design_.SuspendForms(FormSet::main);
            design_.startAnew();
            RestoreScenario(loaded, design_, SystemScenarioName);
            design_.settings().CurrentFile = file;
        },
        IfFault::show);
    loaded.DeleteScenario(SystemScenarioName);
    grid_ = std::move(loaded);
    scenarios_.rebuild();
    design_.SynchForms(WindowId::frmTips, WindowAction::open);
}

void StudyFiles::open(const std::string& path) {
    if (std::filesystem::absolute(path).lexically_normal() == template_) {
        openTemplate();
        return;
    }
    show(LoadGrid(files_, path), path);
    remember(path);
    design_.noteAsSaved();
}

// A new study has the currency of this system, not of the one that the template was made on.
void StudyFiles::openTemplate() {
    show(LoadGrid(files_, template_), "");
    design_.settings().currency = design_.systemCurrency();
    design_.DoRefresh(true);
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
    return !design_.settings().StudyDirty ||
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
    try {
        openTemplate();
    } catch (const FileProblem&) {
        startWithoutTemplate();
    }
    design_.settings().StudyDirty = false;
    design_.noteAsSaved();
}

// A program folder without its template is no reason not to start anew: the same values come from within.
void StudyFiles::startWithoutTemplate() {
    design_.settings().CurrentFile.clear();
    design_.settings().currency = design_.systemCurrency();
    design_.ResetToStart();
    forgetScenarios();
}

void StudyFiles::forgetScenarios() {
    grid_ = ScenarioGrid();
    scenarios_.rebuild();
}

std::optional<UnsavedStudy> StudyFiles::unsavedStudy() const {
    if (design_.isAsSaved())
        return std::nullopt;
    ScenarioGrid screen;
    SaveScenario(screen, design_, SystemScenarioName, SystemScenarioName);
    return UnsavedStudy{design_.settings().CurrentFile, studyFileText(grid_, screen)};
}

bool StudyFiles::bringBack(const UnsavedStudy& study) {
    try {
        show(readStudyText(study.table, study.file), study.file);
    } catch (const FileProblem& problem) {
        design_.tellStatus(problem.what());
        return false;
    }
    return true;
}

}  // namespace lorvane
