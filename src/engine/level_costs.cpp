// The units of every level and their cost. The levels are walked from the top down.
#include "engine/level_costs.h"

#include "base/money.h"

namespace lorvane {

double UnitCost::amount() const { return roundHalfToEven(units * each); }

PerLevel<LevelCost> levelCosts(const Study& s, int NumLevels, int RandomizedLevel) {
    PerLevel<LevelCost> costs;
    double blocks = 1;
    for (int level = NumLevels; level > RandomizedLevel; --level) {
        blocks *= s.txtNB(level);
        costs(level) = {{{{blocks, s.txtCostB(level)}, {}}}, 1};
    }
    double treated = blocks;
    double control = blocks;
    for (int level = RandomizedLevel; level >= 1; --level) {
        treated *= s.txtNT(level);
        control *= s.txtNC(level);
        costs(level) = {{{{treated, s.txtCostT(level)}, {control, s.txtCostC(level)}}}, 2};
    }
    return costs;
}

}  // namespace lorvane
