// Builds and keeps the quadrature rules of the chi scale.
#include "numerics/chi_rule.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "numerics/chi_scale.h"

namespace lorvane::numerics {
namespace {

struct Grid {
    double step;
    int nodesEachSide;
};

Grid gridOf(ChiRuleGrade grade) {
    switch (grade) {
    case ChiRuleGrade::Coarse:
        return {0.7, 13};
    case ChiRuleGrade::Medium:
        return {0.5, 18};
    case ChiRuleGrade::Fine:
        break;
    }
    return {0.3, 30};
}

}  // namespace

void buildChiRule(double df, ChiRuleGrade grade, ChiRule& rule) {
    const Grid grid = gridOf(grade);
    const double inverseRoot = 1.0 / std::sqrt(df);
    double total = 0.0;
    rule.nodes = 2 * grid.nodesEachSide;
    for (int k = 0; k < rule.nodes; ++k) {
        const auto node = static_cast<std::size_t>(k);
        const double z = (k - grid.nodesEachSide + 0.5) * grid.step;
        const double w = z * inverseRoot;
        const double x = logSquareOfScale(w);
        const double slope = w / (x + w * w);  // d(ln S) / dz up to a constant; x + w^2 is e^x - 1
        rule.scale[node] = std::exp(0.5 * x);
        rule.weight[node] = std::exp(-0.5 * z * z) * slope;
        total += rule.weight[node];
    }
    for (int k = 0; k < rule.nodes; ++k) {
        rule.weight[static_cast<std::size_t>(k)] /= total;
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
