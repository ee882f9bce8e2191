// Builds and keeps the quadrature rules of the chi scale.
#include "numerics/chi_rule.h"

#include <algorithm>
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

/// What the rules of one grade share: the nodes with z > 0, ascending, and their weights for exp(-z^2 / 2).
/// Those with z < 0 mirror them.
struct Grid {
    std::size_t nodesEachSide = 0;
    std::array<Node, kMostNodesEachSide> nodes;
};

// The positive zeros of the Hermite polynomials He_n with the weights of Gauss, which sum to 1 over both
// sides.

constexpr std::array<Node, 4> kHermite8{{{0.539079811351375108, 0.37301225767907735},
                                         {1.636519042435108, 0.117239907661759015},
                                         {2.8024858612875417, 0.00963522012078826719},
                                         {4.14454718612589433, 0.00011261453837536777}}};

constexpr std::array<Node, 6> kHermite12{{{0.444403001944138945, 0.321664361512829992},
                                          {1.34037519715161672, 0.146967048045329988},
                                          {2.25946445100079912, 0.0291166879123641512},
                                          {3.22370982877009747, 0.00220338068753319887},
                                          {4.27182584793228172, 0.0000483718492259062778},
                                          {5.5009017044677476, 1.49992716763716783e-7}}};

constexpr std::array<Node, 10> kHermite20{{{0.346964157081355928, 0.260793063449554859},
                                           {1.04294534880275103, 0.161739333983999962},
                                           {1.74524732081412671, 0.0615063720639769066},
                                           {2.45866361117236775, 0.0139978374471010033},
                                           {3.18901481655338941, 0.0018301031310804928},
                                           {3.94396735065731626, 0.000128826279961929449},
                                           {4.73458133404605534, 4.40212109023085283e-6},
                                           {5.57873880589320115, 6.12749025998294754e-8},
                                           {6.51059015701365449, 2.48206236231517865e-10},
                                           {7.61904854167975829, 1.25780067243792702e-13}}};

template <std::size_t count>
Grid gaussGrid(const std::array<Node, count>& nodes) {
    Grid grid{count, {}};
    std::copy(nodes.begin(), nodes.end(), grid.nodes.begin());
    return grid;
}

/// The nodes (k + 1/2) step of the trapezoidal sum.
Grid evenGrid(double step, std::size_t count) {
    Grid grid{count, {}};
    for (std::size_t k = 0; k < count; ++k) {
        const double z = (static_cast<double>(k) + 0.5) * step;
        grid.nodes[k] = {z, std::exp(-0.5 * z * z)};
    }
    return grid;
}

const Grid& gridOf(ChiRuleGrade grade) {
    static const std::array<Grid, 5> grids{gaussGrid(kHermite8), gaussGrid(kHermite12), gaussGrid(kHermite20),
                                           evenGrid(0.5, 18), evenGrid(0.3, kMostNodesEachSide)};
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
