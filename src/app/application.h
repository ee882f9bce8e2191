// Makes one of everything on given platform interfaces and wires it. The desktop, the command line and the
// tests all act through it.
#pragma once

#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "guidance/details.h"
#include "persistence/scenario_grid.h"
#include "persistence/scenario_list.h"
#include "persistence/scenario_window.h"
#include "persistence/start_screen.h"
#include "persistence/study_files.h"
#include "platform/control_registry.h"
#include "platform/distribution_library.h"
#include "platform/event_registry.h"
#include "platform/file_dialogs.h"
#include "platform/file_store.h"
#include "platform/message_boxes.h"
#include "platform/progress.h"
#include "platform/settings_store.h"
#include "platform/system_locale.h"
#include "platform/unsaved_store.h"
#include "screen/design.h"
#include "screen/small_dialogs.h"
#include "screen/study_fields.h"
#include "search/mdes_window.h"
#include "search/optimal_window.h"

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
};

/// A name or a value that the program does not take; one sentence that names it.
class UseProblem : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A field by name with its new value.
struct Assignment {
    std::string name;
    FieldValue value;
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
    std::optional<UnsavedStudy> unsavedStudy() const;

    /// Starts from a new study without scenarios and writes the values at once, as opening a file with them
    /// would: what no dialog offers is taken. Then one refresh. Throws UseProblem or ArithmeticFault and
    /// changes nothing then.
    void load(std::span<const Assignment> values);

    /// Writes values into the study as dialogs would, within their limits; design choices first, whatever
    /// their order, each by its operation; then one refresh. Throws UseProblem or ArithmeticFault and changes
    /// nothing then.
    void set(std::span<const Assignment> values);

    /// A field's value from its text, by the kind of the field. Throws UseProblem for an unknown field, with
    /// the nearest known name, and for a text that does not spell a value.
    Assignment parse(const std::string& name, const std::string& text) const;

    /// Asks whether unsaved work may go, then opens a file; the status line tells why it cannot be opened.
    void askAndOpen(const std::string& path);

    /// Opens a study file: all scenarios, and the state of the screen when it was saved. A study that cannot
    /// be computed opens with a request for other data. Throws FileProblem and changes nothing then.
    void open(const std::string& path);

    /// Saves the study with its scenarios. Throws FileProblem; the file that was there stays then.
    void save(const std::string& path);

    /// Puts a scenario of the study on the screen. Throws UseProblem when there is none of that name, with
    /// the names that there are.
    void restoreScenario(const std::string& name);

    std::vector<ScenarioLine> scenarios() const { return scenarioLines(scenarios_); }
    const ScenarioGrid& scenarioGrid() const noexcept { return scenarios_; }

    /// Whether the last refresh gave a power. A risk ratio and two risks have no test of their own.
    bool hasPower() const;

    /// Why the study gives no power, in the words of the window that tells it; needs a study without power.
    std::string whyNoPower() const;

    /// The smallest effect with which the study reaches a power; the study stays as it is. Throws
    /// ArithmeticFault.
    MdesResult findMDES(double requiredPower) { return FindMDES(design_, requiredPower); }

    /// What a person does on the screen, by the names of its controls. Each throws UseProblem for a name that
    /// is not known and ArithmeticFault when the computation cannot go on; the entered values stay then.
    void tool(const std::string& name);
    void click(const std::string& control);
    void type(const std::string& control, const std::string& text);
    void select(const std::string& grid, const std::vector<std::size_t>& rows);
    void close(const std::string& window);
    void spin(const std::string& control, int direction, Design::SpinMode mode = Design::SpinMode::click);
    void spinReleased();
    void openValue(const std::string& field);

    /// A number of a window by its name, "frmOptimal.txtNumReps(1)", within its limits.
    void setNumber(const std::string& name, double value);
    bool hasNumber(const std::string& name) const { return events_.number(name) != nullptr; }

    /// The floating windows make way for a while, and the same ones come back.
    void suspendForms();
    void restoreForms();

    /// Runs after every event, when all display models are right again.
    void whenShown(std::function<void()> redraw) { events_.whenShown(std::move(redraw)); }

    const ScenarioWindow& scenarioWindow() const noexcept { return scenarioWindow_; }
    const OptimalWindow& optimalWindow() const noexcept { return optimalWindow_; }
    OptimalWindow& optimalWindow() noexcept { return optimalWindow_; }
    const StartScreen& startScreen() const noexcept { return startScreen_; }
    const Details& details() const noexcept { return details_; }
    const MdesWindow& mdesWindow() const noexcept { return mdesWindow_; }
    const SmallDialogs& dialogs() const noexcept { return dialogs_; }

    const ControlRegistry& names() const noexcept { return names_; }
    const Grid* grid(std::string_view name) const { return names_.grid(name); }
    const Design& design() const noexcept { return design_; }
    const StudyFields& fields() const noexcept { return design_.fields(); }

private:
    bool offerLeftBehind();
    void registerPanels();
    void disableToolsWithoutSubject();
    std::string nearestTool(const std::string& name) const;
    const StudyField& knownField(const std::string& name) const;
    enum class Kind { choices, values };
    void check(std::span<const Assignment> values, Kind kind, ValueSource source) const;
    void applyChoices(std::span<const Assignment> values);
    void write(std::span<const Assignment> values);
    template <typename Event>
    void handle(Event event);

    Platform platform_;
    Design design_;
    SmallDialogs dialogs_;
    Details details_;
    MdesWindow mdesWindow_;
    ScenarioGrid scenarios_;
    ScenarioWindow scenarioWindow_;
    RecentFiles recent_;
    StudyFiles studyFiles_;
    StartScreen startScreen_;
    NoProgress noProgress_;
    OptimalWindow optimalWindow_;
    ControlRegistry names_;
    EventRegistry events_;
};

}  // namespace lorvane
