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

/// How fine a rule is: the step of the trapezoidal sum in the near-normal variable z of chi_scale.h.
enum class ChiRuleGrade { Coarse, Medium, Fine };

/// Fills `rule` with the trapezoidal rule in z, |z| up to 8.75 at least. In z the weight is exactly
/// exp(-z^2/2) d(ln S), which costs no gamma function and cancels nowhere; the weights are normalised
/// by their sum; S and d(ln S) come from the table of chi_scale_table.h. df >= 6 for Coarse (26 nodes), 2 for
/// Medium (36) and 1 for Fine (60).
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
        ChiRuleGrade grade = ChiRuleGrade::Coarse;
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
