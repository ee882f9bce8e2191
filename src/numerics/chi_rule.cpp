// Builds and keeps the quadrature rules of the chi scale.
#include "numerics/chi_rule.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "numerics/chi_scale_table.h"

namespace lorvane::numerics {
namespace {

constexpr std::size_t kMostNodesEachSide = ChiRule::kMostNodes / 2;

struct Node {
    double z;
    double weight;
};

/// What the rules of one grade share: the nodes z = (k + 1/2) step, ascending, and exp(-z^2 / 2). Those with
/// z < 0 mirror them.
struct Grid {
    Grid(double step, std::size_t count) : nodesEachSide(count) {
        for (std::size_t k = 0; k < count; ++k) {
            const double z = (static_cast<double>(k) + 0.5) * step;
            nodes[k] = {z, std::exp(-0.5 * z * z)};
        }
    }

    std::size_t nodesEachSide;
    std::array<Node, kMostNodesEachSide> nodes;
};

const Grid& gridOf(ChiRuleGrade grade) {
    static const std::array<Grid, 3> grids{Grid{0.7, 13}, Grid{0.5, 18}, Grid{0.3, kMostNodesEachSide}};
    return grids[static_cast<std::size_t>(grade)];
}

}  // namespace

void buildChiRule(double df, ChiRuleGrade grade, ChiRule& rule) {
    const Grid& grid = gridOf(grade);
    const std::size_t side = grid.nodesEachSide;
    const double inverseRoot = 1.0 / std::sqrt(df);
    double below = 0.0;
    double above = 0.0;
    for (std::size_t k = 0; k < side; ++k) {
        const double w = grid.nodes[k].z * inverseRoot;
        const ChiScale low = tabledChiScale(-w);
        const ChiScale high = tabledChiScale(w);
        rule.scale[side - 1 - k] = low.value;
        rule.scale[side + k] = high.value;
        rule.weight[side - 1 - k] = grid.nodes[k].weight * low.slope;
        rule.weight[side + k] = grid.nodes[k].weight * high.slope;
        below += rule.weight[side - 1 - k];
        above += rule.weight[side + k];
    }
    rule.nodes = static_cast<int>(2 * side);
    const double factor = 1.0 / (below + above);
    for (std::size_t k = 0; k < 2 * side; ++k) {
        rule.weight[k] *= factor;
    }
}

ChiRuleCache::ChiRuleCache() : sets_(kSets) {}

unsigned ChiRuleCache::setOf(double df) {
    constexpr std::uint64_t goldenRatio = 0x9E3779B97F4A7C15u;
    constexpr int bitsOfIndex = std::bit_width(static_cast<unsigned>(kSets - 1));
    return static_cast<unsigned>((std::bit_cast<std::uint64_t>(df) * goldenRatio) >> (64 - bitsOfIndex));
}

const ChiRule& ChiRuleCache::find(double df, ChiRuleGrade grade) {
    Set& set = sets_[setOf(df)];
    for (const Entry& entry : set.entries) {
        if (entry.df == df && entry.grade == grade) {
            return entry.rule;
        }
    }
    Entry& entry = set.entries[set.oldest];
    set.oldest = (set.oldest + 1) % kPlaces;
    entry.df = df;
    entry.grade = grade;
    buildChiRule(df, grade, entry.rule);
    return entry.rule;
}

}  // namespace lorvane::numerics
