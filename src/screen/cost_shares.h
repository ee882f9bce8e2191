// The cost level by level, in words, and the top of its bar.
#pragma once

#include <string>
#include <vector>

#include "session/session_state.h"

namespace lorvane {

/// What the units of one level cost. Amount and percentage are empty, and the share is 0, while the study has
/// no cost to tell.
struct CostShare {
    std::string name;       ///< "Schools"
    std::string units;      ///< in the whole study: "30"
    std::string unitCosts;  ///< "15 at $2,500 and 15 at $1,500", "90 at $300"
    std::string amount;     ///< "$60,000"
    std::string percent;    ///< "49%"; those of all levels add up to 100
    double share = 0;       ///< of the whole cost, 0 to 1
};

/// The levels of the study, the top level first.
std::vector<CostShare> costShares(const SessionState& state);

/// The amount at which the bar of the cost is full: the one that the user has set, else a round one above the
/// cost.
double topOfCostBar(const Study& study);

}  // namespace lorvane
