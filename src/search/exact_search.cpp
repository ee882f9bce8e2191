// The walk through all designs, cut off by bounds that hold for every one of them.
#include "search/exact_search.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "search/design_bounds.h"
#include "search/least_sizes.h"
#include "search/optimal_ratios.h"
#include "search/trial_bench.h"

namespace lorvane {

namespace {

constexpr int stepsBetweenLooks = 512;
constexpr double highestMoney = std::numeric_limits<std::int32_t>::max();

double powerKey(double power) { return std::round(power / equalPowers); }

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
        : study_(trial.study), options_(options), progress_(progress),
          bench_(trial.study, trial.library(), 0, progress),
          bounds_(trial.study, trial.library(), options, leastOfLevel1), top_(trial.study.NumLevels) {}

    ExactResult cheapest(const std::optional<Trial>& known);
    ExactResult mostPower();
    ExactResult mostPowerOf(double top);
    double leastTop() const { return levels().leastTopOfAll(); }

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
    template <typename Rule>
    Chosen withSizes(Rule size);
    void walk();
    void visit(std::size_t place, const Chosen& above);
    SizeRange narrowed(std::size_t place, const Chosen& above);
    void visitSize(std::size_t place, const Chosen& above, double size);
    void sweep(std::size_t place, const Chosen& above);
    double sweepSize(const FreeLevel& free, const Chosen& above, double size);
    void settle(const Chosen& design);
    double settleCheapest(const Chosen& design);
    bool settleMostPower(const Chosen& design);
    double leastReaching(double from, double last);
    void setSize(int level, double size);
    bool tryTop(double top);
    bool isBetter(const Trial& trial) const;
    void take(const Trial& trial);
    double share() const;
    void look();
    template <typename Search>
    ExactResult untilStopped(Search search);

    const FreeLevels& levels() const { return bounds_.levels(); }

    Study& study_;
    const OptimalOptions& options_;
    Progress& progress_;
    TrialBench bench_;
    DesignBounds bounds_;
    const int top_;
    OptimalGoal goal_ = OptimalGoal::cheapest;
    double power_ = 0;  ///< what a design of use must reach
    LevelSizes sizes_;  ///< of the levels below the top
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
    bounds_.keepTop(top);
    best_.reset();
    return untilStopped([&] { lookForMostPower(); });
}

void ExactSearch::lookForCheapest(double power, const std::optional<Trial>& known) {
    goal_ = OptimalGoal::cheapest;
    best_ = known;
    bounds_.limitCost(known ? known->cost : highestMoney);
    require(power);
    walk();
}

void ExactSearch::lookForMostPower() {
    goal_ = OptimalGoal::mostPower;
    bounds_.limitCost(options_.budget);
    require(0);
    seed();
    walk();
}

void ExactSearch::require(double power) {
    power_ = power;
    bounds_.requirePower(power);
}

// So that the bounds bite from the beginning: the ratios that cost least are near the best sizes. Where they
// cannot be paid, the least sizes, with as many of the lowest level as can.
void ExactSearch::seed() {
    Study copy = study_;
    const std::optional<SizeRatios> ratios = computeOptimalRatios(copy, options_);
    const auto ratio = [&](const FreeLevel& free, const Chosen&) {
        return std::round((*ratios)(free.level));
    };
    const auto least = [&](const FreeLevel& free, const Chosen& above) {
        const bool isLowest = &free == &levels()[levels().count() - 1];
        return isLowest ? bounds_.usefulSizes(free, above).last : free.least;
    };
    if (ratios)
        settle(withSizes(ratio));
    if (!best_)
        settle(withSizes(least));
}

// A design whose free sizes a rule tells from the top down.
template <typename Rule>
Chosen ExactSearch::withSizes(Rule size) {
    Chosen design = bounds_.topOnly();
    for (std::size_t place = 0; place < levels().count(); ++place) {
        const FreeLevel& free = levels()[place];
        setSize(free.level, std::max(free.least, size(free, design)));
        design = design.with(free, sizes_(free.level));
    }
    return design;
}

void ExactSearch::walk() {
    parts_.fill({});
    visit(0, bounds_.topOnly());
}

// The walk -------------------------------------------------------------------------------------------------

// From the size that weighs least outwards, so that good designs come early.
void ExactSearch::visit(std::size_t place, const Chosen& above) {
    if (levels().count() == 0)
        return settle(above);
    if (place + 1 == levels().count())
        return sweep(place, above);
    const FreeLevel& free = levels()[place];
    const SizeRange all = bounds_.usefulSizes(free, above);
    if (all.isEmpty())
        return;
    const double lightest = bounds_.lightestSize(free, above);
    const double start =
        std::isfinite(lightest) ? std::clamp(std::round(lightest), all.first, all.last) : all.first;
    parts_[place] = {};
    for (double size = start; size <= narrowed(place, above).last; ++size)
        visitSize(place, above, size);
    for (double size = start - 1; size >= narrowed(place, above).first; --size)
        visitSize(place, above, size);
}

// The sizes that are of use by now.
SizeRange ExactSearch::narrowed(std::size_t place, const Chosen& above) {
    const SizeRange range = bounds_.usefulSizes(levels()[place], above);
    parts_[place].all = std::max(range.last - range.first + 1, parts_[place].done + 1);
    return range;
}

void ExactSearch::visitSize(std::size_t place, const Chosen& above, double size) {
    const FreeLevel& free = levels()[place];
    look();
    setSize(free.level, size);
    visit(place + 1, above.with(free, size));
    parts_[place].done += 1;
    parts_[place + 1] = {};
}

// The lowest free level, with every size that may be of use.
void ExactSearch::sweep(std::size_t place, const Chosen& above) {
    const FreeLevel& free = levels()[place];
    SizeRange range = bounds_.usefulSizes(free, above);
    const double first = range.first;
    std::int64_t found = found_;
    double size = first;
    while (size <= range.last) {
        parts_[place] = {size - first, range.last - first + 1};
        look();
        size = sweepSize(free, above, size);
        if (std::exchange(found, found_) != found_)
            range = bounds_.usefulSizes(free, above);
    }
}

// Settles a size and gives the next one that may be better.
double ExactSearch::sweepSize(const FreeLevel& free, const Chosen& above, double size) {
    if (goal_ == OptimalGoal::cheapest) {
        setSize(free.level, size);
        return bounds_.nextSize(free, above, size, settleCheapest(above.with(free, size)) - 1);
    }
    const double largest = bounds_.largestWithSameTop(free, above, size);
    for (double each = largest; each >= size; --each) {
        look();
        setSize(free.level, each);
        const bool mayReach = settleMostPower(above.with(free, each));
        if (bounds_.risesWithSize() || !mayReach)
            break;
    }
    return largest + 1;
}

// The top level --------------------------------------------------------------------------------------------

void ExactSearch::settle(const Chosen& design) {
    if (goal_ == OptimalGoal::cheapest)
        settleCheapest(design);
    else
        settleMostPower(design);
}

// The least top level that reaches the power, or the first that costs too much.
double ExactSearch::settleCheapest(const Chosen& design) {
    const double least = bounds_.leastTop(sizes_);
    const double largest = bounds_.largestTop(design);
    const double last = bounds_.risesWithTop() ? largest : std::min(least, largest);
    if (!(least <= last))
        return last + 1;
    const double from = bounds_.leastTopForPower(design, least);
    if (from > last)
        return last + 1;
    const double top = leastReaching(from, last);
    if (bounds_.roundsCosts()) {  // a few more units may cost the same
        for (double more = top + 1; more <= bounds_.largestTop(design); ++more)
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

// The largest top level that the budget pays; its cost may round to more. False when the sum is too large for
// the power, as that of any smaller size of the lowest level is.
bool ExactSearch::settleMostPower(const Chosen& design) {
    const double least = bounds_.leastTop(sizes_);
    double top = bounds_.risesWithTop() ? bounds_.largestTop(design) : least;
    while (top >= least && top <= bounds_.largestTop(design) && bounds_.canReachPower(design, top)) {
        tryTop(top);
        if (study_.result.txtCost <= bounds_.costLimit() && !study_.result.txtCostProblem)
            return true;
        --top;
    }
    return top < least;
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
    if (trial.cost > bounds_.costLimit())
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
        bounds_.limitCost(trial.cost);
        return;
    }
    const double better = (powerKey(trial.power) + 0.5) * equalPowers;
    if (better < 1)
        require(better);
    else
        bounds_.limitCost(0);
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
