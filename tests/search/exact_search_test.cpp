// The exact search against full enumeration by a loop of its own, and against optima that others found so;
// how far the quick search lies above it.
#include "search/exact_search.h"

#include <algorithm>
#include <cmath>
#include <iostream>

#include "search/power_bound.h"
#include "search/trial_bench.h"
#include "search_bench.h"
#include "support/counted_allocations.h"

namespace lorvane {
namespace {

double rounded(double power) { return std::round(power / equalPowers); }

// The best of all designs with lower levels up to bounds, each with the top level that a halving finds: the
// least that reaches the power, or the largest that the budget pays.
class Enumeration {
public:
    Enumeration(const SearchBench& bench, const LevelSizes& bounds, OptimalGoal goal)
        : study_(bench.trial.study), options_(bench.options), goal_(goal),
          trials_(study_, bench.trial.library(), bench.options.power, progress_), bounds_(bounds),
          top_(study_.NumLevels) {
        lookAt(top_ - 1);
    }
    const std::optional<Trial>& best() const { return best_; }

private:
    void lookAt(int level) {
        if (level == 0) {
            solveTop();
            return;
        }
        const double hand = options_.manual(level) ? options_.numReps(level) : 0;
        for (double n = hand > 0 ? hand : 1; n <= (hand > 0 ? hand : bounds_(level)); ++n) {
            trials_.setSize(level, n);
            lookAt(level - 1);
        }
    }

    bool isCheapest() const { return goal_ == OptimalGoal::cheapest; }
    bool isPaid() const { return !study_.result.txtCostProblem && study_.result.txtCost <= options_.budget; }

    // Whether a top level is large enough, or too large.
    bool isEnough(double n) {
        trials_.trySize(top_, n);
        return isCheapest() ? trials_.reachesPower() : !isPaid();
    }

    void solveTop() {
        double low = 0, high = 1;
        while (!isEnough(high)) {
            if (isCheapest() && ((best_ && study_.result.txtCost > best_->cost) || high > 1e6))
                return;
            low = high;
            high *= 2;
        }
        while (high - low > 1) {
            const double middle = std::floor((low + high) / 2);
            (isEnough(middle) ? high : low) = middle;
        }
        if (!isCheapest() && low == 0)
            return;
        trials_.trySize(top_, isCheapest() ? high : low);
        const bool isLow = study_.isBinary() && study_.counts.anyLow && !options_.allowLowCellCounts;
        if (study_.result.xValid && !isLow && isBetter(trials_.trial()))
            best_ = trials_.trial();
    }

    bool isBetter(const Trial& trial) const {
        if (!best_)
            return true;
        const double more = rounded(trial.power) - rounded(best_->power);
        const double less = best_->cost - trial.cost;
        const double first = isCheapest() ? less : more, second = isCheapest() ? more : less;
        return first > 0 || (first == 0 && second > 0);
    }

    Study study_;
    OptimalOptions options_;
    OptimalGoal goal_;
    NoProgress progress_;
    TrialBench trials_;
    const LevelSizes bounds_;
    const int top_;
    std::optional<Trial> best_;
};

// Beyond what small designs need, and beyond what the searches found.
LevelSizes boundsFor(int levels, const LevelSizes& found) {
    const double base[] = {40, 10, 6};
    LevelSizes bounds;
    for (int level = 1; level < levels; ++level)
        bounds(level) = std::max(base[level - 1], found(level) + 3);
    return bounds;
}

ExactResult cheapest(SearchBench& bench) {
    return findCheapest(bench.trial, bench.options, std::nullopt, bench.progress);
}

ExactResult mostPower(SearchBench& bench) {
    return findMostPower(bench.trial, bench.options, bench.progress);
}

void expectSame(const std::optional<Trial>& found, const std::optional<Trial>& truth, int design) {
    ASSERT_TRUE(found && truth) << design;
    EXPECT_EQ(found->cost, truth->cost) << design;
    EXPECT_NEAR(found->power, truth->power, 2 * equalPowers) << design;
}

// As a user would see it after pasting.
void expectRecomputed(SearchBench& bench, const Trial& design) {
    const PowerResult& seen = bench.resultOf(design.sizes);
    EXPECT_TRUE(seen.xValid);
    EXPECT_EQ(seen.txtCost, design.cost);
    EXPECT_DOUBLE_EQ(seen.txtPower, design.power);
}

// Small designs of all kinds, every sixth with a level set by hand.
bool makeSmall(SearchBench& bench, std::mt19937& random) {
    makeRandom(bench, random);
    Study& s = bench.study();
    s.PowerOption = PowerOptions(1 + random() % 2);
    s.txtTails = Tails(1 + random() % 2);
    bench.options.allowLowCellCounts = random() % 2 == 0;
    if (random() % 6 == 0) {
        bench.options.manual(1) = true;
        bench.options.numReps(1) = s.isBinary() ? 60 : 5;
    }
    bench.refresh();
    return s.result.xValid;
}

// What the bounds rest on: in every design, the variance is a sum with one part a level.
TEST(PowerBounds, WeightsGiveTheVarianceOfEveryDesignAtAnySizes) {
    std::mt19937 random(11);
    for (int design = 0; design < 200;) {
        SearchBench bench;
        makeRandom(bench, random);
        Study& s = bench.study();
        if (!s.result.xValid)
            continue;
        ++design;
        PowerBound bound(s, bench.library);
        bound.require(0.8);
        for (int level = 1; level <= s.NumLevels; ++level)
            s.txtNT(level) = s.txtNC(level) = s.txtNB(level) = static_cast<double>(6 + random() % 50);
        const double top = s.txtNT(s.NumLevels);
        double sum = bound.weights()(s.NumLevels), units = 1;
        for (int level = s.NumLevels - 1; level >= 1; --level) {
            units *= s.txtNT(level);
            sum += bound.weights()(level) / units;
        }
        bench.refresh();
        const double lambda = s.result.xLambda;
        EXPECT_NEAR(top / sum / (lambda * lambda), 1, 1e-10) << design;
        EXPECT_EQ(s.result.txtPower >= 0.8, sum <= bound.largestSum(top)) << design;
        EXPECT_EQ(bound.leastTop(sum, 2) <= top, s.result.txtPower >= 0.8) << design;
    }
}

TEST(PowerBounds, TheShareOfTheLargestSumGrowsWithTheTopLevel) {
    for (const Tails tails : {Tails::one, Tails::two}) {
        for (const double alpha : {0.001, 0.05, 0.2, 0.49}) {
            for (const double power : {0.3, 0.5, 0.8, 0.99, 0.9999}) {
                SearchBench bench(2, 1);
                bench.study().txtTails = tails;
                bench.study().txtAlpha = alpha;
                bench.refresh();
                PowerBound bound(bench.study(), bench.library);
                bound.require(power);
                double share = 0;
                for (double top = 2; power > alpha && top < 1e8; top = std::floor(1 + 1.07 * top)) {
                    const double next = bound.largestSum(top) / top;
                    ASSERT_GE(next, share * (1 - 1e-10)) << alpha << ", " << power << ", " << top;
                    share = next;
                }
            }
        }
    }
}

TEST(ExactSearch, AgreesWithFullEnumeration) {
    std::mt19937 random(20261123);
    int paid = 0;
    for (int design = 0; design < 200;) {
        SearchBench bench;
        if (!makeSmall(bench, random))
            continue;
        const ExactResult least = cheapest(bench);
        ASSERT_TRUE(least.proven && least.best) << design;
        bench.options.budget =
            std::floor(least.best->cost * (0.1 + 0.02 * static_cast<double>(random() % 90)));
        const ExactResult most = mostPower(bench);
        ASSERT_TRUE(most.proven && most.best) << design;
        const LevelSizes bounds = boundsFor(bench.study().NumLevels, least.best->sizes);
        const LevelSizes wide = boundsFor(bench.study().NumLevels, most.best->sizes);
        expectSame(least.best, Enumeration(bench, bounds, OptimalGoal::cheapest).best(), design);
        const std::optional<Trial> payable = Enumeration(bench, wide, OptimalGoal::mostPower).best();
        ASSERT_EQ(payable.has_value(), most.best->cost <= bench.options.budget) << design;
        if (payable)
            expectSame(most.best, payable, design);
        paid += payable ? 1 : 0;
        expectRecomputed(bench, *least.best);
        expectRecomputed(bench, *most.best);
        ++design;
    }
    EXPECT_GT(paid, 150);
    EXPECT_LT(paid, 200) << "some budgets are too low";
}

TEST(ExactSearch, TheQuickSearchIsNeverBelowAndSeldomFarAbove) {
    std::mt19937 random(20261123);
    std::vector<double> above;
    while (above.size() < 200) {
        SearchBench bench;
        makeRandom(bench, random);
        if (!bench.study().result.xValid)
            continue;
        const OptimalResult quick = bench.search();
        ASSERT_EQ(quick.ending, OptimalEnding::found);
        const ExactResult exact = findCheapest(bench.trial, bench.options, quick.bestTrial(), bench.progress);
        ASSERT_TRUE(exact.proven);
        ASSERT_EQ(exact.best->cost, cheapest(bench).best->cost) << "whatever it starts from";
        ASSERT_GE(quick.bestTrial().cost, exact.best->cost);
        above.push_back(100.0 * quick.bestTrial().cost / exact.best->cost - 100);
    }
    std::sort(above.begin(), above.end());
    std::cout << "Above the optimum: exact "
              << std::upper_bound(above.begin(), above.end(), 1e-9) - above.begin()
              << " of 200, 90 of 100 within " << above[180] << " %, worst " << above.back() << " %\n";
    EXPECT_LT(above[180], 5);
}

// Optima that others found by enumeration, with costs of one unit from level 1 up and the same in both arms;
// a 0 stands for what they do not tell. With a budget the most power is theirs.
TEST(ExactSearch, MeetsTheOptimaOfOthers) {
    struct Case {
        int levels, randomized;
        double d;
        std::vector<double> icc, tauSq, rSquared, costs;
        std::int32_t cost;
        std::vector<double> sizes;
        double power;
        double budget = 0;
    };
    const std::vector<double> three = {5, 50, 500}, explained = {0.4, 0.4, 0.5};
    for (const Case& c : {Case{2, 2, 0.25, {0.1}, {}, {0, 0}, {10, 100}, 19600, {0, 0}, 0},
                          {3, 3, 0.25, {0.1, 0.1}, {}, explained, three, 0, {0, 3, 22}, 0},
                          {4,
                           4,
                           0.25,
                           {0.1, 0.08, 0.06},
                           {},
                           {0.4, 0.4, 0.4, 0.5},
                           {5, 50, 250, 2000},
                           113920,
                           {0, 3, 3, 0},
                           0},
                          {2, 1, 0.2, {0.2}, {0.04}, {0, 0}, {10, 300}, 17940, {0, 23}, 0.801400720357},
                          {3, 2, 0.25, {0.1, 0.1}, {0, 0.03}, {0, 0, 0}, three, 0, {8, 5, 0}, 0.80446410893},
                          {3, 3, 0.25, {0.1, 0.1}, {}, explained, three, 0, {9, 3, 0}, 0.715307247354, 30000},
                          {2, 2, 0.25, {0.1}, {}, {0, 0}, {10, 100}, 12400, {0, 31}, 0, 12500}}) {
        SearchBench bench(c.levels, c.randomized);
        Study& s = bench.study();
        s.txtd = c.d;
        for (int level = 1; level <= c.levels; ++level) {
            const auto at = static_cast<std::size_t>(level - 1);
            s.txtCostT(level) = s.txtCostC(level) = s.txtCostB(level) = c.costs[at];
            s.txtRsq(level) = c.rSquared[at];
            s.txtQ(level) = c.rSquared[at] > 0 ? 1 : 0;
            if (level > 1)
                s.txtICC(level) = c.icc[at - 1];
            if (level > c.randomized)
                s.txtTauSq(level) = c.tauSq[at - 1];
        }
        bench.refresh();
        bench.options.budget = c.budget;
        const ExactResult found = c.budget > 0 ? mostPower(bench) : cheapest(bench);
        ASSERT_TRUE(found.proven && found.best);
        EXPECT_EQ(found.best->cost, c.cost == 0 ? found.best->cost : c.cost);
        for (int level = 1; level <= c.levels; ++level) {
            const double size = c.sizes[static_cast<std::size_t>(level - 1)];
            EXPECT_EQ(found.best->sizes(level), size == 0 ? found.best->sizes(level) : size)
                << c.levels << ", " << level;
        }
        EXPECT_NEAR(found.best->power, c.power == 0 ? found.best->power : c.power, 1e-6);
        if (c.budget == 0) {
            EXPECT_LE(bench.search().bestTrial().cost, 1.1 * found.best->cost);
        }
    }
}

// Costs that round, and a unit that is free in one arm.
TEST(ExactSearch, TiesGoToThePowerAndThenToFewerTopUnits) {
    std::mt19937 random(7);
    int ties = 0;
    for (int design = 0; design < 60;) {
        SearchBench bench;
        makeRandom(bench, random);
        Study& s = bench.study();
        s.NumLevels = 2;
        s.RandomizedLevel = static_cast<int>(1 + random() % 2);
        for (int level = 1; level <= 2; ++level) {
            s.txtCostT(level) = s.txtCostB(level) = level == 1 ? 0.25 : 3.5;
            s.txtCostC(level) = design % 2 == 0 ? 0 : 0.75;
        }
        bench.refresh();
        if (!s.result.xValid)
            continue;
        ++design;
        const ExactResult least = cheapest(bench);
        ASSERT_TRUE(least.proven && least.best);
        NoProgress unwatched;
        Study copy = s;
        TrialBench trials(copy, bench.library, bench.options.power, unwatched);
        // Every design that costs no more, by two plain loops.
        Trial best = *least.best;
        for (double top = 1; top <= 3 * best.sizes(2); ++top) {
            for (double n = 1; n <= 400; ++n) {
                trials.setSize(2, top);
                trials.trySize(1, n);
                if (copy.result.txtCost > best.cost)
                    break;
                if (!trials.reachesPower())
                    continue;
                ties += copy.result.txtCost == best.cost ? 1 : 0;
                ASSERT_EQ(copy.result.txtCost, best.cost) << design;
                ASSERT_LE(rounded(copy.result.txtPower), rounded(best.power)) << design;
                if (rounded(copy.result.txtPower) == rounded(best.power)) {
                    ASSERT_GE(top, best.sizes(2)) << design;
                }
            }
        }
    }
    EXPECT_GT(ties, 60) << "more than the designs themselves";
}

// Where power falls as the top level grows, and where the bound says nothing: against every pair of sizes.
TEST(ExactSearch, AnswersTheTestInNormalTheoryWhateverItsPowerDoes) {
    int answered = 0;
    for (const double difference : {-0.15, 0.15}) {
        for (const double power : {0.005, 0.02, 0.1, 0.3, 0.5}) {
            SearchBench bench(2, 2, DataTypes::binary);
            Study& s = bench.study();
            s.BinaryType = BinaryTypes::riskDifference;
            s.PowerOption = PowerOptions::zDistribution;
            s.txtTails = Tails::one;
            s.txtRD = difference;
            s.txtCostT(2) = s.txtCostC(2) = 37;
            bench.options.power = power;
            bench.options.budget = 3000;
            bench.options.allowLowCellCounts = true;
            bench.refresh();
            NoProgress unwatched;
            Study copy = s;
            TrialBench trials(copy, bench.library, power, unwatched);
            std::optional<Trial> least, most;
            for (double top = 2; top <= 40; ++top) {
                for (double n = 1; n <= 70; ++n) {
                    trials.setSize(2, top);
                    trials.trySize(1, n);
                    const Trial trial = trials.trial();
                    if (trial.cost > bench.options.budget)
                        break;
                    if (trials.reachesPower() && (!least || trial.cost < least->cost))
                        least = trial;
                    if (!most || rounded(trial.power) > rounded(most->power))
                        most = trial;
                }
            }
            if (least) {
                EXPECT_EQ(cheapest(bench).best->cost, least->cost) << difference << ", " << power;
            }
            answered += least ? 1 : 0;
            EXPECT_NEAR(mostPower(bench).best->power, most->power, 2 * equalPowers) << difference;
        }
    }
    EXPECT_GT(answered, 5);
}

TEST(ExactSearch, KeepsWhatIsSetByHand) {
    SearchBench bench(3, 3);
    Study& s = bench.study();
    s.txtModel(2) = 1;
    s.txtQ(2) = 1;
    s.txtRsq(2) = 0.4;
    for (const int level : {1, 2}) {
        bench.options.manual(level) = true;
        bench.options.numReps(level) = level == 1 ? 8 : 1;
    }
    bench.refresh();
    const Trial least = *cheapest(bench).best;
    EXPECT_EQ(least.sizes(1), 8);
    EXPECT_EQ(least.sizes(2), 2) << "for the covariate";
    EXPECT_EQ(least.cost, bench.search().bestTrial().cost) << "a fixed model, with all set by hand";
    bench.options.budget = least.cost - 1;
    for (int level = 1; level <= 3; ++level)
        s.txtCostT(level) = s.txtCostC(level) = 0;
    EXPECT_EQ(cheapest(bench).best->sizes(3), least.sizes(3)) << "the least top level, where nothing costs";
    for (int level = 1; level <= 3; ++level)
        s.txtCostT(level) = s.txtCostC(level) = 10;
    const Trial most = *mostPower(bench).best;
    EXPECT_EQ(most.sizes(3), least.sizes(3) - 1);

    SearchBench cells(2, 2, DataTypes::binary);
    cells.study().txtPrev = 0.1;
    cells.refresh();
    const double free = cheapest(cells).best->sizes(1);
    cells.options.allowLowCellCounts = true;
    EXPECT_LT(cheapest(cells).best->sizes(1), free);
    cells.options.allowLowCellCounts = false;
    cells.options.manual(1) = true;
    cells.options.numReps(1) = 5;
    const LevelSizes raised = cheapest(cells).best->sizes;
    EXPECT_GT(raised(1), 5) << "level 1 avoids low cell counts";
    EXPECT_FALSE(hasForbiddenCells(cells.trial, cells.options, raised));
    EXPECT_TRUE(hasForbiddenCells(cells.trial, cells.options, LevelSizes()));
}

TEST(ExactSearch, ABudgetThatIsTooLowGivesTheCheapestValidDesign) {
    SearchBench bench(3, 3);
    bench.study().txtQ(3) = 2;
    bench.refresh();
    bench.options.budget = 50;
    const ExactResult found = mostPower(bench);
    ASSERT_TRUE(found.proven && found.best);
    EXPECT_EQ(found.best->cost, 3 * (20 + 20 + 20)) << "three schools of one class of one student a group";
    bench.options.budget = found.best->cost;
    EXPECT_EQ(mostPower(bench).best->cost, found.best->cost);
    bench.options.budget = 2000000000;
    const Trial sure = *mostPower(bench).best;
    EXPECT_NEAR(sure.power, 1, 2 * equalPowers);
    EXPECT_LT(sure.cost, 100000) << "no more than that power takes";
}

// Stops at a look of its own choice.
struct Watch final : Progress {
    bool goOn() override { return ++looks != stopAt; }
    int looks = 0;
    int stopAt = 0;
};

// A test in normal theory for a small power: the bound says nothing and all that can be paid is walked.
TEST(ExactSearch, StopsAtAnyLookWithTheBestFoundAndAllocatesNothingOnTheWay) {
    SearchBench bench(4, 2, DataTypes::binary);
    Study& s = bench.study();
    s.BinaryType = BinaryTypes::riskDifference;
    s.PowerOption = PowerOptions::zDistribution;
    s.txtRD = 0.1;
    bench.options.power = 0.5;
    bench.options.allowLowCellCounts = true;
    bench.refresh();
    const Study before = s;
    Watch watch;
    const auto search = [&] { return findCheapest(bench.trial, bench.options, std::nullopt, watch); };
    const long startOfSearch = allocations;
    const ExactResult all = search();
    EXPECT_LT(allocations - startOfSearch, 60) << "copies of the study and a table";
    ASSERT_TRUE(all.proven);
    EXPECT_EQ(all.looked, 1);
    ASSERT_GT(watch.looks, 3);
    const int looks = watch.looks;
    double looked = 0;
    for (watch.stopAt = 1; watch.stopAt <= looks; watch.stopAt += 1 + looks / 20) {
        watch.looks = 0;
        const ExactResult part = search();
        ASSERT_FALSE(part.proven);
        EXPECT_GE(part.looked, 0);
        EXPECT_LT(part.looked, 1);
        looked = std::max(looked, part.looked);
        ASSERT_TRUE(part.best);
        EXPECT_GE(part.best->cost, all.best->cost);
        EXPECT_GE(part.best->power, bench.options.power);
    }
    EXPECT_GT(looked, 0.1);
    EXPECT_EQ(s.txtNT(1), before.txtNT(1));
    EXPECT_EQ(s.result.txtPower, before.result.txtPower);
}

}  // namespace
}  // namespace lorvane
