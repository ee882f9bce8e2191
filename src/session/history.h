// The steps that can be undone and redone. Knows states and names, and nothing of what a step means.
#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <string>

#include "session/computation.h"
#include "session/session_state.h"

namespace lorvane {

/// A moment of the session: its values with what was computed of them.
struct Moment {
    SessionState state;
    Computation computation;
    std::string faultWords;    ///< why the computation could not go on; empty when it did
    std::size_t revision = 0;  ///< tells this state of the study from all others
};

class History {
public:
    static constexpr std::size_t mostSteps = 200;

    /// A step was taken from a moment. What was undone before it can no longer be redone.
    void add(std::string name, Moment before);

    /// Moves one step back or forth: the moment to go to comes out, and the present one takes its place.
    /// There must be such a step.
    Moment undo(Moment present);
    Moment redo(Moment present);

    /// Takes the last step back out without going there.
    void forgetLast() { past_.pop_back(); }

    /// Where the last step began; there must be one.
    const Moment& beforeLast() const { return past_.back().moment; }

    /// Where the next step leads that can be redone; there must be one.
    const Moment& afterNext() const { return future_.back().moment; }

    void clear();

    /// Steps between the present and the state of a revision, before or after it; nothing when it is gone.
    std::optional<std::size_t> stepsTo(std::size_t revision) const;

    std::size_t depth() const noexcept { return past_.size(); }
    bool canRedo() const noexcept { return !future_.empty(); }
    std::string undoName() const { return past_.empty() ? std::string() : past_.back().name; }
    std::string redoName() const { return future_.empty() ? std::string() : future_.back().name; }

private:
    struct Step {
        std::string name;
        Moment moment;
    };

    std::deque<Step> past_;
    std::deque<Step> future_;
};

}  // namespace lorvane
