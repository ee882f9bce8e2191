// The cost level by level.
#include "screen/cost_shares.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "base/money.h"
#include "base/number_text.h"
#include "engine/level_costs.h"

namespace lorvane {

namespace {

constexpr double largestTold = 1e15;

std::string unitsText(double units) {
    return std::fabs(units) < largestTold ? groupedText(static_cast<std::int64_t>(units)) : "";
}

std::string kindText(const UnitCost& kind, const Currency& currency) {
    return unitsText(kind.units) + " at " + amountText(kind.each, currency);
}

std::string unitCostsText(const LevelCost& cost, const Currency& currency) {
    const auto& [first, second] = cost.kinds;
    if (cost.kindCount == 1 || first.each == second.each)
        return kindText({cost.units(), first.each}, currency);
    return kindText(first, currency) + " and " + kindText(second, currency);
}

// Whole percentages that add up to 100: all are rounded down, and those that lose most get what is missing.
std::vector<int> percentages(const std::vector<CostShare>& rows) {
    std::vector<int> whole;
    for (const CostShare& row : rows)
        whole.push_back(static_cast<int>(row.share * 100));
    std::vector<std::size_t> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    const auto loss = [&](std::size_t row) { return rows[row].share * 100 - whole[row]; };
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return loss(a) > loss(b); });
    const int missing = 100 - std::accumulate(whole.begin(), whole.end(), 0);
    for (std::size_t i = 0; i < order.size() && static_cast<int>(i) < missing; ++i)
        ++whole[order[i]];
    return whole;
}

}  // namespace

std::vector<CostShare> costShares(const SessionState& state) {
    const Study& s = state.study;
    const PerLevel<LevelCost> costs = levelCosts(s);
    const std::int32_t total = s.result.txtCost;
    std::vector<CostShare> rows;
    for (int level = s.NumLevels; level >= lowestLevel; --level) {
        const LevelCost& cost = costs(level);
        CostShare row{s.txtName(level), unitsText(cost.units()), unitCostsText(cost, state.settings.currency),
                      "", ""};
        if (total >= 1) {
            row.amount = amountText(cost.amount(), state.settings.currency);
            row.share = std::clamp(cost.amount() / total, 0.0, 1.0);
        }
        rows.push_back(std::move(row));
    }
    if (total < 1)
        return rows;
    const std::vector<int> whole = percentages(rows);
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i].percent = std::to_string(whole[i]) + "%";
    return rows;
}

// What a new study begins with stands for "not set".
double topOfCostBar(const Study& s) {
    const double cost = s.result.txtCost;
    if (s.MaxCost != startMaxCost || cost < 1)
        return s.MaxCost;
    const double power = std::pow(10, std::floor(std::log10(cost)));
    for (const double round : {1, 2, 5}) {
        if (round * power > cost)
            return round * power;
    }
    return 10 * power;
}

}  // namespace lorvane
