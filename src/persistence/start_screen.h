// The start screen: a new study or an existing file, with the recent files to choose from.
#pragma once

#include <string>

#include "persistence/recent_files.h"
#include "persistence/study_files.h"
#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "platform/file_store.h"
#include "screen/design.h"
#include "screen/part.h"

namespace lorvane {

namespace StartChoices {
inline constexpr int newProject = 1;
inline constexpr int existingFile = 2;
}  // namespace StartChoices

class StartScreen final : public Part {
public:
    /// The row of the list that stands for other files; the files follow.
    static constexpr std::size_t moreRow = 1;

    // Columns of the list; column 0 is empty.
    static constexpr std::size_t markerColumn = 1;
    static constexpr std::size_t pathColumn = 2;
    static constexpr std::size_t textColumn = 3;
    static constexpr std::size_t kindColumn = 4;

    StartScreen(Design& design, StudyFiles& studies, const RecentFiles& recent, const FileStore& files);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    /// Opens the screen with the first choice and the recent files as they are now; raises it when it is
    /// open.
    void open();

    int StartChoice() const noexcept { return choice_; }

    /// The name of the program, what it is for, and the question.
    const Panel& pnlName() const noexcept { return pnlName_; }
    const Panel& pnlSense() const noexcept { return pnlSense_; }
    const Panel& pnlQuestion() const noexcept { return pnlQuestion_; }

    /// A choice by its number in StartChoices, and its second line.
    const Option& optStart(int choice) const { return optStart_(choice); }
    const Panel& pnlChoice(int choice) const { return pnlChoice_(choice); }

    const Panel& pnlFiles() const noexcept { return pnlFiles_; }      ///< heading of the recent files
    const Button& cmdOK(int button) const { return cmdOK_(button); }  ///< OK, Cancel

    /// The recent files: "More files ..." in row 1, then a row a file.
    const Grid& flex() const noexcept { return flex_; }

    /// Whether the file of a row is not there any more.
    bool isMissing(std::size_t row) const;

private:
    void LoadFiles();
    void SetDisplay();
    void choose(int choice);
    void accept();
    void closeScreen();
    std::string chosenPath();
    void tryToOpen(const std::string& path);
    bool isOpen() const;

    Design& design_;
    StudyFiles& studies_;
    const RecentFiles& recent_;
    const FileStore& files_;
    int choice_ = StartChoices::newProject;
    Grid flex_;
    Panel pnlOptions_;
    Panel PnlLogo_;
    Panel pnlName_{windowTitle(WindowId::frmStart)};
    Panel pnlSense_{"Planning of cluster-randomized trials"};
    Panel pnlQuestion_{"What would you like to do?"};
    IndexedArray<Option, 1, 2> optStart_;
    IndexedArray<Panel, 1, 2> pnlChoice_;
    Panel pnlFiles_{"Recent files"};
    IndexedArray<Button, 0, 1> cmdOK_;
};

}  // namespace lorvane
