// The session: owns the one study with its settings, scenarios and undo, and is the one door through which
// they change. Knows no window.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/arithmetic_fault.h"
#include "platform/clock.h"
#include "platform/distribution_library.h"
#include "session/history.h"
#include "session/session_state.h"
#include "session/study_trial.h"

namespace lorvane {

/// How far a change goes.
enum class Reach {
    anew,     ///< another study: everything is computed and told, and a new history begins
    study,    ///< values that the computation reads: it runs, and answers of searches are out of date
    setting,  ///< values that a file keeps and no computation reads: a step of undo, and nothing more
    display   ///< only how results are displayed: no step, and nothing to save
};

/// What becomes of a change whose arithmetic cannot go on.
enum class IfFault {
    keep,  ///< the values stay, other data are asked for, and the fault passes on
    undo,  ///< everything is put back, and the fault passes on
    show   ///< the values stay, and other data are asked for
};

/// A fault of the study itself, with the values that most likely caused it. The session has put the study
/// back or has told its followers.
class StudyFault : public ArithmeticFault {
public:
    StudyFault(const ArithmeticFault& fault, const Study& study);
};

/// A change as the followers hear of it.
struct Changed {
    Reach reach = Reach::study;
    bool heldArrow = false;   ///< one tick of an arrow that is still held
    bool otherStudy = false;  ///< nothing told of the study before may stay on display
};

/// What a file lacks of the study.
struct UnsavedWork {
    std::optional<std::size_t> steps;  ///< nothing when they are too many to know
    std::size_t scenarios = 0;         ///< added or named anew; each was one of the steps
    std::string since;                 ///< day and time of the last save or opening; empty when not known
    std::string now;                   ///< day and time
};

class Session {
public:
    Session(DistributionLibrary& library, Currency systemCurrency, const Clock& clock);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // What there is -----------------------------------------------------------------------------------------

    const SessionState& state() const noexcept { return now_.state; }
    const Study& study() const noexcept { return now_.state.study; }
    const Clock& clock() const noexcept { return clock_; }
    const StudySettings& settings() const noexcept { return now_.state.settings; }
    const DisplaySettings& display() const noexcept { return now_.state.display; }
    const ScenarioGrid& scenarios() const noexcept { return now_.state.scenarios; }

    /// What the last computation told, and why it could not go on; empty when it did.
    const Computation& computation() const noexcept { return now_.computation; }
    const std::string& faultWords() const noexcept { return now_.faultWords; }

    /// Counts the computations of the study, also those that undo brought back: while it stands, what was
    /// worked out for the study holds.
    std::size_t computations() const noexcept { return computations_; }

    /// The currency of the system's regional settings.
    const Currency& systemCurrency() const noexcept { return systemCurrency_; }

    // The door ----------------------------------------------------------------------------------------------

    using Change = std::function<void(SessionState&)>;

    /// A change by its name, as undo tells it, "number of schools".
    struct Edit {
        std::string name;
        Reach reach = Reach::study;
        IfFault ifFault = IfFault::keep;
        std::string run = {};  ///< arrows whose clicks within a second of each other are one step
        bool heldArrow = false;
        bool otherStudy = false;  ///< nothing told of the study before may stay on display
    };

    /// Carries out a change, computes what follows from it, keeps the former state for undo and tells the
    /// followers. Throws what the change throws; everything is as it was then. Throws ArithmeticFault too,
    /// see IfFault.
    void edit(const Edit& edit, const Change& change);

    /// Computes anew and tells the followers, without a change. Throws ArithmeticFault; the values stay.
    void refresh();

    /// A copy of the study to try values on.
    StudyTrial trial() const { return {study(), library_}; }

    /// Shows the study with another effect until it is taken back or edited. It is no step, and neither undo
    /// nor a file ever sees it. Throws ArithmeticFault.
    void lendEffect(double Study::*field, double effect);

    /// The study's own effect returns, where the one lent still stands.
    void takeBackEffect();
    bool hasLentEffect() const noexcept { return lent_.has_value(); }

    /// Flags that a search leaves beside the numbers of the study.
    void keepSearchOutcome(const PowerResult& outcome);
    void keepMdesOutcome(MdesOutcomes outcome) { now_.state.study.result.MDES = outcome; }

    /// A moment of the session with the study's own effect: what a file keeps.
    Moment ownMoment() const;

    // Undo --------------------------------------------------------------------------------------------------

    /// Goes one step back or forth; false when there is none. How results are displayed stays.
    bool undo();
    bool redo();

    std::size_t undoDepth() const noexcept { return history_.depth(); }
    bool canRedo() const noexcept { return history_.canRedo(); }
    std::string undoName() const { return history_.undoName(); }
    std::string redoName() const { return history_.redoName(); }

    /// The states that undo and redo would go to; null where there is none.
    const SessionState* beforeUndo() const {
        return history_.depth() == 0 ? nullptr : &history_.beforeLast().state;
    }
    const SessionState* afterRedo() const { return canRedo() ? &history_.afterNext().state : nullptr; }

    // The file ----------------------------------------------------------------------------------------------

    /// Path of the open file; empty for a new study.
    const std::string& currentFile() const noexcept { return currentFile_; }
    void setCurrentFile(std::string path, std::uint64_t content = 0) {
        currentFile_ = std::move(path);
        fileContent_ = content;
    }

    /// Hash of what the open file held when it was last read or written; 0: not known.
    std::uint64_t fileContent() const noexcept { return fileContent_; }

    /// Every computation with a follower makes the study dirty, and so does every step. A save, a clear and
    /// the way back to the saved state end that.
    bool isDirty() const noexcept { return dirty_; }
    void noteClean() noexcept { dirty_ = false; }

    /// The study with its scenarios is on the disk as it is now, or is a new one. Opening a file makes it so
    /// too, though the study counts as dirty after it.
    void noteAsSaved();
    bool isAsSaved() const noexcept { return now_.revision == savedRevision_; }

    /// What was done since the study was as saved.
    UnsavedWork unsavedWork() const;

    // Who hears of it ---------------------------------------------------------------------------------------

    /// Runs after every change, in the order of the calls.
    void follow(std::function<void(const Changed&)> follower) { followers_.push_back(std::move(follower)); }

private:
    /// The effect that a search shows, and the one that returns.
    struct LentEffect {
        double Study::*field;
        double own;
        double lent;
    };

    void compute();
    void record(const Edit& edit, Moment before);
    bool continuesRun(const std::string& run) const;
    bool isLentOnShow() const;
    bool hasOwnValuesOf(const SessionState& former) const;
    void tell(const Changed& changed);
    void goTo(Moment moment);

    DistributionLibrary& library_;
    const Currency systemCurrency_;
    const Clock& clock_;
    Moment now_;
    History history_;
    std::optional<LentEffect> lent_;
    std::string run_;  ///< arrows of the last step; empty when a click on them would be a step of its own
    Clock::Time lastClick_;
    std::size_t lastRevision_ = 0;
    std::size_t computations_ = 0;
    std::size_t savedRevision_ = 0;
    ScenarioGrid savedScenarios_;
    std::string savedAt_;
    std::string currentFile_;
    std::uint64_t fileContent_ = 0;
    bool dirty_ = false;
    std::vector<std::function<void(const Changed&)>> followers_;
};

/// Begins a new study, two levels with means, inside a change. The currency and the settings that no file
/// holds stay; the scenarios are those of the state.
void startAnew(SessionState& state);

}  // namespace lorvane
