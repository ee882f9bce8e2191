// The optimal design wizard: the question, options of the levels, the search, its sizes and cost, its notes.
// A display model with its commands.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/event_registry.h"
#include "platform/progress.h"
#include "screen/design.h"
#include "screen/part.h"
#include "search/optimal_outcome.h"
#include "search/optimal_question.h"
#include "search/optimal_search.h"
#include "search/optimal_texts.h"

namespace lorvane {

class OptimalWindow final : public Part {
public:
    /// What the band below the levels tells.
    enum class State {
        message,  ///< what to do, or that the search goes on
        problem,
        result
    };

    /// The row of one level.
    struct LevelRow {
        bool Visible = false;  ///< the study has the level
        bool isTop = false;    ///< its number is searched for: it has no options
        Panel pnlSearched{"The number that is searched for", false};  ///< until it is found
        Panel optPanelName;                                           ///< plural name of the units
        Panel pnlRole;  ///< "(Nested)", "(Randomized)" or "(Blocked)"
        LevelRole role = LevelRole::nested;
        Option optAuto, optManual;
        double txtNumReps = 1;                           ///< size set by hand, or found
        TextBox size;                                    ///< the box to set it
        std::string arrows;                              ///< name of the arrows of the box
        Panel OptimalpnlNT, OptimalpnlNC, OptimalpnlNB;  ///< what each arm, or the block, will have
        bool OptimalspnNT = false, OptimalspnNC = false, OptimalspnNB = false;  ///< arrows are shown
    };

    OptimalWindow(Design& design, Progress& progress);

    void registerNames(ControlRegistry& registry) const override;
    void registerEvents(EventRegistry& events) override;

    void follow(const Changed& changed) override;

    /// Opens the wizard, or tells why it cannot be used.
    void open();

    /// Opens it and searches at once, with all lower levels left to the search or as the study has them.
    void openAndCompute(bool byHand);

    /// Rewrites the level rows for the present levels, everything left to the search.
    void DisplayOptimalOptions();

    /// Brings the wizard up to date with the study; the result of an earlier run is forgotten.
    void ReDisplayOptimal();

    /// The whole run. The study is as before afterwards. Throws ArithmeticFault.
    void ComputeOptimalDesign();

    /// Writes the sizes of the design that is looked at into the study; nothing without a result.
    void paste();

    State state() const noexcept { return state_; }

    const OptimalQuestion& question() const { return question_; }
    const LevelRow& row(int level) const { return rows_(level); }
    const Panel& lblLevel() const { return lblLevel_; }                  ///< head of the names
    const Panel& lblGroup(int group) const { return lblGroup_(group); }  ///< heads of the arms
    const Panel& pnlFindPower() const { return pnlFindPower_; }          ///< the title line
    const Panel& pnlOptimalTitle() const { return pnlOptimalTitle_; }    ///< title of a problem; else empty
    const Panel& pnlOptimalInner() const { return pnlOptimalInner_; }    ///< the running text
    const Panel& pnlOptimalCost() const { return pnlOptimalCost_; }  ///< "Cost = $115,600"; empty without one
    const Panel& pnlCostWords() const { return pnlCostWords_; }      ///< "Cost = "
    const Panel& pnlCostNumber() const { return pnlCostNumber_; }    ///< "$115,600"
    const Panel& pnlProblem() const { return pnlProblem_; }          ///< what the band says of a problem
    const Panel& pnlOptimalNote() const { return pnlOptimalNote_; }  ///< what to do with the sizes found
    const Button& cmdOpt(int button) const { return cmdOpt_(button); }  ///< Reset, Compute, Paste, Close
    int primaryButton() const { return primary_; }                      ///< the next sensible one
    const Panel& pnlAdjustOuter() const { return pnlAdjustOuter_; }  ///< visible: notes lie over the wizard
    const Panel& pnlAdjustInnerTitle() const { return pnlAdjustInnerTitle_; }
    const Panel& pnlAdjustInner() const { return pnlAdjustInner_; }  ///< paragraphs parted by empty lines
    /// Title of the plot of the trials, what it has across, and the words for the marks of the best one, of
    /// the one that is looked at, and of the one that the exact search found beside it.
    const Panel& lblPlot() const { return lblPlot_; }
    const Panel& lblPlotSize() const { return lblPlotSize_; }
    const Panel& lblPlotBest() const { return lblPlotBest_; }
    const Panel& lblPlotShown() const { return lblPlotShown_; }
    const Panel& lblPlotProven() const { return lblPlotProven_; }  ///< visible: another design was found
    const Button& cmdCheapest() const { return cmdCheapest_; }     ///< back to the best trial
    const Panel& pnlOther() const { return pnlOther_; }            ///< what the exact search came to
    const Button& cmdOther() const { return cmdOther_; }           ///< looks at the design that it found
    const Button& cmdNotes() const { return cmdNotes_; }  ///< opens the notes again; has their number

    /// What the last run found, with its trials, while the result is on display; null otherwise.
    const OptimalOutcome* outcome() const { return hasResult() ? &outcome_ : nullptr; }
    const OptimalResult* result() const { return hasResult() ? &outcome_.result() : nullptr; }
    bool isRunning() const noexcept { return running_; }

private:
    static constexpr int resetButton = 1, computeButton = 2, pasteButton = 3, closeButton = 4;
    static constexpr double smallestSize = 1;
    static constexpr double largestSize = 1000000;
    static constexpr const char* setOptions = "Set options above, then click <Compute>";
    static constexpr const char* pasteBest = "Paste";

    bool isOpen() const;
    bool canBeSeen() const;
    bool hasResult() const { return state_ == State::result; }
    bool isManual(int level) const { return rows_(level).optManual.Value; }
    void registerRowNames(ControlRegistry& registry, int level) const;
    void registerRow(EventRegistry& events, int level);
    void registerQuestion(EventRegistry& events);
    void registerButtons(EventRegistry& events);
    void registerOffers(EventRegistry& events);
    void pressCompute();
    void close();
    void changeQuestion(const std::function<bool(OptimalQuestion&)>& change);
    void choose(int level, bool manual);
    void spin(int level, int direction);
    void writeNumber(int level, double size);
    void writeHeads();
    void forgetResult();
    void hideOffers();
    void writeRow(int level);
    void setSize(int level, double size);
    void writeCells(int level, const std::string& arms, const std::string& block);
    void showButtons(bool reset, bool compute, bool paste, bool close);
    OptimalOptions options() const;
    void compute(const OptimalOptions& options);
    void computeCheapest(const OptimalOptions& options);
    void computeMostPower(const OptimalOptions& options);
    void prove(OptimalResult& result, const OptimalOptions& options);
    bool endSearch(const OptimalResult& result);
    void showNone(const OptimalResult& result, const std::vector<ReadinessProblem>& problems);
    void takeResult(OptimalResult result, const OptimalOptions& options);
    void offerNotes();
    void lookAt(void (OptimalOutcome::*design)());
    void showDesign();
    void showSizes();
    void say(State state, std::string title, std::string text);

    Design& design_;
    Progress& progress_;
    OptimalQuestion question_;
    IndexedArray<LevelRow, 1, 4> rows_;
    Panel pnlFindPower_, pnlOptimalTitle_, pnlOptimalInner_, pnlOptimalCost_, pnlOptimalNote_;
    Panel pnlProblem_, pnlCostWords_{"Cost = "}, pnlCostNumber_;
    Panel pnlAdjustOuter_, pnlAdjustInnerTitle_, pnlAdjustInner_;
    Panel lblLevel_{"Level"};
    IndexedArray<Panel, 1, 2> lblGroup_;
    Panel lblPlot_, lblPlotSize_, lblPlotBest_, lblPlotShown_{"shown"}, lblPlotProven_;
    Panel pnlOther_;
    IndexedArray<Button, 1, 4> cmdOpt_;
    Button cmdCheapest_, cmdOther_{"Show this design"}, cmdNotes_;
    OptimalOutcome outcome_;
    State state_ = State::message;
    int primary_ = 2;
    bool running_ = false;  ///< refreshes of a run do not reach the wizard
};

}  // namespace lorvane
