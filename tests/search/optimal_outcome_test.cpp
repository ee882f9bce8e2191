// What is said of the design that is looked at, and what of it is on offer.
#include "search/optimal_outcome.h"

#include <gtest/gtest.h>

#include "search_bench.h"

namespace lorvane {
namespace {

TEST(OptimalOutcomes, TellHowADesignDiffersFromTheCheapest) {
    SearchBench bench;
    OptimalResult found;
    for (const std::int32_t cost : {500, 400, 400, 0})
        found.trials.push_back({{}, cost, 0.81, cost > 0});
    found.best = 1;
    found.nearby = Trial{{}, 380, 0.80004, true};
    OptimalOutcome outcome;
    outcome.take(found, bench.study(), {}, {"$"});
    const auto said = [&](std::vector<std::size_t> rows) {
        outcome.vsTrials().selected = std::move(rows);
        outcome.showSelected();
        return outcome.words();
    };
    EXPECT_EQ(said({1}), "Power 0.8100. This trial costs $100 more than the cheapest.");
    EXPECT_EQ(said({3}), "Power 0.8100. This trial costs as much as the cheapest.");
    EXPECT_FALSE(outcome.showsCheapest());
    EXPECT_EQ(said({4}), "This trial gives no power, so it cannot be pasted.");
    said({2, 4});
    EXPECT_TRUE(outcome.showsCheapest());
    EXPECT_TRUE(outcome.vsTrials().selected.empty()) << "the cheapest is not selected";
    outcome.showOther();
    EXPECT_EQ(outcome.words(), "Power 0.8000. This design costs $20 less than the best trial.");
    EXPECT_EQ(outcome.otherNote(), 0U);
    said({});
    EXPECT_TRUE(outcome.showsCheapest());
}

}  // namespace
}  // namespace lorvane
