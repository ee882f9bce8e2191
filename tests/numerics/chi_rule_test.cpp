#include "numerics/chi_rule.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>

#include "numerics/chi_scale.h"
#include "numerics/chi_scale_table.h"

namespace lorvane::numerics {
namespace {

TEST(ChiScaleTableTest, SolvesTheEquationOfTheScale) {
    for (double w = -8.99; w <= 9.0; w += 0.00317) {
        const double x = logSquareOfScale(w);
        const ChiScale tabled = tabledChiScale(w);
        EXPECT_NEAR(tabled.value, std::exp(0.5 * x), 1e-15 * (2.0 + std::abs(w))) << w;
        EXPECT_NEAR(tabled.slope * std::expm1(x) / w, 1.0, 1e-13) << w;
    }
    EXPECT_EQ(tabledChiScale(0.0).value, 1.0);
}

/// The means of S and of S^2 are known.
TEST(ChiRuleTest, MeansOfTheScaleAreExact) {
    struct {
        ChiRuleGrade grade;
        double leastDf;
    } const grades[] = {{ChiRuleGrade::Gauss8, 40.0},
                        {ChiRuleGrade::Gauss12, 12.0},
                        {ChiRuleGrade::Gauss20, 6.0},
                        {ChiRuleGrade::Even36, 2.0},
                        {ChiRuleGrade::Even60, 1.0}};
    for (const auto& [grade, leastDf] : grades) {
        for (const double df : {leastDf, 1.7 * leastDf, 150.0, 300.0}) {
            ChiRule rule;
            buildChiRule(df, grade, rule);
            double mean = 0.0;
            double meanSquare = 0.0;
            for (std::size_t k = 0; k < static_cast<std::size_t>(rule.nodes); ++k) {
                EXPECT_TRUE(k == 0 || rule.scale[k] > rule.scale[k - 1]);
                mean += rule.weight[k] * rule.scale[k];
                meanSquare += rule.weight[k] * rule.scale[k] * rule.scale[k];
            }
            EXPECT_NEAR(meanSquare, 1.0, 1e-13) << df;
            const double exactMean = std::exp(std::lgamma(0.5 * (df + 1.0)) - std::lgamma(0.5 * df));
            EXPECT_NEAR(mean, exactMean * std::sqrt(2.0 / df), 1e-12) << df;
        }
    }
}

}  // namespace
}  // namespace lorvane::numerics
