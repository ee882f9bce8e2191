// A bounded look around the result of the search.
#include "search/nearby_designs.h"

#include <algorithm>
#include <cmath>

#include "search/least_sizes.h"

namespace lorvane {

namespace {

constexpr int reach = 2;

class Neighbourhood {
public:
    Neighbourhood(TrialBench& bench, const OptimalOptions& options, const Trial& best)
        : bench_(bench), options_(options), start_(best), cheapest_(best), top_(bench.study().NumLevels),
          mayBeLow_(options.allowLowCellCounts || isLow()) {}

    std::optional<Trial> look() {
        lookAt(top_ - 1);
        bench_.setSizes(start_.sizes);
        bench_.compute();
        return cheapest_.cost < start_.cost ? std::optional(cheapest_) : std::nullopt;
    }

private:
    // Every size of a level around the one of the best design, together with every one of the levels below.
    void lookAt(int level) {
        if (level == 0) {
            solveTop();
            return;
        }
        const double centre = start_.sizes(level);
        const int away = options_.manual(level) ? 0 : reach;
        for (int change = -away; change <= away; ++change) {
            bench_.setSize(level, centre + change);
            if (centre + change >= 1)
                lookAt(level - 1);
        }
        bench_.setSize(level, centre);
    }

    // Only a top level that is cheaper than the best design so far is of use; costs rise with it.
    double largestUsefulTop() {
        bench_.trySize(top_, 1);
        const double costOfOne = bench_.study().result.txtCost;
        return costOfOne < 1 ? 0 : std::floor(cheapest_.cost / costOfOne) + 1;
    }

    // The least top level that reaches the power, by halving: power rises with it.
    void solveTop() {
        double good = largestUsefulTop();
        double low = Getmin(bench_.study(), top_) - 1;
        if (good <= low)
            return;
        bench_.trySize(top_, good);
        if (!bench_.reachesPower())
            return;
        while (good - low > 1) {
            const double middle = std::floor((low + good) / 2);
            bench_.trySize(top_, middle);
            (bench_.reachesPower() ? good : low) = middle;
        }
        bench_.trySize(top_, good);
        const Trial found = bench_.trial();
        if (found.cost >= 1 && found.cost < cheapest_.cost && (mayBeLow_ || !isLow()))
            cheapest_ = found;
    }

    bool isLow() const { return bench_.study().isBinary() && bench_.study().counts.anyLow; }

    TrialBench& bench_;
    const OptimalOptions& options_;
    const Trial start_;
    Trial cheapest_;
    const int top_;
    const bool mayBeLow_;  ///< the best design has low cell counts itself, or they are allowed
};

}  // namespace

std::optional<Trial> cheaperNearby(TrialBench& bench, const OptimalOptions& options, const Trial& best) {
    return Neighbourhood(bench, options, best).look();
}

}  // namespace lorvane
