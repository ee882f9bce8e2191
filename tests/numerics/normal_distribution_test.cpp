#include "numerics/normal_distribution.h"

#include <boost/math/distributions/normal.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "numerics/normal_tail_table.h"

namespace lorvane::numerics {
namespace {

double relativeError(double ours, double reference) {
    return reference == 0.0 ? std::abs(ours) : std::abs(ours / reference - 1.0);
}

TEST(NormalDistributionTest, TailsMatchBoost) {
    const boost::math::normal normal;
    for (double x = -30.0; x <= 30.0; x += 0.0137) {
        EXPECT_LT(relativeError(normalLower(x), cdf(normal, x)), 1e-13) << x;
        EXPECT_EQ(normalUpper(x), normalLower(-x)) << x;
    }
}

TEST(NormalDistributionTest, QuantileMatchesBoost) {
    const boost::math::normal_distribution<long double> normal;
    for (double p = 0.5; p > 1e-300; p *= 0.93) {
        EXPECT_LT(relativeError(normalQuantile(p), static_cast<double>(quantile(normal, p))), 2e-15) << p;
    }
    for (double p = 0.0005; p < 1.0; p += 0.001) {
        EXPECT_LT(relativeError(normalQuantile(p), static_cast<double>(quantile(normal, p))), 2e-15) << p;
        EXPECT_NEAR(normalLower(normalQuantile(p)), p, 1e-15);
    }
    EXPECT_EQ(normalQuantile(0.5), 0.0);
}

TEST(NormalDistributionTest, QuantileAnswersOutsideOfItsDomain) {
    EXPECT_EQ(normalQuantile(0.0), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(normalQuantile(1.0), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(normalQuantile(std::nan(""))));
}

TEST(NormalTailTableTest, KeepsItsErrorBounds) {
    for (double x = -12.0; x <= 16.0; x += 1.37e-4) {
        const double exact = normalUpper(x);
        const double tabled = tabledUpperTail(x);
        EXPECT_NEAR(tabled, exact, 5e-16) << x;
        if (x < 13.0) {
            EXPECT_LT(relativeError(tabled, exact), x < 6.0 ? 4e-11 : 3e-8) << x;
        }
    }
    EXPECT_EQ(tabledUpperTail(-1e300), 1.0);
    EXPECT_EQ(tabledUpperTail(1e300), 0.0);
}

}  // namespace
}  // namespace lorvane::numerics
