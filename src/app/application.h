// Makes one of everything on given platform interfaces and wires it. The desktop, the scripted sessions and
// the tests all act through it.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "app/command_rows.h"
#include "app/menu_rows.h"
#include "base/use_problem.h"
#include "graphs/graph_screen.h"
#include "guidance/about_window.h"
#include "guidance/details.h"
#include "guidance/graph_guide.h"
#include "guidance/guide.h"
#include "guidance/keyboard_page.h"
#include "guidance/manuals.h"
#include "persistence/scenario_list.h"
#include "persistence/scenario_window.h"
#include "persistence/start_screen.h"
#include "persistence/study_files.h"
#include "platform/chart.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/control_registry.h"
#include "platform/distribution_library.h"
#include "platform/document.h"
#include "platform/event_registry.h"
#include "platform/file_dialogs.h"
#include "platform/file_store.h"
#include "platform/hourglass.h"
#include "platform/message_boxes.h"
#include "platform/program_facts.h"
#include "platform/progress.h"
#include "platform/settings_store.h"
#include "platform/sheet.h"
#include "platform/shell.h"
#include "platform/system_locale.h"
#include "platform/unsaved_store.h"
#include "reporting/report_screen.h"
#include "screen/command_book.h"
#include "screen/design.h"
#include "screen/small_dialogs.h"
#include "search/mdes_window.h"
#include "search/optimal_window.h"
#include "session/answers.h"
#include "session/assignments.h"
#include "session/structure.h"

namespace lorvane {

/// What the outside gives to the program.
struct Platform {
    DistributionLibrary& distributions;
    const SystemLocale& locale;
    FileStore& files;
    MessageBoxes& messages;
    FileDialogs& dialogs;
    SettingsStore& settings;
    std::string programFolder;        ///< where the template of a new study lies
    UnsavedStore* unsaved = nullptr;  ///< none: a crash loses what was not saved
    Progress* progress = nullptr;     ///< none: nobody watches a search
    Clipboard* clipboard = nullptr;   ///< none: what is copied can be read by name alone
    const Clock* clock = nullptr;     ///< none: the clock of the machine
    Hourglass* hourglass = nullptr;   ///< none: nobody waits for a file
    Chart* chart = nullptr;           ///< none: graphs cannot be saved as pictures
    SheetWriter* sheets = nullptr;    ///< none: tables cannot be saved
    Shell* shell = nullptr;           ///< none: nothing is opened after it was saved
    DocumentPress* press = nullptr;   ///< none: reports have no pages
    ProgramFacts facts = {};
};

class Application {
public:
    explicit Application(const Platform& platform);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Opens the program for a person: offers a study that an earlier run has left unsaved, then opens the
    /// file of the command line, or the start screen when there is neither.
    void start(const std::string& file);

    /// The study as it would be saved now; nothing while it is as it was opened or saved.
    std::optional<UnsavedStudy> unsavedStudy() const { return studyFiles_.unsavedStudy(); }

    /// What became of a study that an earlier run left behind.
    BroughtBack broughtBack() const noexcept { return studyFiles_.broughtBack(); }

    /// Values for the study by name, see loadValues and setValues. Throws UseProblem or ArithmeticFault and
    /// changes nothing then.
    void load(std::span<const Assignment> values);
    void set(std::span<const Assignment> values);

    /// Asks whether unsaved work may go, then opens a file; the status line tells why it cannot be opened.
    void askAndOpen(const std::string& path);

    /// Opens a study file: all scenarios, and the state of the screen when it was saved. A study that cannot
    /// be computed opens with a request for other data. Throws FileProblem and changes nothing then.
    void open(const std::string& path);

    /// Saves the study with its scenarios. Throws FileProblem; the file that was there stays then.
    void save(const std::string& path);

    /// Puts a scenario of the study on the screen. Throws UseProblem when there is none of that name.
    void restoreScenario(const std::string& name);

    /// What a person does on the screen, by the names of its controls. Each throws UseProblem for a name that
    /// is not known and ArithmeticFault when the computation cannot go on; the entered values stay then.
    void tool(const std::string& name);
    void click(const std::string& control);

    /// A command of the menu of all windows: closes its window where that is open, which closesForm tells.
    void toggleForm(const std::string& name);
    bool closesForm(const std::string& name) const;
    void type(const std::string& control, const std::string& text);
    void select(const std::string& grid, const std::vector<std::size_t>& rows);
    void close(const std::string& window);
    void spin(const std::string& control, int direction, ArrowHold hold = ArrowHold::click, int times = 1);
    void spinReleased();

    /// What a double click on the cell of a field does; nothing for a name without a field. With a text, what
    /// typing its first character on the cell does: a number opens with the text in place of its value.
    void openValue(const std::string& field, const std::string& firstText = {});

    /// The cell of a field has got the focus: the details tell of it and commands act on it. What the status
    /// line tells stays until another cell has it.
    void focus(FieldRef field);

    /// What a click on the link sign of a field does.
    void toggleLink(FieldRef field);

    /// A number for a field, as its value dialog writes it; it must lie within the field's limits.
    void enterValue(FieldRef field, double value);

    /// A number of a window by its name, "frmOptimal.txtNumReps(1)", within its limits.
    void setNumber(const std::string& name, double value);
    bool hasNumber(const std::string& name) const { return events_.number(name) != nullptr; }

    /// The floating windows make way for a while, and the same ones come back.
    void suspendForms();
    void restoreForms();

    /// Runs after every event, when all display models are right again.
    void whenShown(std::function<void()> redraw) { events_.whenShown(std::move(redraw)); }

    const Session& session() const noexcept { return session_; }
    const Design& design() const noexcept { return design_; }
    const CommandBook& commands() const noexcept { return commands_; }
    const SmallDialogs& dialogs() const noexcept { return dialogs_; }
    const ScenarioWindow& scenarioWindow() const noexcept { return scenarioWindow_; }
    const OptimalWindow& optimalWindow() const noexcept { return optimalWindow_; }
    const StartScreen& startScreen() const noexcept { return startScreen_; }
    const Details& details() const noexcept { return details_; }
    const MdesWindow& mdesWindow() const noexcept { return mdesWindow_; }
    const GraphScreen& graph() const noexcept { return graph_; }
    const GraphGuide& graphGuide() const noexcept { return graphGuide_; }
    const ReportScreen& report() const noexcept { return report_; }
    const AboutWindow& about() const noexcept { return about_; }
    const KeyboardPage& keyboard() const noexcept { return keyboard_; }
    const Guide& guide() const noexcept { return guide_; }

    const ControlRegistry& names() const noexcept { return names_; }
    std::vector<ScenarioLine> scenarios() const { return scenarioLines(session_.scenarios()); }

private:
    void follow(const Changed& changed);
    void registerNames();
    void registerPanels();
    void announce();
    void showAgain();
    template <typename Event>
    void handle(Event event);

    NoProgress noProgress_;
    MemoryClipboard noClipboard_;
    SteadyClock steadyClock_;
    Platform platform_;
    Session session_;
    Design design_;
    SmallDialogs dialogs_{design_};
    Details details_{design_};
    MdesWindow mdesWindow_{design_};
    ScenarioWindow scenarioWindow_{design_};
    RecentFiles recent_;
    StudyStore store_;
    StudyFiles studyFiles_;
    StartScreen startScreen_;
    OptimalWindow optimalWindow_;
    GraphScreen graph_;
    GraphGuide graphGuide_;
    ReportScreen report_;
    AboutWindow about_;
    KeyboardPage keyboard_;
    Manuals manuals_;
    Guide guide_;

    /// In the order in which they hear of a change.
    std::vector<Part*> parts_ = {&dialogs_,        &mdesWindow_,  &optimalWindow_, &details_,
                                 &scenarioWindow_, &startScreen_, &graph_,         &graphGuide_,
                                 &report_,         &about_,       &keyboard_,      &guide_};
    CommandBook commands_;
    ControlRegistry names_;
    EventRegistry events_;
};

}  // namespace lorvane
