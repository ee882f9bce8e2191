// The levels that a search may choose.
#include "search/free_levels.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "engine/level_costs.h"
#include "search/least_sizes.h"

namespace lorvane {

namespace {

constexpr double tolerance = 0.00001;  // of degrees of freedom

double costOfUnit(const Study& s, int level) {
    return s.isBlocked(level) ? s.txtCostB(level) : s.txtCostT(level) + s.txtCostC(level);
}

// A product of a whole cost is whole; any other may be rounded by a half.
double roundingOf(const LevelCost& cost) {
    double rounding = 0;
    for (std::size_t kind = 0; kind < cost.kindCount; ++kind)
        rounding += cost.kinds[kind].each == std::floor(cost.kinds[kind].each) ? 0 : 0.5;
    return rounding;
}

// A binary outcome has no covariates at level 1.
double covariatesOf(const Study& s, int level) { return level == 1 && s.isBinary() ? 0 : s.txtQ(level); }

}  // namespace

FreeLevels::FreeLevels(const Study& study, const OptimalOptions& options, double leastOfLevel1)
    : topLevel_(study.NumLevels), leastTop_(Getmin(study, study.NumLevels)) {
    join(study, options, leastOfLevel1);
    addRules(study);
    const PerLevel<LevelCost> costs = levelCosts(study);
    for (int level = 1; level <= topLevel_; ++level)
        rounding_ += roundingOf(costs(level));
    for (std::size_t i = count_ + 1; i-- > 0;) {
        const double below = i == count_ ? 0 : chain_[i + 1].least * chain_[i + 1].leastCost;
        chain_[i].leastCost = chain_[i].cost + chain_[i].units * below;
    }
}

void FreeLevels::join(const Study& s, const OptimalOptions& options, double leastOfLevel1) {
    chain_[0].level = topLevel_;
    for (int level = topLevel_; level >= 1; --level) {
        const bool isTop = level == topLevel_;
        if (!isTop && options.manual(level)) {
            chain_[count_].units *= s.txtNT(level);
        } else if (!isTop) {
            FreeLevel& free = chain_[++count_];
            free.level = level;
            free.least = std::max(covariatesOf(s, level) > 0 ? 2.0 : 1.0, level == 1 ? leastOfLevel1 : 1.0);
        }
        place_(level) = count_;
        joined_(level) = chain_[count_].units;
        chain_[count_].cost += chain_[count_].units * costOfUnit(s, level);
    }
}

void FreeLevels::addRules(const Study& s) {
    for (int level = 1; level < topLevel_; ++level) {
        const double needed = covariatesOf(s, level) - tolerance;
        if (needed > 0)
            rules_[ruleCount_++] = {level, s.isBlocked(level) ? 1.0 : 2.0, needed};
    }
}

void FreeLevels::weigh(const PerLevel<double>& weights) {
    for (FreeLevel& free : chain_)
        free.weight = 0;
    for (int level = 1; level <= topLevel_; ++level)
        chain_[place_(level)].weight += weights(level) / joined_(level);
    double rest = 0;
    for (std::size_t i = count_ + 1; i-- > 0;) {
        chain_[i].rest = rest;
        rest += std::sqrt(chain_[i].cost * chain_[i].weight);
    }
}

double FreeLevels::leastTop(const LevelSizes& sizes) const {
    double least = leastTop_;
    for (std::size_t i = 0; i < ruleCount_; ++i) {
        const CovariateRule& rule = rules_[i];
        double units = rule.perUnit * (sizes(rule.level) - 1);
        for (int level = rule.level + 1; level < topLevel_; ++level)
            units *= sizes(level);
        least = units > 0 ? std::max(least, std::ceil(rule.needed / units))
                          : std::numeric_limits<double>::infinity();
    }
    return least;
}

}  // namespace lorvane
