// The start screen.
#include "persistence/start_screen.h"

#include <algorithm>
#include <optional>

#include "base/names.h"
#include "persistence/unsaved_words.h"

namespace lorvane {

namespace {

constexpr const char* fileKind = "File";
constexpr const char* moreFilesKind = "More files";
constexpr const char* moreFiles = "More files ...";
constexpr const char* marked = "1";

}  // namespace

StartScreen::StartScreen(Design& design, StudyFiles& studies, const RecentFiles& recent,
                         const FileStore& files)
    : design_(design), studies_(studies), recent_(recent), files_(files) {
    optStart_(StartChoices::newProject).Caption = "Start a new project";
    pnlChoice_(StartChoices::newProject).Caption = "Two levels, ready to edit";
    optStart_(StartChoices::existingFile).Caption = "Open an existing file";
    pnlChoice_(StartChoices::existingFile).Caption = "A recent study or another file";
    cmdOK_(0).Caption = "OK";
    cmdOK_(1).Caption = "Cancel";
    LoadFiles();
    SetDisplay();
}

void StartScreen::registerNames(ControlRegistry& registry) const {
    registry.add("frmStart.StartChoice", &choice_);
    registry.add("frmStart.pnlOptions", pnlOptions_);
    registry.add("frmStart.PnlLogo", PnlLogo_);
    registry.add("frmStart.pnlName", pnlName_);
    registry.add("frmStart.pnlSense", pnlSense_);
    registry.add("frmStart.pnlQuestion", pnlQuestion_);
    registry.add("frmStart.pnlFiles", pnlFiles_);
    for (const int choice : {StartChoices::newProject, StartChoices::existingFile}) {
        registry.add(indexedName("frmStart.optStart", choice), optStart_(choice));
        registry.add(indexedName("frmStart.pnlChoice", choice), pnlChoice_(choice));
    }
    for (const int button : {0, 1})
        registry.add(indexedName("frmStart.cmdOK", button), cmdOK_(button));
    registry.addGrid("frmStart.flex", flex_);
}

void StartScreen::registerEvents(EventRegistry& events) {
    for (const int choice : {StartChoices::newProject, StartChoices::existingFile})
        events.onClick(indexedName("frmStart.optStart", choice), [this, choice] { choose(choice); });
    events.onClick("frmStart.cmdOK(0)", [this] { accept(); });
    events.onClick("frmStart.cmdOK(1)", [this] { closeScreen(); });
    events.onClose("frmStart", [this] { closeScreen(); });
    events.addGrid("frmStart.flex", flex_);
}

bool StartScreen::isOpen() const { return design_.isOpen(WindowId::frmStart); }

bool StartScreen::isMissing(std::size_t row) const {
    const Grid::Row& cells = flex_.rows[row];
    return cells[kindColumn] == fileKind && !files_.exists(cells[pathColumn]);
}

void StartScreen::open() {
    if (!isOpen()) {
        choose(StartChoices::newProject);
        LoadFiles();
    }
    design_.SynchForms(WindowId::frmStart, WindowAction::open);
}

void StartScreen::LoadFiles() {
    flex_.rows = {{"", "", "", "", ""}, {"", "", "", moreFiles, moreFilesKind}};
    for (std::size_t i = 0; i < RecentFiles::rows && !recent_.path(i).empty(); ++i)
        flex_.rows.push_back({"", marked, recent_.path(i), fileStem(recent_.path(i)), fileKind});
    flex_.selected = {std::min(moreRow + 1, flex_.rows.size() - 1)};
}

// The logo's panel takes the place of the options' panel once a file is to be opened.
void StartScreen::SetDisplay() {
    pnlOptions_.Visible = choice_ == StartChoices::newProject;
    PnlLogo_.Visible = choice_ == StartChoices::existingFile;
    for (const int choice : {StartChoices::newProject, StartChoices::existingFile})
        optStart_(choice).Value = choice == choice_;
}

void StartScreen::choose(int choice) {
    choice_ = choice;
    SetDisplay();
}

void StartScreen::closeScreen() {
    design_.SynchForms(WindowId::frmStart, WindowAction::bringBack);
    design_.SynchForms(WindowId::frmStart, WindowAction::unload);
}

// The screen makes way while a file is chosen and opened, and comes back when that fails.
void StartScreen::accept() {
    if (!isOpen())
        return;
    if (choice_ == StartChoices::newProject) {
        closeScreen();
        return;
    }
    design_.SynchForms(WindowId::frmStart, WindowAction::withdraw);
    const std::string path = chosenPath();
    if (path.empty())
        design_.SynchForms(WindowId::frmStart, WindowAction::bringBack);
    else
        tryToOpen(path);
}

// The path of the selected file; for "More files" the answer of the file dialog, empty on Cancel.
std::string StartScreen::chosenPath() {
    const std::size_t row = flex_.selected.empty() ? moreRow : flex_.selected.front();
    if (flex_.rows[row][kindColumn] == fileKind)
        return flex_.rows[row][pathColumn];
    const FileDialog dialog{FileDialog::Kind::open, "Open database", "(*..Lorvane)|*.Lorvane", ""};
    return studies_.chooseFile(dialog).value_or("");
}

// Why a file cannot be opened is told on a card over the screen.
void StartScreen::tryToOpen(const std::string& path) {
    if (studies_.OpenFile(path)) {
        closeScreen();
        return;
    }
    design_.ask({" File not opened ",
                 "Sorry, that file could not be opened         ",
                 {Answer::OK},
                 {},
                 MessageKind::formality});
    design_.SynchForms(WindowId::frmStart, WindowAction::bringBack);
}

}  // namespace lorvane
