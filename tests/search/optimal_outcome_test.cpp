// What is said of the design that is looked at, and what of it is on offer.
#include "search/optimal_outcome.h"

#include <gtest/gtest.h>

#include "search/optimal_texts.h"
#include "search_bench.h"

namespace lorvane {
namespace {

Trial trialOf(double top, double size, std::int32_t cost, double power = 0.81) {
    Trial trial;
    trial.sizes(2) = top;
    trial.sizes(1) = size;
    trial.cost = cost;
    trial.power = power;
    trial.valid = cost > 0;
    return trial;
}

struct Outcomes : ::testing::Test {
    Outcomes() {
        found.trials = {trialOf(10, 9, 500), trialOf(11, 8, 400), trialOf(12, 7, 400), trialOf(13, 7, 0)};
        found.best = 1;
        bench.study().txtName(2) = "Schools";
        bench.study().txtName(1) = "Pupils";
    }

    /// Takes the result with an exact search that found a design, and tells what the card says.
    const std::string& prove(const std::optional<Trial>& best, bool proven = true, double looked = 0.436) {
        found.proof = ExactResult{best, proven, looked, 0};
        return take();
    }
    const std::string& take() {
        outcome.take(found, bench.study(), options, {"$"});
        return outcome.proof();
    }
    std::string said(std::vector<std::size_t> rows) {
        outcome.vsTrials().selected = std::move(rows);
        outcome.showSelected();
        return outcome.words();
    }

    SearchBench bench;
    OptimalOptions options;
    OptimalResult found;
    OptimalOutcome outcome;
};

TEST_F(Outcomes, TellHowADesignDiffersFromTheCheapest) {
    prove(trialOf(9, 11, 380, 0.80004));
    EXPECT_EQ(outcome.best(), 2U) << "the other design has the least top level";
    EXPECT_EQ(outcome.vsTrials().rows[1], (Grid::Row{"9", "11", "380", "0.8000"}));
    EXPECT_EQ(said({2}), "Power 0.8100. This trial costs $100 more than the cheapest.");
    EXPECT_EQ(said({4}), "Power 0.8100. This trial costs as much as the cheapest.");
    EXPECT_FALSE(outcome.showsBest());
    EXPECT_EQ(said({5}), "This trial gives no power, so it cannot be pasted.");
    said({3, 5});
    EXPECT_TRUE(outcome.showsBest());
    EXPECT_TRUE(outcome.vsTrials().selected.empty()) << "the cheapest is not selected";
    EXPECT_EQ(said({1}), "Power 0.8000. This design costs $20 less than the best trial.");
    EXPECT_TRUE(outcome.showsOther());
    EXPECT_FALSE(outcome.isTrial(0));
    EXPECT_EQ(outcome.otherNote(), 0U);
    said({});
    EXPECT_TRUE(outcome.showsBest());
}

TEST_F(Outcomes, TellWhatTheProofCameTo) {
    EXPECT_EQ(take(), "") << "before it ran";
    EXPECT_EQ(prove(found.trials[1]), "No cheaper design exists.");
    EXPECT_FALSE(outcome.other());
    EXPECT_EQ(prove(trialOf(9, 11, 380)), "A cheaper design exists: $380 with 9 Schools, 11 Pupils.");
    EXPECT_EQ(prove(found.trials[2]),
              "No cheaper design exists. The same cost gives more power: 12 Schools, 7 Pupils.");
    EXPECT_EQ(outcome.other(), 2U);
    EXPECT_TRUE(outcome.isTrial(2)) << "one of the trials, which stays where it is";
    EXPECT_EQ(outcome.designs().size(), 4U);
    EXPECT_EQ(prove(found.trials[1], false),
              "Nothing cheaper found so far, with 43% of the sizes looked at.");
    EXPECT_EQ(outcome.notes().size(), 1U) << "that a cheaper one may exist";
    EXPECT_EQ(prove(trialOf(9, 11, 380), false, 0.9999),
              "A cheaper design exists: $380 with 9 Schools, 11 Pupils.");
    EXPECT_NE(outcome.notes()[1].find("99% of the sizes"), std::string::npos);
    found.hasForbiddenCells = true;
    EXPECT_EQ(prove(trialOf(9, 20, 700)), "Without low cell counts: $700 with 9 Schools, 20 Pupils.");
    EXPECT_EQ(prove(std::nullopt, false),
              "Nothing without low cell counts found so far, with 43% of the sizes looked at.");
}

TEST_F(Outcomes, OfABudgetTellPowerCostAndWhatIsLeft) {
    options.budget = 1450;
    found.goal = OptimalGoal::mostPower;
    found.trials = {trialOf(10, 9, 1400, 0.78), trialOf(11, 8, 1399, 0.80061)};
    EXPECT_EQ(prove(found.trials[1]), "No design has more power than 0.8006 for this budget.");
    EXPECT_EQ(outcome.figure(), "0.8006");
    EXPECT_EQ(outcome.words(), "Cost $1,399 of $1,450, $51 left. Click <Paste> to copy to the main screen.");
    EXPECT_EQ(said({1}), "Cost $1,400, $50 left. This trial has 0.0206 less power.");
    EXPECT_EQ(prove(found.trials[1], false),
              "Nothing with more power found so far, with 43% of the sizes looked at.");
    found.proof->best = trialOf(3, 2, 2000);
    found.proof->proven = true;
    found.ending = OptimalEnding::budgetTooLow;
    EXPECT_EQ(
        optimalFailure(bench.study(), found, {}, {"$"}).text,
        "The cheapest valid design costs $2,000: 3 Schools, 2 Pupils. Raise the budget to that or more. "
        "Then click <Compute>.");
}

}  // namespace
}  // namespace lorvane
