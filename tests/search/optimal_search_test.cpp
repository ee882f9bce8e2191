// The search for the cheapest design: its ratios, its trials, its endings, and the study that it puts back.
#include <cmath>

#include "engine/cell_screening.h"
#include "engine/effect_metrics.h"
#include "platform/time_limit.h"
#include "search/least_sizes.h"
#include "search/optimal_proof.h"
#include "search/optimal_ratios.h"
#include "search/optimal_texts.h"
#include "search/optimal_window.h"
#include "search/trial_bench.h"
#include "search_bench.h"
#include "validation/study_bench.h"

namespace lorvane {
namespace {

OptimalOptions pattern(int bits) {
    OptimalOptions options;
    for (int level = 1; level <= 3; ++level) {
        options.manual(level) = (bits >> (level - 1) & 1) == 1;
        options.numReps(level) = 3 + level;
    }
    return options;
}

SizeRatios ratiosOf(SearchBench& bench, const OptimalOptions& options) {
    resetReadiness(bench.study().result);
    const auto ratios = computeOptimalRatios(bench.study(), options);
    EXPECT_TRUE(bench.study().result.xValidOptimal);
    return ratios.value();
}

// Variance times cost of a design per unit of the top level, which cheap sizes make small.
double varianceTimesCost(const Study& s, const SizeRatios& n) {
    double variance = 0, cost = 0, units = 1, outcome = 1;
    for (int level = 2; level <= s.NumLevels; ++level)
        outcome -= s.txtICC(level);
    for (int level = s.NumLevels; level >= 1; --level) {
        if (level < s.NumLevels)
            units *= n(level);
        const bool blocked = s.isBlocked(level);
        const double unit = level == 1 ? outcome : s.txtICC(level);
        variance += (blocked ? GetTauSq(s, level) : unit) * (1 - s.txtRsq(level)) / units;
        const double arms = s.isHierarchical() ? 0.5 : 1;
        cost += (blocked ? s.txtCostB(level) : arms * (s.txtCostT(level) + s.txtCostC(level))) * units;
    }
    return variance * cost;
}

bool isTheException(const Study& s, int bits) {
    return s.NumLevels == 4 && s.RandomizedLevel == 1 && bits == 2;
}

// No small change of a free size makes variance times cost smaller. A rounded ratio may miss by a little.
int checkFreeRatios(SearchBench& bench, const OptimalOptions& options, const SizeRatios& ratios, int bits) {
    const Study& s = bench.study();
    const bool rounded = s.NumLevels == 2;
    const double least = varianceTimesCost(s, ratios);
    int checked = 0;
    for (int level = 1; level < s.NumLevels; ++level) {
        if (options.manual(level) || isTheException(s, bits) || (rounded && ratios(1) < 2))
            continue;
        for (const double direction : {-1, 1}) {
            SizeRatios other = ratios;
            other(level) += direction * (rounded ? 1 : 0.02 * ratios(level));
            EXPECT_LT(least, (rounded ? 1.02 : 1) * varianceTimesCost(s, other)) << level << " of " << bits;
            ++checked;
        }
    }
    return checked;
}

TEST(OptimalRatios, FreeSizesMakeVarianceTimesCostSmallestWhateverIsFixed) {
    std::mt19937 random(7);
    int checked = 0;
    for (int i = 0; i < 300; ++i) {
        SearchBench bench;
        makeRandom(bench, random);
        if (!bench.study().result.xValid)
            continue;
        for (int bits = 0; bits < 1 << (bench.study().NumLevels - 1); ++bits) {
            const OptimalOptions options = pattern(bits);
            checked += checkFreeRatios(bench, options, ratiosOf(bench, options), bits);
        }
    }
    EXPECT_GT(checked, 1000);
}

TEST(OptimalRatios, WorkedNumbers) {
    SearchBench hierarchical;
    hierarchical.study().txtCostT(2) = hierarchical.study().txtCostC(2) = 90;
    EXPECT_EQ(ratiosOf(hierarchical, {})(1), 9);
    SearchBench blocks(2, 1);
    blocks.study().txtTauSq(2) = 0.1;
    blocks.study().txtCostB(2) = 180;
    blocks.refresh();
    const double expected = std::sqrt(0.9 / GetTauSq(blocks.study(), 2) * 180 / 20);
    EXPECT_EQ(ratiosOf(blocks, {})(1), std::nearbyint(expected));
    SearchBench exception(4, 1);
    Study& s = exception.study();
    s.txtRsq(3) = s.txtRsq(4) = 0.5;
    s.txtQ(3) = s.txtQ(4) = 1;
    exception.refresh();
    const double n2 = 5;
    EXPECT_NEAR(
        ratiosOf(exception, pattern(2))(3),
        std::sqrt(10 / (n2 * 10 + 10) * (GetOmega(s, 2) * 0.1 + GetTauSq(s, 3) * n2) / (GetTauSq(s, 4) * n2)),
        1e-12);
}

TEST(LeastSizes, LeaveDegreesOfFreedom) {
    SearchBench blocked(3, 2), hierarchical(2, 2, DataTypes::binary);
    blocked.study().txtQ(3) = 3;
    EXPECT_EQ(Getmin(blocked.study(), 3), 5);
    blocked.study().txtQ(2) = 41;
    EXPECT_EQ(Getmin(blocked.study(), 2), 4) << "(4 + 4 - 2) x 10 >= 41";
    hierarchical.study().txtQ(2) = 3;
    EXPECT_EQ(Getmin(hierarchical.study(), 2), 3);
    hierarchical.study().txtQ(1) = 21;
    EXPECT_EQ(Getmin(hierarchical.study(), 1), 3) << "also at level 1 of a binary study";
}

TEST(LeastSizes, TheLeastLevel1AvoidsLowCells) {
    for (const double risk : {0.5, 0.2, 0.05}) {
        for (const double icc : {0.01, 0.1}) {
            SearchBench bench(2, 2, DataTypes::binary);
            Study& s = bench.study();
            s.txtPrev = risk;
            s.txtICC(2) = icc;
            bench.refresh();
            double first = 0;
            for (double n = 1; n <= 1000 && first == 0; ++n) {
                s.txtNT(1) = s.txtNC(1) = n;
                AAAComputeTwoLevelHDEvents(s, bench.library);
                first = !s.counts.anyLow ? n : 0;
            }
            const auto found = GetMinN(s, bench.library);
            EXPECT_TRUE(first == 0 ? !found || *found > 1000 : found == first) << risk << " " << icc;
        }
    }
}

// What must hold of every trial, whatever is set by hand.
void checkTrials(SearchBench& bench, const OptimalResult& result) {
    const int top = bench.study().NumLevels;
    const Trial& first = result.trials.front();
    for (std::size_t i = 0; i < result.trials.size(); ++i) {
        const Trial& trial = result.trials[i];
        EXPECT_EQ(trial.sizes(top), first.sizes(top) + static_cast<double>(i));
        EXPECT_TRUE(!trial.valid || trial.power >= bench.options.power || i > 0);
        TrialBench trials(bench.study(), bench.library, bench.options.power, bench.progress);
        for (int level = 1; level < top; ++level) {
            trials.setSizes(trial.sizes);
            if (bench.options.manual(level))
                continue;
            const double least = Getmin(bench.study(), level);
            if (trial.sizes(level) < least + 1)
                continue;
            trials.trySize(level, trial.sizes(level) - 1);
            EXPECT_FALSE(trial.power >= bench.options.power && trials.reachesPower())
                << "level " << level << " of trial " << i << " can still shrink";
        }
        EXPECT_LE(result.bestTrial().cost, trial.cost);
        EXPECT_TRUE(trial.cost > result.bestTrial().cost || i >= result.best)
            << "a tie keeps the smaller top";
    }
}

TEST(OptimalSearch, EveryTrialReachesThePowerWithNothingToSpare) {
    std::mt19937 random(11);
    int found = 0;
    for (int i = 0; i < 250; ++i) {
        SearchBench bench;
        makeRandom(bench, random);
        if (!bench.study().result.xValid)
            continue;
        for (int level = 1; level <= 3; ++level) {
            bench.options.manual(level) = random() % 3 == 0;
            bench.options.numReps(level) = 2 + static_cast<double>(random() % 8);
        }
        bench.options.iterations = 5;
        const Study before = bench.study();
        const OptimalResult result = bench.search();
        const Study& after = bench.study();
        for (int level = 1; level <= 4; ++level) {
            EXPECT_EQ(after.txtNT(level), before.txtNT(level));
            EXPECT_EQ(after.txtNC(level), before.txtNC(level));
            EXPECT_EQ(after.txtNB(level), before.txtNB(level));
        }
        EXPECT_EQ(after.result.txtPower, before.result.txtPower);
        if (result.ending != OptimalEnding::found)
            continue;
        ++found;
        ASSERT_EQ(result.trials.size(), 6u);
        for (int level = 1; level < bench.study().NumLevels; ++level) {
            const bool kept = bench.options.manual(level) && result.changes.empty();
            EXPECT_TRUE(!kept || result.bestTrial().sizes(level) == bench.options.numReps(level));
        }
        checkTrials(bench, result);
    }
    EXPECT_GT(found, 150);
}

// The search as it goes without leaps: step by step, from the sizes that the ratios give.
class StepByStep {
public:
    StepByStep(SearchBench& bench, const OptimalResult& result)
        : bench_(bench), trials_(bench.study(), bench.library, bench.options.power, bench.progress),
          top_(bench.study().NumLevels) {
        const SizeRatios ratios = ratiosOf(bench, bench.options);
        for (int level = 1; level < top_; ++level)
            trials_.setSize(level, std::nearbyint(std::max(ratios(level), 1.0)));
        for (const SizeChange& change : result.changes)
            trials_.setSize(change.level, change.to);
    }

    LevelSizes first() {
        double least = Getmin(bench_.study(), top_);
        for (trials_.trySize(top_, least); !bench_.study().result.xValid;)
            trials_.trySize(top_, ++least);
        for (const double step : {500, 100, 10, 1}) {
            while (!trials_.reachesPower())
                trials_.trySize(top_, trials_.size(top_) + step);
            if (step > 1)
                trials_.trySize(top_, std::max(trials_.size(top_) - step, least));
        }
        shrink();
        return trials_.trial().sizes;
    }

    LevelSizes withTop(LevelSizes sizes, double top) {
        sizes(top_) = top;
        trials_.setSizes(sizes);
        shrink();
        return trials_.trial().sizes;
    }

private:
    void shrink() {
        trials_.compute();
        for (int level = top_ - 1; level >= 1; --level) {
            if (!bench_.options.manual(level))
                shrink(level, Getmin(bench_.study(), level));
        }
    }

    void shrink(int level, double least) {
        const std::pair<double, double> steps[] = {{1000, 1000}, {100, 100}, {20, 20}, {2, 4}, {1, 1}};
        for (const auto& [step, margin] : steps) {
            const auto goesOn = [&, margin = margin] {
                return trials_.reachesPower() && trials_.size(level) >= least + margin;
            };
            if (!goesOn())
                continue;
            while (goesOn())
                trials_.trySize(level, trials_.size(level) - step);
            if (step > 1 || !trials_.reachesPower())
                trials_.trySize(level, trials_.size(level) + step);
        }
    }

    SearchBench& bench_;
    TrialBench trials_;
    const int top_;
};

// Values of an open-ended range of sizes, costs and powers.
void makeWide(SearchBench& bench, std::mt19937& random) {
    makeRandom(bench, random);
    const auto tenTo = [&](double low, double high) {
        return std::pow(10, std::uniform_real_distribution<double>(low, high)(random));
    };
    Study& s = bench.study();
    for (int level = 1; level <= s.NumLevels; ++level) {
        s.txtTauSq(level) = tenTo(-12, -1);
        s.txtICC(level) = level > 1 ? tenTo(-8, -1) : 0;
        for (auto* costs : {&s.txtCostT, &s.txtCostC, &s.txtCostB})
            (*costs)(level) = tenTo(-7, 7);
    }
    s.txtAlpha = tenTo(-4, -0.5);
    s.txtd = tenTo(-1.5, 0);
    s.txtTails = Tails(1 + static_cast<int>(random() % 2));
    s.PowerOption = PowerOptions(1 + static_cast<int>(random() % 2));
    const double powers[] = {0.02, 0.3, 0.8, 0.95, 0.999};
    bench.options.power = powers[random() % std::size(powers)];
    bench.options.iterations = 5;
    for (int level = 1; level <= 3; ++level) {
        bench.options.manual(level) = random() % 5 == 0;
        bench.options.numReps(level) = std::floor(tenTo(0, 4));
    }
    bench.refresh();
}

TEST(OptimalSearch, LeapsEndWhereSingleStepsEnd) {
    std::mt19937 random(17);
    int found = 0;
    for (int i = 0; i < 150; ++i) {
        SearchBench bench;
        makeWide(bench, random);
        if (!bench.study().result.xValid)
            continue;
        const OptimalResult result = bench.search();
        EXPECT_LT(result.runs, 10000);
        if (result.ending != OptimalEnding::found || result.trials.size() < 6)
            continue;
        ++found;
        StepByStep walk(bench, result);
        const LevelSizes first = walk.first();
        for (std::size_t trial = 0; trial < result.trials.size(); ++trial) {
            const double top = first(bench.study().NumLevels) + static_cast<double>(trial);
            const LevelSizes sizes = trial == 0 ? first : walk.withTop(first, top);
            for (int level = 1; level <= bench.study().NumLevels; ++level)
                ASSERT_EQ(result.trials[trial].sizes(level), sizes(level))
                    << "level " << level << " of trial " << trial << " of study " << i;
        }
    }
    EXPECT_GT(found, 80);
}

TEST(OptimalSearch, CovariatesAndLowCellsRaiseTheSizes) {
    SearchBench blocked(3, 1);
    blocked.study().txtQ(2) = 1;
    blocked.study().txtRsq(2) = 0.2;
    blocked.study().txtTauSq(2) = 0.001;
    blocked.refresh();
    OptimalResult result = blocked.search();
    ASSERT_EQ(result.changes.size(), 1u);
    EXPECT_EQ(result.changes[0].to, 3);
    SearchBench risks(2, 2, DataTypes::binary);
    risks.study().txtPrev = 0.1;
    risks.study().txtCostT(1) = risks.study().txtCostC(1) = 500;
    risks.refresh();
    result = risks.search();
    EXPECT_TRUE(result.level1Raised);
    EXPECT_EQ(result.bestTrial().sizes(1), *GetMinN(risks.study(), risks.library));
    risks.options.allowLowCellCounts = true;
    EXPECT_FALSE(risks.search().level1Raised);
}

TEST(Readiness, EveryReasonIsToldByItsOwnWords) {
    struct Case {
        DataTypes dataType;
        void (*spoil)(Study&);
        const char* title;
        const char* part;
    };
    using enum DataTypes;
    for (const Case& c : std::initializer_list<Case>{
             {means, [](Study& s) { s.txtModel(3) = 1; }, "Model is fixed",
              "fixed-effect model at any level"},
             {means, [](Study& s) { s.txtd = 0.001; }, "Effect size is zero", "Enter an effect size"},
             {binary, [](Study& s) { s.txtOR = 1; }, "Effect size is zero", "Enter an effect size"},
             {means, [](Study& s) { s.txtICC(2) = 0; }, "ICC is zero", "Set all ICCs"},
             {means, [](Study& s) { s.IccMetric = IccMetrics::span, s.txtMRange(2) = 0; },
              "Range of means is zero", "range of means"},
             {binary,
              [](Study& s) { s.IccMetric = IccMetrics::span, s.txtMRange(3) = 0.2, s.txtMRange(2) = 0; },
              "Range of risks is zero", "range of risks"},
             {means, [](Study& s) { s.txtCostB(3) = 0; }, "Cost is zero", "Set all costs"},
             {binary, [](Study& s) { s.txtCostT(1) = s.txtCostC(1) = 0; }, "Cost is zero", "Set all costs"},
             {means, [](Study& s) { s.txtTauSq(3) = 0; }, "Tau-squared is zero", "Set all tau-squared"},
             {means, [](Study& s) { s.TauSqMetric = TauSqMetrics::spanOfEffects, s.txtDRange(3) = 0; },
              "Span of effects is zero", "Set all span"},
             {binary, [](Study& s) { s.TauSqMetric = TauSqMetrics::omega, s.txtOmega(3) = 0; },
              "Omega is zero", "Set all omega"}}) {
        SearchBench bench(3, 2, c.dataType);
        c.spoil(bench.study());
        bench.refresh();
        ASSERT_TRUE(bench.study().result.xValid) << c.title;
        const OptimalResult result = bench.search();
        EXPECT_EQ(result.ending, OptimalEnding::notReady) << c.title;
        bench.study().result = result.flags;
        const auto problems = readinessProblems(bench.study());
        ASSERT_EQ(problems.size(), 1u) << problems[0].title << problems.back().title;
        EXPECT_EQ(problems[0].title, std::string(c.title));
        EXPECT_NE(std::string(problems[0].text).find(c.part), std::string::npos) << problems[0].text;
        for (int level = 1; level <= 2; ++level)
            bench.options.manual(level) = true, bench.options.numReps(level) = 3;
        const bool always = std::string(c.title) == "Effect size is zero";
        EXPECT_EQ(bench.search().ending == OptimalEnding::found, !always) << "by hand, " << c.title;
    }
}

TEST(Readiness, TheLastOfAllReasonsIsRead) {
    SearchBench bench;
    Study& s = bench.study();
    s.outcome.ValidICC(0) = s.effect.ValidTauSq(0) = false;
    for (LevelFlags* flags : {&s.result.xValidModel, &s.result.xValidICC, &s.result.xValidCost,
                              &s.result.xValidTauSq, &s.result.xValidQ})
        (*flags)(2) = false;
    s.result.xValidES = s.result.xValidTotICC = false;
    ResolveValidOptimal(s, false);
    EXPECT_FALSE(s.result.xValidOptimal);
    std::string titles;
    for (const ReadinessProblem& problem : readinessProblems(s))
        titles += std::string(problem.title) + "; ";
    EXPECT_EQ(titles,
              "Model is fixed; Effect size is zero; Problem with ICC; Tau-squared is zero; ICC is zero; "
              "Cost is zero; Tau-squared is zero; Number of covariates is zero; Total ICC exceeds 0.999; ");
}

// Values that no dialog offers, as a file can hold them: the search ends soon, whatever it answers.
TEST(OptimalSearch, ExtremeStudiesEndSoon) {
    std::mt19937 random(3);
    const double extremes[] = {0, -1, 1e-9, 0.999, 3, 1e6, 1e9, 1e15, 1e300};
    int endings[5] = {}, faults = 0;
    const SteadyClock clock;
    for (int i = 0; i < 400; ++i) {
        SearchBench bench;
        Study& s = bench.study();
        try {
            makeRandom(bench, random);
            for (auto change = random() % 3 + 1; change > 0; --change) {
                PerLevel<double>* fields[] = {&s.txtICC,   &s.txtTauSq, &s.txtQ,      &s.txtRsq,  &s.txtCostT,
                                              &s.txtCostB, &s.txtCostC, &s.txtMRange, &s.txtModel};
                (*fields[random() % std::size(fields)])(1 + static_cast<int>(random() % 4)) =
                    extremes[random() % std::size(extremes)];
            }
            bench.refresh();
        } catch (const ArithmeticFault&) {
            continue;
        }
        const Study before = s;
        try {
            OptimalResult result = bench.search();
            ++endings[static_cast<int>(result.ending)];
            TimeLimit limit(bench.progress, clock, std::chrono::milliseconds(50));
            if (result.ending == OptimalEnding::found) {
                proveCheapest(bench.trial, bench.options, limit, result);
                EXPECT_LE(result.proof->best->cost, result.bestTrial().cost) << i;
            }
            bench.options.budget = 1e5;
            const OptimalResult most = searchMostPower(bench.trial, bench.options, limit);
            EXPECT_EQ(most.ending == OptimalEnding::notReady, result.ending == OptimalEnding::notReady) << i;
            EXPECT_TRUE(most.ending != OptimalEnding::found || most.bestTrial().cost <= 1e5) << i;
        } catch (const ArithmeticFault&) {
            ++faults;
        }
        for (int level = 1; level <= 4; ++level)
            EXPECT_TRUE(s.txtNT(level) == before.txtNT(level) && s.txtNB(level) == before.txtNB(level)) << i;
    }
    for (const OptimalEnding ending : {OptimalEnding::found, OptimalEnding::notReady,
                                       OptimalEnding::noSolution, OptimalEnding::costOverflow})
        EXPECT_GT(endings[static_cast<int>(ending)], 0) << static_cast<int>(ending);
    EXPECT_GT(faults, 0) << "a search that faults puts the study back too";
}

// Asks to stop at the first look.
struct Impatient final : Progress {
    bool goOn() override { return false; }
};

TEST(OptimalSearch, EveryEndingPutsTheStudyBack) {
    SearchBench bench;
    Study& s = bench.study();
    PowerResult flags;
    const auto endingOf = [&] {
        bench.refresh();
        const Study before = s;
        const OptimalResult result = bench.search();
        EXPECT_EQ(s.txtNT(2), before.txtNT(2));
        EXPECT_EQ(s.txtNB(1), before.txtNB(1));
        EXPECT_EQ(s.result.txtPower, before.result.txtPower);
        flags = result.flags;
        return result.ending;
    };
    EXPECT_EQ(endingOf(), OptimalEnding::found);
    s.txtd = 0.0012;
    s.txtCostT(2) = s.txtCostC(2) = 1000000;
    EXPECT_EQ(endingOf(), OptimalEnding::costOverflow);
    EXPECT_TRUE(flags.txtCostProblem);
    s.txtd = 0.4;
    s.txtQ(2) = 250;
    EXPECT_EQ(endingOf(), OptimalEnding::found) << "the least size grows with the covariates";
    s.txtQ(2) = 0;
    s.txtCostT(2) = s.txtCostC(2) = 10;
    Impatient impatient;
    EXPECT_EQ(searchOptimalDesign(bench.trial, bench.options, impatient).ending, OptimalEnding::stopped);
    EXPECT_EQ(s.txtNT(2), 10);
    s.txtCostT(1) = s.txtCostC(1) = 0;
    EXPECT_EQ(endingOf(), OptimalEnding::notReady);
    EXPECT_FALSE(flags.xValidCost(1));
    bench.options.manual(1) = true;
    bench.options.numReps(1) = 20;
    EXPECT_EQ(endingOf(), OptimalEnding::found) << "set by hand, a cost of zero does not count";
}

// Asks to stop at a look of its own choice.
struct Watch final : Progress {
    bool goOn() override { return ++looks != stopAt; }
    int looks = 0;
    int stopAt = 0;
};

// A unit of level 1 costs next to nothing: its descents are long.
TEST(OptimalSearch, DescentsLookAtTheProgress) {
    SearchBench bench(2, 1);
    Study& s = bench.study();
    s.txtICC(2) = 0.3, s.txtTauSq(2) = 2e-9, s.txtd = 0.2, s.txtAlpha = 0.001;
    s.txtCostT(1) = s.txtCostC(1) = 0.1, s.txtCostB(2) = 1000000;
    bench.options.power = 0.95;
    bench.refresh();
    Watch watch;
    const auto search = [&] { return searchOptimalDesign(bench.trial, bench.options, watch); };
    const OptimalResult result = search();
    EXPECT_EQ(result.ending, OptimalEnding::found);
    EXPECT_GT(result.runs, 1000);
    EXPECT_EQ(watch.looks, bench.options.iterations + result.runs / 1000);
    const int looks = watch.looks;
    for (watch.stopAt = 1; watch.stopAt <= looks; ++watch.stopAt) {
        watch.looks = 0;
        EXPECT_EQ(search().ending, OptimalEnding::stopped) << "at look " << watch.stopAt;
    }
}

// Meets a fault at the first look.
struct Faulty final : Progress {
    bool goOn() override { throw ArithmeticFault("Faulty"); }
};

TEST(OptimalWizard, AFaultLeavesItReadyForTheNextTry) {
    StudyBench bench;
    Faulty faulty;
    OptimalWindow wizard(bench.design, faulty);
    bench.session.edit({"values"}, [](SessionState& state) { state.study = SearchBench().study(); });
    wizard.open();
    const std::string before = wizard.pnlOptimalInner().Caption;
    EXPECT_THROW(wizard.ComputeOptimalDesign(), ArithmeticFault);
    EXPECT_FALSE(wizard.isRunning());
    EXPECT_EQ(wizard.pnlOptimalInner().Caption, before);
    EXPECT_TRUE(wizard.cmdOpt(2).Visible && wizard.cmdOpt(4).Visible);
}

TEST(OptimalWizard, AStoppedSearchOffersToStartAgain) {
    StudyBench bench;
    Impatient impatient;
    OptimalWindow wizard(bench.design, impatient);
    bench.session.follow([&](const Changed& changed) { wizard.follow(changed); });
    bench.session.edit({"values"}, [](SessionState& state) { state.study = SearchBench().study(); });
    EventRegistry events;
    wizard.registerEvents(events);
    wizard.open();
    events.click("frmOptimal.cmdOpt(2)");
    EXPECT_TRUE(wizard.pnlOptimalInner().Caption.starts_with("The search was stopped."));
    EXPECT_TRUE(wizard.cmdOpt(2).Visible);
    EXPECT_FALSE(wizard.cmdOpt(3).Visible);
    EXPECT_EQ(wizard.row(1).OptimalpnlNT.Caption, "Use optimal");
    EXPECT_EQ(wizard.result(), nullptr);
    EXPECT_EQ(bench.study.txtNT(2), 10);
}

}  // namespace
}  // namespace lorvane
