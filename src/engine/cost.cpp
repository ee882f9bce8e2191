// Total cost of the nine designs: for every level the number of units in the whole study times the cost of
// one. Each product is rounded to a whole number, and the sum has 32 bits.
#include "base/money.h"
#include "engine/design_routines.h"
#include "engine/level_costs.h"

namespace lorvane {

namespace {

std::int32_t totalCost(const Study& s, int NumLevels, int RandomizedLevel) {
    const PerLevel<LevelCost> costs = levelCosts(s, NumLevels, RandomizedLevel);
    MoneySum sum;
    for (int level = NumLevels; level >= 1; --level) {
        for (std::size_t kind = 0; kind < costs(level).kindCount; ++kind)
            sum.add(costs(level).kinds[kind].units * costs(level).kinds[kind].each);
    }
    return sum.total();
}

void writeCost(Study& s, int NumLevels, int RandomizedLevel) {
    try {
        s.result.txtCost = totalCost(s, NumLevels, RandomizedLevel);
    } catch (const MoneyOverflow&) {
        s.result.txtCost = 0;
        s.result.txtCostProblem = true;
    }
}

}  // namespace

void ComputeTwoLevelHDCost(Study& s) { writeCost(s, 2, 2); }
void ComputeThreeLevelHDCost(Study& s) { writeCost(s, 3, 3); }
void ComputeFourLevelHDCost(Study& s) { writeCost(s, 4, 4); }
void ComputeTwoLevelRBStudentsCost(Study& s) { writeCost(s, 2, 1); }
void ComputeThreeLevelRBStudentsCost(Study& s) { writeCost(s, 3, 1); }
void ComputeFourLevelRBStudentsCost(Study& s) { writeCost(s, 4, 1); }
void ComputeThreeLevelRBClassesCost(Study& s) { writeCost(s, 3, 2); }
void ComputeFourLevelRBClassesCost(Study& s) { writeCost(s, 4, 2); }
void ComputeFourLevelRBTeachersCost(Study& s) { writeCost(s, 4, 3); }

}  // namespace lorvane
