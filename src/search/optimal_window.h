// The optimal design wizard: options of the levels, the search, its sizes and cost, its notes. A display
// model with its commands.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/control_registry.h"
#include "platform/controls.h"
#include "platform/event_registry.h"
#include "platform/progress.h"
#include "screen/design.h"
#include "search/optimal_search.h"
#include "search/optimal_texts.h"

namespace lorvane {

class OptimalWindow {
public:
    /// The row of one level.
    struct LevelRow {
        bool Visible = false;  ///< the study has the level
        bool isTop = false;    ///< its number is searched for: it has no options
        Panel optPanelName;    ///< plural name of the units
        Panel pnlRole;         ///< "(Nested)", "(Randomized)" or "(Blocked)"
        Option optAuto, optManual;
        double txtNumReps = 1;                           ///< size set by hand, or found
        Panel OptimalpnlNT, OptimalpnlNC, OptimalpnlNB;  ///< what each arm, or the block, will have
        bool OptimalspnNT = false, OptimalspnNC = false, OptimalspnNB = false;  ///< arrows are shown
    };

    OptimalWindow(Design& design, DistributionLibrary& library, Progress& progress);
    OptimalWindow(const OptimalWindow&) = delete;
    OptimalWindow& operator=(const OptimalWindow&) = delete;

    void registerNames(ControlRegistry& registry) const;
    void registerEvents(EventRegistry& events);

    /// Rewrites the level rows for the present levels, everything left to the search.
    void DisplayOptimalOptions();

    /// Brings the wizard up to date with the study; the result of an earlier run is forgotten.
    void ReDisplayOptimal();

    /// The whole run. The study is as before afterwards. Throws ArithmeticFault.
    void ComputeOptimalDesign();

    /// A level is set by hand at a size of 1 or more, or left to the search.
    void setByHand(int level, double size);

    /// The power that a run must reach when it is not the study's own.
    void requirePower(double power) { requiredPower_ = power; }

    /// Writes the sizes found into the study; nothing without a result.
    void paste();

    const LevelRow& row(int level) const { return rows_(level); }
    const Panel& pnlFindPower() const { return pnlFindPower_; }        ///< the title line
    const Panel& pnlOptimalTitle() const { return pnlOptimalTitle_; }  ///< title of a problem; else empty
    const Panel& pnlOptimalInner() const { return pnlOptimalInner_; }  ///< the running text
    const Panel& pnlOptimalCost() const { return pnlOptimalCost_; }  ///< "Cost = $115,600"; empty without one
    const std::string& costFigure() const { return costFigure_; }    ///< "$115,600"
    const Panel& pnlOptimalNote() const { return pnlOptimalNote_; }  ///< what to do with the sizes found
    const Button& cmdOpt(int button) const { return cmdOpt_(button); }  ///< Reset, Compute, Paste, Close
    int primaryButton() const { return primary_; }                      ///< the next sensible one
    const Panel& pnlAdjustOuter() const { return pnlAdjustOuter_; }  ///< visible: notes lie over the wizard
    const Panel& pnlAdjustInnerTitle() const { return pnlAdjustInnerTitle_; }
    const Panel& pnlAdjustInner() const { return pnlAdjustInner_; }  ///< paragraphs parted by empty lines
    const Grid& vsA() const {
        return vsA_;
    }  ///< a row a level and one each for cost and power; a column a trial
    /// The trials of the last run while their result is on display; null otherwise.
    const OptimalResult* result() const { return hasResult() ? &result_ : nullptr; }
    bool isRunning() const noexcept { return running_; }

private:
    bool isOpen() const;
    bool hasResult() const { return shown_; }
    bool isManual(int level) const { return rows_(level).optManual.Value; }
    void registerRow(EventRegistry& events, int level);
    void registerButtons(EventRegistry& events);
    void open();
    void openAndCompute(bool byHand);
    void pressCompute();
    void close();
    void choose(int level, bool manual);
    void spin(int level, int direction);
    void writeNumber(int level, double size);
    void writeRow(int level);
    void writeCells(int level, const std::string& arms, const std::string& block);
    void clearProblems();
    void showButtons(bool reset, bool compute, bool paste, bool close);
    OptimalOptions options() const;
    double requiredPower() const;
    void refreshUnchanged();
    void show(const OptimalOptions& options, const std::vector<ReadinessProblem>& problems);
    void showFound(const OptimalOptions& options);
    void showSizes();
    void showTrials();
    void showNotReady(const std::vector<ReadinessProblem>& problems);
    void showWithout(std::string title, std::string text);
    void say(std::string title, std::string text);

    Design& design_;
    DistributionLibrary& library_;
    Progress& progress_;
    IndexedArray<LevelRow, 1, 4> rows_;
    Panel pnlFindPower_, pnlOptimalTitle_, pnlOptimalInner_, pnlOptimalCost_, pnlOptimalNote_;
    Panel pnlAdjustOuter_, pnlAdjustInnerTitle_, pnlAdjustInner_;
    IndexedArray<Button, 1, 4> cmdOpt_;
    Grid vsA_;
    std::string costFigure_;
    OptimalResult result_;
    std::optional<double> requiredPower_;
    int primary_ = 2;
    bool running_ = false;  ///< refreshes of a run do not reach the wizard
    bool shown_ = false;    ///< the result is on display
};

}  // namespace lorvane
