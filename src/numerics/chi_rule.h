// Quadrature rules for means over S = chi / sqrt(df), and a small cache of the rules last used.
// Knows nothing of what is averaged.
#pragma once

#include <array>
#include <vector>

namespace lorvane::numerics {

/// Nodes of S, ascending, with weights that sum to 1.
struct ChiRule {
    static constexpr int kMostNodes = 60;

    int nodes = 0;
    std::array<double, kMostNodes> scale;
    std::array<double, kMostNodes> weight;
};

/// How the nodes lie in the near-normal variable z of chi_scale.h: those of Gauss and Hermite for means that
/// are smooth in z, equally spaced ones for steeper means. The number is that of the nodes.
enum class ChiRuleGrade { Gauss8, Gauss12, Gauss20, Even36, Even60 };

/// Fills `rule`. df >= 40, 12, 6, 2 and 1, in the order of the grades. Method: in z the density is exactly
/// proportional to exp(-z^2 / 2) d(ln S) / dz, which costs no gamma function and cancels nowhere. So the
/// weights are those for exp(-z^2 / 2) times the slope of ln S, normalised by their sum. S and the slope come
/// from the table of chi_scale_table.h.
void buildChiRule(double df, ChiRuleGrade grade, ChiRule& rule);

/// The rules of the df last used. Set-associative: df and grade choose a set of four places, the
/// oldest of which gives way. Allocates on construction only.
class ChiRuleCache {
public:
    ChiRuleCache();

    /// The rule of df and grade, built if it is not at hand. Valid until the next call.
    const ChiRule& find(double df, ChiRuleGrade grade);

private:
    static constexpr int kSets = 32;
    static constexpr int kPlaces = 4;

    struct Entry {
        double df = 0.0;
        ChiRuleGrade grade = ChiRuleGrade::Gauss8;
        ChiRule rule;
    };
    struct Set {
        std::array<Entry, kPlaces> entries;
        unsigned oldest = 0;
    };

    static unsigned setOf(double df);

    std::vector<Set> sets_;
};

}  // namespace lorvane::numerics
