// The walk through all designs, cut off by bounds that hold for every one of them.
#include "search/exact_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "engine/power_test.h"
#include "search/free_levels.h"
#include "search/least_sizes.h"
#include "search/optimal_ratios.h"
#include "search/power_bound.h"
#include "search/trial_bench.h"

namespace lorvane {

namespace {

constexpr double tolerance = 1e-9;  // of every bound
constexpr int stepsBetweenLooks = 512;
constexpr double highestMoney = std::numeric_limits<std::int32_t>::max();
constexpr double infinite = std::numeric_limits<double>::infinity();

double powerKey(double power) { return std::round(power / equalPowers); }

// Sizes of one level, both ends included; empty when first lies above last.
struct Range {
    double first;
    double last;
};

// What the levels above a free level come to, in one unit of the top level: their cost, their weighted sum,
// and the units that the next free level is counted in.
struct Above {
    double cost;
    double sum;
    double units;

    Above with(const FreeLevel& free, double size) const {
        const double all = units * size;
        return {cost + free.cost * all, sum + free.weight / all, all * free.units};
    }
};

// The level-1 size that avoids low cell counts; nothing is asked where none does, or where they are allowed.
double leastLevel1(const Study& study, DistributionLibrary& library, const OptimalOptions& options) {
    if (!study.isBinary() || options.allowLowCellCounts)
        return 1;
    return GetMinN(study, library).value_or(1);
}

// A size set by hand is raised to it, and to what covariates need.
void writeSizesByHand(Study& study, const OptimalOptions& options, double leastOfLevel1) {
    for (int level = 1; level < study.NumLevels; ++level) {
        if (!options.manual(level))
            continue;
        const double size = std::max(
            {options.numReps(level), leastForCovariates(study, level), level == 1 ? leastOfLevel1 : 1});
        study.txtNT(level) = study.txtNC(level) = study.txtNB(level) = size;
    }
}

class ExactSearch {
public:
    ExactSearch(StudyTrial& trial, const OptimalOptions& options, double leastOfLevel1, Progress& progress)
        : study_(trial.study), library_(trial.library()), options_(options), progress_(progress),
          bench_(trial.study, library_, 0, progress), bound_(trial.study, library_),
          levels_(trial.study, options, leastOfLevel1), top_(trial.study.NumLevels) {}

    ExactResult cheapest(const std::optional<Trial>& known);
    ExactResult mostPower();
    ExactResult mostPowerOf(double top);
    double leastTop() const { return levels_.leastTopOfAll(); }

private:
    // How far the walk through the sizes of one level is.
    struct Part {
        double done = 0;
        double all = 1;
    };

    void lookForCheapest(double power, const std::optional<Trial>& known);
    void lookForMostPower();
    void require(double power);
    void seed();
    void walk();
    void visit(std::size_t place, const Above& above);
    Range narrowed(std::size_t place, const Above& above);
    void visitSize(std::size_t place, const Above& above, double size);
    void sweep(std::size_t place, const Above& above);
    double sweepSize(const FreeLevel& free, const Above& above, double size);
    void settle(const Above& design);
    double settleCheapest(const Above& design);
    void settleMostPower(const Above& design);
    double leastReaching(double from, double last);
    double mostTop(const Above& design) const;
    double nextSize(const FreeLevel& free, const Above& above, double size, double lowerTop);
    double largestForTop(const FreeLevel& free, const Above& above, double size) const;
    Range affordableSizes(const FreeLevel& free, const Above& above) const;
    Range usefulSizes(const FreeLevel& free, const Above& above);
    void setSize(int level, double size);
    bool tryTop(double top);
    bool isBetter(const Trial& trial) const;
    void take(const Trial& trial);
    double share() const;
    void look();
    template <typename Search>
    ExactResult untilStopped(Search search);

    double largestCost() const { return limit_ + levels_.roundingOfCost(); }
    bool roundsCosts() const { return levels_.roundingOfCost() > 0; }
    Above topOnly() const { return {levels_.top().cost, levels_.top().weight, levels_.top().units}; }

    Study& study_;
    DistributionLibrary& library_;
    const OptimalOptions& options_;
    Progress& progress_;
    TrialBench bench_;
    PowerBound bound_;
    FreeLevels levels_;
    const int top_;
    Range tops_{levels_.leastTopOfAll(), largestSizeFound};
    OptimalGoal goal_ = OptimalGoal::cheapest;
    double power_ = 0;             ///< what a design of use must reach
    double limit_ = highestMoney;  ///< and the most that it may cost
    LevelSizes sizes_;             ///< of the levels below the top
    std::optional<Trial> best_;
    std::int64_t found_ = 0;  ///< how often a better design was met
    int steps_ = 0;
    std::array<Part, highestFreeLevel> parts_;
};

// The goals ------------------------------------------------------------------------------------------------

template <typename Search>
ExactResult ExactSearch::untilStopped(Search search) {
    ExactResult result;
    for (int level = 1; level < top_; ++level)
        setSize(level, study_.txtNT(level));
    try {
        search();
        result.proven = true;
    } catch (const SearchStopped&) {
    }
    result.looked = result.proven ? 1 : share();
    result.best = best_;
    result.runs = bench_.runs();
    return result;
}

ExactResult ExactSearch::cheapest(const std::optional<Trial>& known) {
    return untilStopped([&] { lookForCheapest(options_.power, known); });
}

// Among designs of the same power the cheapest is the answer of the other question.
ExactResult ExactSearch::mostPower() {
    return untilStopped([&] {
        lookForMostPower();
        if (best_)
            lookForCheapest((powerKey(best_->power) - 0.5) * equalPowers, best_);
        else
            lookForCheapest(0, std::nullopt);
    });
}

ExactResult ExactSearch::mostPowerOf(double top) {
    tops_ = {top, top};
    best_.reset();
    return untilStopped([&] { lookForMostPower(); });
}

void ExactSearch::lookForCheapest(double power, const std::optional<Trial>& known) {
    goal_ = OptimalGoal::cheapest;
    best_ = known;
    limit_ = known ? known->cost : highestMoney;
    require(power);
    walk();
}

void ExactSearch::lookForMostPower() {
    goal_ = OptimalGoal::mostPower;
    limit_ = options_.budget;
    require(0);
    seed();
    walk();
}

void ExactSearch::require(double power) {
    power_ = power;
    bound_.require(power);
    levels_.weigh(bound_.weights());
}

// The ratios that cost least are near the best sizes, so that the bounds bite from the beginning.
void ExactSearch::seed() {
    Study copy = study_;
    const std::optional<SizeRatios> ratios = computeOptimalRatios(copy, options_);
    if (!ratios)
        return;
    Above design = topOnly();
    for (std::size_t place = 0; place < levels_.count(); ++place) {
        const FreeLevel& free = levels_[place];
        const double size = std::max(free.least, std::round((*ratios)(free.level)));
        setSize(free.level, size);
        design = design.with(free, size);
    }
    settle(design);
}

void ExactSearch::walk() {
    parts_.fill({});
    visit(0, topOnly());
}

// The walk -------------------------------------------------------------------------------------------------

// From the size that weighs least outwards, so that good designs come early.
void ExactSearch::visit(std::size_t place, const Above& above) {
    if (levels_.count() == 0)
        return settle(above);
    if (place + 1 == levels_.count())
        return sweep(place, above);
    const FreeLevel& free = levels_[place];
    const Range all = usefulSizes(free, above);
    if (all.first > all.last)
        return;
    const double lightest =
        std::sqrt(above.cost * free.weight / (above.sum * free.cost)) / std::max(above.units, 1.0);
    const double start =
        std::isfinite(lightest) ? std::clamp(std::round(lightest), all.first, all.last) : all.first;
    parts_[place] = {};
    for (double size = start; size <= narrowed(place, above).last; ++size)
        visitSize(place, above, size);
    for (double size = start - 1; size >= narrowed(place, above).first; --size)
        visitSize(place, above, size);
}

// The sizes that are of use by now.
Range ExactSearch::narrowed(std::size_t place, const Above& above) {
    const Range range = usefulSizes(levels_[place], above);
    parts_[place].all = std::max(range.last - range.first + 1, parts_[place].done + 1);
    return range;
}

void ExactSearch::visitSize(std::size_t place, const Above& above, double size) {
    const FreeLevel& free = levels_[place];
    look();
    setSize(free.level, size);
    visit(place + 1, above.with(free, size));
    parts_[place].done += 1;
    parts_[place + 1] = {};
}

// The lowest free level, with every size that may be of use.
void ExactSearch::sweep(std::size_t place, const Above& above) {
    const FreeLevel& free = levels_[place];
    Range range = usefulSizes(free, above);
    const double first = range.first;
    std::int64_t found = found_;
    double size = first;
    while (size <= range.last) {
        parts_[place] = {size - first, range.last - first + 1};
        look();
        size = sweepSize(free, above, size);
        if (std::exchange(found, found_) != found_)
            range = usefulSizes(free, above);
    }
}

// Settles a size and gives the next one that may be better.
double ExactSearch::sweepSize(const FreeLevel& free, const Above& above, double size) {
    const bool isCheapest = goal_ == OptimalGoal::cheapest;
    const double settled = isCheapest ? size : largestForTop(free, above, size);
    setSize(free.level, settled);
    const Above design = above.with(free, settled);
    if (isCheapest)
        return nextSize(free, above, size, settleCheapest(design) - 1);
    settleMostPower(design);
    return settled + 1;
}

// Only a lower top level makes up for a larger size.
double ExactSearch::nextSize(const FreeLevel& free, const Above& above, double size, double lowerTop) {
    if (roundsCosts() || free.weight <= 0 || bound_.saysNothing())
        return size + 1;
    if (lowerTop < tops_.first)
        return infinite;
    const double room = bound_.largestSum(lowerTop) - above.sum;
    if (room <= 0)
        return infinite;
    return std::max(size + 1, std::ceil(free.weight / above.units / room * (1 - tolerance)));
}

// With the same top level the largest size has the most power. The test in normal theory may lose some.
double ExactSearch::largestForTop(const FreeLevel& free, const Above& above, double size) const {
    if (roundsCosts() || free.weight <= 0 || bound_.saysNothing() || isNormalTest(study_))
        return size;
    const double top = mostTop(above.with(free, size));
    return std::max(size, std::floor((limit_ / top - above.cost) / (free.cost * above.units)));
}

// Bounds ---------------------------------------------------------------------------------------------------

Range ExactSearch::affordableSizes(const FreeLevel& free, const Above& above) const {
    const double room = largestCost() / tops_.first - above.cost;
    const double most = std::floor(room / (free.leastCost * above.units) * (1 + tolerance));
    return {free.least, std::min(most, largestSizeFound)};
}

// With K and V the cost and the sum so far, B and D those of this level at a size of 1 and r what the levels
// below add at least, a size x needs (sqrt((K + B x)(V + D / x)) + r)^2 <= largest cost times largest sum,
// for one unit of the top level. That holds between the roots of a quadratic.
Range ExactSearch::usefulSizes(const FreeLevel& free, const Above& above) {
    const Range affordable = affordableSizes(free, above);
    if (bound_.saysNothing() || affordable.first > affordable.last)
        return affordable;
    constexpr Range none{1, 0};
    const double K = above.cost, V = above.sum;
    const double B = free.cost * above.units, D = free.weight / above.units;
    const double leastCost = K + free.leastCost * above.units * free.least;
    const double top = std::clamp(std::floor(largestCost() / leastCost), tops_.first, tops_.last);
    const double root = std::sqrt(bound_.largestSum(top) / top * largestCost()) - free.rest;
    if (std::isinf(root))
        return affordable;
    const double p = root * root - K * V - B * D;
    const double discriminant = p * p * (1 + tolerance) - 4 * B * V * K * D;
    if (root <= 0 || p <= 0 || discriminant < 0)
        return none;
    const double sum = p + std::sqrt(discriminant);
    const double first = std::ceil(2 * K * D / sum * (1 - tolerance));
    const double last = B * V > 0 ? std::floor(sum / (2 * B * V) * (1 + tolerance)) : infinite;
    return {std::max(first, affordable.first), std::min(last, affordable.last)};
}

double ExactSearch::mostTop(const Above& design) const {
    return std::min(std::floor(largestCost() / design.cost * (1 + tolerance)), tops_.last);
}

// The top level --------------------------------------------------------------------------------------------

void ExactSearch::settle(const Above& design) {
    if (goal_ == OptimalGoal::cheapest)
        settleCheapest(design);
    else
        settleMostPower(design);
}

// The least top level that reaches the power, or the first that costs too much.
double ExactSearch::settleCheapest(const Above& design) {
    const double least = levels_.leastTop(sizes_);
    const double last = bound_.risesWithTop() ? mostTop(design) : std::min(least, mostTop(design));
    const double from = bound_.leastTop(design.sum, least);
    if (!(from <= last))
        return std::min(from, last + 1);
    const double top = leastReaching(from, last);
    if (roundsCosts()) {  // a few more units may cost the same
        for (double more = top + 1; more <= mostTop(design); ++more)
            tryTop(more);
    }
    return top;
}

// From an end that is nearly right, so by growing steps; between two ends by halving.
double ExactSearch::leastReaching(double from, double last) {
    double missing = from - 1;
    double top = from;
    for (double step = 1; !tryTop(top); step *= 2) {
        missing = top;
        if (top >= last)
            return last + 1;
        top = std::min(top + step, last);
    }
    while (top - missing > 1) {
        const double middle = std::floor((missing + top) / 2);
        (tryTop(middle) ? top : missing) = middle;
    }
    return top;
}

// The largest top level that the budget pays.
void ExactSearch::settleMostPower(const Above& design) {
    const double least = std::max(levels_.leastTop(sizes_), tops_.first);
    double top = bound_.risesWithTop() ? mostTop(design) : least;
    while (top >= least && top <= mostTop(design) && design.sum <= bound_.largestSum(top)) {
        tryTop(top);
        if (study_.result.txtCost <= limit_ && !study_.result.txtCostProblem)
            return;
        --top;
    }
}

void ExactSearch::setSize(int level, double size) {
    sizes_(level) = size;
    bench_.setSize(level, size);
}

// Whether the power is reached; the design is kept when it is the best so far.
bool ExactSearch::tryTop(double top) {
    bench_.trySize(top_, top);
    const PowerResult& result = study_.result;
    const bool reached = result.xValid && result.txtPower >= power_;
    if (reached && !result.txtCostProblem) {
        const Trial trial = bench_.trial();
        if (isBetter(trial))
            take(trial);
    }
    return reached;
}

bool ExactSearch::isBetter(const Trial& trial) const {
    if (trial.cost > limit_)
        return false;
    if (!best_)
        return true;
    const double key = powerKey(trial.power), bestKey = powerKey(best_->power);
    if (goal_ == OptimalGoal::mostPower)
        return key > bestKey;
    if (trial.cost != best_->cost)
        return trial.cost < best_->cost;
    if (key != bestKey)
        return key > bestKey;
    for (int level = top_; level >= 1; --level) {
        if (trial.sizes(level) != best_->sizes(level))
            return trial.sizes(level) < best_->sizes(level);
    }
    return false;
}

// From here on only better designs are of use.
void ExactSearch::take(const Trial& trial) {
    best_ = trial;
    ++found_;
    if (goal_ == OptimalGoal::cheapest) {
        limit_ = trial.cost;
        return;
    }
    const double better = (powerKey(trial.power) + 0.5) * equalPowers;
    if (better < 1)
        require(better);
    else
        limit_ = 0;
}

double ExactSearch::share() const {
    double share = 0, part = 1;
    for (const Part& level : parts_) {
        share += part * level.done / level.all;
        part /= level.all;
    }
    return std::min(share, 1.0);
}

void ExactSearch::look() {
    if (++steps_ % stepsBetweenLooks != 0)
        return;
    progress_.tell(share());
    if (!progress_.goOn())
        throw SearchStopped();
}

double prepare(StudyTrial& trial, const OptimalOptions& options) {
    const double least = leastLevel1(trial.study, trial.library(), options);
    writeSizesByHand(trial.study, options, least);
    return least;
}

}  // namespace

ExactResult findCheapest(StudyTrial trial, const OptimalOptions& options, const std::optional<Trial>& known,
                         Progress& progress) {
    const double least = prepare(trial, options);
    return ExactSearch(trial, options, least, progress).cheapest(known);
}

ExactResult findMostPower(StudyTrial trial, const OptimalOptions& options, Progress& progress) {
    const double least = prepare(trial, options);
    return ExactSearch(trial, options, least, progress).mostPower();
}

std::vector<Trial> findMostPowerOfTops(StudyTrial trial, const OptimalOptions& options, double first,
                                       double last, Progress& progress) {
    const double least = prepare(trial, options);
    ExactSearch search(trial, options, least, progress);
    std::vector<Trial> designs;
    for (double top = std::max(first, search.leastTop()); top <= last; ++top) {
        const ExactResult result = search.mostPowerOf(top);
        if (!result.proven)
            break;
        if (result.best)
            designs.push_back(*result.best);
    }
    return designs;
}

bool hasForbiddenCells(const StudyTrial& trial, const OptimalOptions& options, const LevelSizes& sizes) {
    return sizes(1) < leastLevel1(trial.study, trial.library(), options);
}

}  // namespace lorvane
