// The search for the cheapest design that reaches a required power.
#include "search/optimal_search.h"

#include <algorithm>
#include <cmath>

#include "base/leaps.h"
#include "base/money.h"
#include "search/least_sizes.h"
#include "search/optimal_ratios.h"
#include "search/trial_bench.h"

namespace lorvane {

namespace {

constexpr double largestFirstTop = 110;  // by then a valid design must have been met
constexpr int slackOfTop = 5;  // a top level with covariates this near to its least size gets a note

// Steps of the descent: how far a level shrinks at once, and how far above its least size it stays.
struct Descent {
    double step;
    double margin;
};
constexpr Descent descents[] = {{1000, 1000}, {100, 100}, {20, 20}, {2, 4}, {1, 0}};

long long wholeSteps(double distance, double step) {
    return distance < step ? 0 : static_cast<long long>(std::floor(distance / step));
}

class Search {
public:
    Search(Study& study, DistributionLibrary& library, const OptimalOptions& options, Progress& progress,
           OptimalResult& result)
        : s_(study), options_(options), progress_(progress), result_(result),
          bench_(study, library, options.power, progress) {}

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
    void iterate();
    void record();
    void chooseBest();
    void search();
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
        leaveRoomForCovariates(level, bench_.size(level));
        if (bench_.size(level) > largestSizeFound)
            end(OptimalEnding::noSolution);
    }
}

void Search::leaveRoomForCovariates(int level, double ratio) {
    const double least = leastForCovariates(s_, level);
    if (ratio >= least)
        return;
    bench_.setSize(level, least);
    result_.changes.push_back({level, ratio, least, s_.isBlocked(level)});
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

// Raises the top level by steps until the power is reached, which rises with it. A trial may cost too much on
// the way: the lower levels have yet to shrink.
void Search::raiseTop(double step) {
    if (bench_.reachesPower())
        return;
    const double start = bench_.size(top());
    const long long most = wholeSteps(largestSizeFound - start, step);
    const auto missesAfter = [&](long long steps) {
        bench_.trySize(top(), start + static_cast<double>(steps) * step);
        return !bench_.reachesPower();
    };
    const long long missed = stepsWhile(most, missesAfter);
    if (missesAfter(std::min(missed + 1, most)))
        end(s_.result.txtCostProblem ? OptimalEnding::costOverflow : OptimalEnding::noSolution);
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

// Shrinks a level by ever finer steps as long as the power is reached, which falls with it.
void Search::DoLoop(int level, double minimum) {
    if (!bench_.reachesPower())
        return;
    for (const Descent& descent : descents) {
        const double start = bench_.size(level);
        const long long most = wholeSteps(start - minimum - descent.margin, descent.step);
        const auto reachesAfter = [&](long long steps) {
            const double n = start - static_cast<double>(steps) * descent.step;
            if (n != bench_.size(level))
                bench_.trySize(level, n);
            return bench_.reachesPower();
        };
        reachesAfter(stepsWhile(most, reachesAfter));
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
    iterate();
    if (result_.trials.empty())
        end(OptimalEnding::costOverflow);
    else
        chooseBest();
}

void Search::iterate() {
    const LevelSizes first = bench_.trial().sizes;
    for (int i = 1; i <= options_.iterations; ++i) {
        if (!progress_.goOn())
            throw SearchStopped();
        bench_.setSizes(first);
        bench_.setSize(top(), first(top()) + i);
        DoTweak();
        record();
        result_.aTrialFailed = result_.aTrialFailed || !s_.result.xValid;
    }
}

// The first of the cheapest.
void Search::chooseBest() {
    for (std::size_t i = 1; i < result_.trials.size(); ++i) {
        const std::int32_t cost = result_.trials[i].cost;
        if (cost >= 0 && cost < result_.bestTrial().cost)
            result_.best = i;
    }
    bench_.setSizes(result_.bestTrial().sizes);
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

void Search::search() {
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
}

void Search::run() {
    try {
        search();
    } catch (const SearchStopped&) {
        end(OptimalEnding::stopped);
    }
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
