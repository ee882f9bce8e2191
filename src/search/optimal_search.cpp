// The search for the cheapest design that reaches a required power.
#include "search/optimal_search.h"

#include <algorithm>

#include "base/money.h"
#include "search/least_sizes.h"
#include "search/nearby_designs.h"
#include "search/optimal_ratios.h"
#include "search/trial_bench.h"

namespace lorvane {

namespace {

constexpr double largestSize = 100000000;
constexpr double largestFirstTop = 110;  // by then a valid design must have been met
constexpr int runsBetweenLooks = 1000;
constexpr int slackOfTop = 5;  // a top level with covariates this near to its least size gets a note

// Steps of the descent: how far a level shrinks at once, and how far above its least size it must be.
struct Descent {
    double step;
    double margin;
};
constexpr Descent descents[] = {{1000, 1000}, {100, 100}, {20, 20}, {2, 4}, {1, 1}};

class Search {
public:
    Search(Study& study, DistributionLibrary& library, const OptimalOptions& options, Progress& progress,
           OptimalResult& result)
        : s_(study), options_(options), progress_(progress), result_(result),
          bench_(study, library, options.power) {}

    void run();
    std::int64_t runs() const { return bench_.runs(); }

private:
    bool prepareSizes();
    SizeRatios withLevel1Raised(const SizeRatios& ratios);
    void writeLowerSizes(const SizeRatios& ratios);
    void leaveRoomForCovariates(int level, double ratio);
    bool isOver() const { return result_.ending != OptimalEnding::found; }
    void end(OptimalEnding ending);
    int top() const { return s_.NumLevels; }
    bool findFirstValid();
    void raiseTop(double step);
    void FindM();
    void DoLoop(int level, double minimum);
    void DoTweak();
    void CallFindM();
    void record();
    void chooseBest();
    bool covariatesAreTight() const;

    Study& s_;
    OptimalOptions options_;
    Progress& progress_;
    OptimalResult& result_;
    TrialBench bench_;
    double first_ = 0;  ///< the least size of the top level with a valid design
};

void Search::end(OptimalEnding ending) {
    result_.ending = ending;
    s_.result.txtCostProblem = ending == OptimalEnding::costOverflow;
    if (ending == OptimalEnding::noSolution)
        s_.result.Adjusteddf = SizeAdjustments::noSolution;
}

// The sizes of the levels below the top; false when the search may not run.
bool Search::prepareSizes() {
    resetReadiness(s_.result);
    const std::optional<SizeRatios> ratios = computeOptimalRatios(s_, options_);
    if (!ratios)
        return false;
    const bool mayRaise = s_.isBinary() && !options_.allowLowCellCounts;
    writeLowerSizes(mayRaise ? withLevel1Raised(*ratios) : *ratios);
    return true;
}

// Level 1 set by hand moves the sizes of the levels above it.
SizeRatios Search::withLevel1Raised(const SizeRatios& ratios) {
    const std::optional<double> least = GetMinN(s_, bench_.library());
    if (!least || ratios(1) >= *least)
        return ratios;
    result_.level1Raised = true;
    options_.manual(1) = true;
    options_.numReps(1) = *least;
    return computeOptimalRatios(s_, options_).value_or(ratios);
}

void Search::writeLowerSizes(const SizeRatios& ratios) {
    for (int level = 1; level < top(); ++level)
        bench_.setSize(level, roundHalfToEven(std::max(ratios(level), 1.0)));
    for (int level = 1; level < top(); ++level) {
        if (s_.txtQ(level) > 0)
            leaveRoomForCovariates(level, bench_.size(level));
        if (bench_.size(level) > largestSize)
            end(OptimalEnding::noSolution);
    }
}

// A blocked level needs three units for a covariate, an arm two.
void Search::leaveRoomForCovariates(int level, double ratio) {
    const bool blocked = s_.isBlocked(level);
    const double least = blocked ? 3 : 2;
    if (ratio >= least)
        return;
    bench_.setSize(level, least);
    result_.changes.push_back({level, ratio, least, blocked});
}

// From the least size that leaves degrees of freedom up to the first valid design.
bool Search::findFirstValid() {
    double n = Getmin(s_, top());
    bench_.trySize(top(), n);
    bool raised = false;
    while (!s_.result.xValid) {
        if (n >= largestFirstTop) {
            end(OptimalEnding::noSolution);
            return false;
        }
        bench_.trySize(top(), ++n);
        raised = true;
    }
    first_ = n;
    if (raised && s_.result.txtPower > options_.power)
        s_.result.Adjusteddf = SizeAdjustments::topRaised;
    return true;
}

// Raises the top level by steps until the power is reached. A trial may cost too much on the way: the lower
// levels have yet to shrink.
void Search::raiseTop(double step) {
    while (!bench_.reachesPower() && !isOver()) {
        const double n = bench_.size(top()) + step;
        bench_.trySize(top(), n);
        if (n > largestSize)
            end(s_.result.txtCostProblem ? OptimalEnding::costOverflow : OptimalEnding::noSolution);
        else if (bench_.runs() % runsBetweenLooks == 0 && !progress_.goOn())
            end(OptimalEnding::stopped);
    }
}

// The least top level that reaches the power, by ever finer steps; then the lower levels are shrunk.
void Search::FindM() {
    if (!findFirstValid())
        return;
    for (const double step : {500.0, 100.0, 10.0}) {
        raiseTop(step);
        if (isOver())
            return;
        bench_.trySize(top(), std::max(bench_.size(top()) - step, first_));
    }
    raiseTop(1);
    if (!isOver())
        DoTweak();
}

// Shrinks a level as long as the power is reached. All steps but the last are taken back once.
void Search::DoLoop(int level, double minimum) {
    for (const Descent& descent : descents) {
        const auto mayShrink = [&] {
            return bench_.reachesPower() && bench_.size(level) >= minimum + descent.margin;
        };
        if (!mayShrink())
            continue;
        while (mayShrink())
            bench_.trySize(level, bench_.size(level) - descent.step);
        const bool takeBack = descent.step > 1 || !bench_.reachesPower();
        bench_.trySize(level, bench_.size(level) + (takeBack ? descent.step : 0));
    }
}

void Search::DoTweak() {
    bench_.compute();
    for (int level = top() - 1; level >= 1; --level) {
        const double minimum = Getmin(s_, level);
        if (!options_.manual(level))
            DoLoop(level, minimum);
    }
}

// A trial whose cost left its range is too dear to be an answer.
void Search::record() {
    if (!s_.result.txtCostProblem)
        result_.trials.push_back(bench_.trial());
}

void Search::CallFindM() {
    FindM();
    if (isOver())
        return;
    record();
    const LevelSizes first = bench_.trial().sizes;
    for (int i = 1; i <= options_.iterations; ++i) {
        if (!progress_.goOn()) {
            end(OptimalEnding::stopped);
            return;
        }
        bench_.setSizes(first);
        bench_.setSize(top(), first(top()) + i);
        DoTweak();
        record();
        result_.aTrialFailed = result_.aTrialFailed || !s_.result.xValid;
    }
    if (result_.trials.empty())
        end(OptimalEnding::costOverflow);
    else
        chooseBest();
}

// The first of the cheapest.
void Search::chooseBest() {
    for (std::size_t i = 1; i < result_.trials.size(); ++i) {
        const std::int32_t cost = result_.trials[i].cost;
        if (cost >= 0 && cost < result_.cheapest().cost)
            result_.best = i;
    }
    bench_.setSizes(result_.cheapest().sizes);
    bench_.compute();
}

bool Search::covariatesAreTight() const {
    for (int level = 1; level <= top(); ++level) {
        const double slack = level == top() ? slackOfTop : 0;
        if (s_.txtQ(level) > 0 && bench_.size(level) <= Getmin(s_, level) + slack)
            return true;
    }
    return false;
}

void Search::run() {
    end(OptimalEnding::found);
    s_.result.Adjusteddf = SizeAdjustments::none;
    if (!prepareSizes())
        end(OptimalEnding::notReady);
    if (!isOver())
        CallFindM();
    if (isOver())
        return;
    result_.topRaisedForDf = s_.result.Adjusteddf == SizeAdjustments::topRaised;
    result_.covariatesAreTight = covariatesAreTight();
    result_.nearby = cheaperNearby(bench_, options_, result_.cheapest());
}

}  // namespace

OptimalResult searchOptimalDesign(StudyTrial trial, const OptimalOptions& options, Progress& progress) {
    OptimalResult result;
    Search search(trial.study, trial.library(), options, progress, result);
    search.run();
    result.runs = search.runs();
    result.flags = trial.study.result;
    return result;
}

}  // namespace lorvane
