// The panel of the smallest detectable effect: its display models and commands. While it is open the effect
// field keeps what was found; closing brings the earlier effect back.
#pragma once

#include <string>

#include "platform/control_registry.h"
#include "platform/event_registry.h"
#include "screen/design.h"
#include "screen/part.h"
#include "search/mdes_texts.h"

namespace lorvane {

class MdesWindow final : public Part {
public:
    /// What the panel shows below its prompt.
    enum class State {
        resting,  ///< nothing yet
        result,   ///< of the study as it stands
        changed,  ///< there was an edit, the result is gone
        problem,
    };

    /// The screen must outlive it.
    explicit MdesWindow(Design& design);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    void follow(const Changed& changed) override;

    State state() const noexcept { return state_; }
    const Panel& prompt() const noexcept { return pnlMDESTop_; }
    const Panel& firstLine() const noexcept { return pnlMDESMid_; }
    const Panel& secondLine() const noexcept { return pnlMDES_; }
    /// What to know of the numbers; empty where there is nothing.
    const Panel& note() const noexcept { return pnlNote_; }
    const Panel& figureName() const noexcept { return pnlFigureName_; }
    const Panel& figureNumber() const noexcept { return pnlFigureNumber_; }
    /// Whether there is a figure, and what stands before its number: "d = ".
    bool hasFigure() const noexcept { return !pnlFigureNumber_.Caption.empty(); }
    std::string figureWords() const { return pnlFigureName_.Caption + " = "; }
    const Button& compute() const noexcept { return cmdComputeMDES_; }
    const Button& closeButton() const noexcept { return cmdMDESClose_; }

private:
    bool isOpen() const;
    void computeEffect();
    void close();
    void show(State state, const MdesLines& lines, const MdesFigure& figure = {});

    Design& design_;
    double prompted_ = 0;  ///< required power that the prompt tells
    bool computing_ = false;
    State state_ = State::resting;
    Panel pnlMDESTop_;
    Panel pnlMDESMid_;
    Panel pnlMDES_;
    Panel pnlNote_;
    Panel pnlFigureName_;
    Panel pnlFigureNumber_;
    Button cmdComputeMDES_;
    Button cmdMDESClose_;
};

}  // namespace lorvane
