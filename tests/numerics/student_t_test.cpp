#include "numerics/student_t.h"

#include <boost/math/distributions/students_t.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "numerics/noncentral_t.h"
#include "numerics/normal_distribution.h"
#include "numerics/numeric_distribution_library.h"
#include "numerics/reference_table.h"

namespace lorvane::numerics {
namespace {

constexpr double kBound = 1e-12;

TEST(StudentQuantileTest, MatchesReferenceTable) {
    const auto rows = test::readReferenceTable("t_inverse.csv");
    ASSERT_EQ(rows.size(), 500u);
    for (const auto& row : rows) {
        EXPECT_NEAR(studentQuantile(row[0], row[1]), row[2], kBound * row[2]) << row[0] << ' ' << row[1];
    }
}

/// The tail above the quantile, from Boost.Math in extended precision, must be p again; an error of t
/// shows in it with the factor t * density / tail.
TEST(StudentQuantileTest, TailAboveTheQuantileIsP) {
    std::mt19937_64 engine(11);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    for (int k = 0; k < 4000; ++k) {
        const double df = k % 4 == 0 ? 1.0 + uniform(engine) : std::pow(10.0, 5.0 * uniform(engine));
        const double p = 0.499 * std::pow(10.0, -5.69 * uniform(engine));
        const boost::math::students_t_distribution<long double> reference(df);
        const long double t = studentQuantile(p, df);
        const long double error = (cdf(complement(reference, t)) - p) / (t * pdf(reference, t));
        EXPECT_LT(std::abs(error), kBound) << p << ' ' << df;
    }
}

/// 1/2 - p and t are then proportional but for terms of third order.
TEST(StudentQuantileTest, IsExactNextToTheMedian) {
    for (const double df : {1.0, 1.5, 4.0, 29.0, 31.0, 1e5}) {
        const boost::math::students_t_distribution<long double> reference(df);
        for (const double distance : {1e-9, 1e-6, 1e-4}) {
            const double t = studentQuantile(0.5 - distance, df);
            const long double u = (0.5L - (0.5 - distance)) / pdf(reference, 0.0L);
            const long double cubic = u * (1 + u * u * (1 + 1.0L / df) / 6);
            EXPECT_NEAR(t, static_cast<double>(cubic), kBound * t) << distance << ' ' << df;
        }
        const double below = studentQuantile(0.49 * (1 + 1e-15), df);
        EXPECT_NEAR(below, studentQuantile(0.49, df), kBound * below) << df;
        EXPECT_EQ(studentQuantile(0.5, df), 0.0);
    }
}

TEST(StudentQuantileTest, RoundTripsThroughTheDistribution) {
    NoncentralT distribution;
    for (const double df : {1.0, 2.5, 6.0, 29.0, 30.5, 400.0, 1e6, 1e9}) {
        for (const double p : {1e-6, 0.0005, 0.025, 0.2, 0.45}) {
            EXPECT_NEAR(distribution.upper(studentQuantile(p, df), df, 0.0), p, 2e-14) << p << ' ' << df;
        }
    }
}

TEST(StudentQuantileTest, AnswersOutsideOfItsDomain) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(studentQuantile(0.975, 12.0), -studentQuantile(1.0 - 0.975, 12.0));
    EXPECT_NEAR(studentQuantile(0.025, infinity), -normalQuantile(0.025), 1e-14);
    EXPECT_EQ(studentQuantile(0.0, 5.0), infinity);
    EXPECT_EQ(studentQuantile(1.0, 5.0), -infinity);
    EXPECT_NEAR(studentQuantile(0.025, 1 - 5e-8), studentQuantile(0.025, 1.0), 1e-5);
    EXPECT_TRUE(std::isnan(studentQuantile(0.1, 0.4)));
    EXPECT_TRUE(std::isnan(studentQuantile(0.1, std::nan(""))));
    EXPECT_TRUE(std::isnan(studentQuantile(std::nan(""), 5.0)));
    for (const double p : {1e-7, 1e-20, 1e-300}) {
        for (const double df : {1.0, 10.0, 40.0, 1e9}) {
            EXPECT_GE(studentQuantile(p, df), studentQuantile(1e-6, df)) << p << ' ' << df;
        }
    }
}

/// The service answers as the functions do, whatever it was asked before.
TEST(NumericDistributionLibraryTest, ServesTheFunctions) {
    NumericDistributionLibrary library;
    NoncentralT noncentralT;
    for (const double df : {7.0, 7.0, 18.0, 7.0}) {
        for (const double p : {0.025, 0.05, 0.05, 0.025}) {
            double t = 0.0;
            library.VBDTIN(p, df, t);
            EXPECT_EQ(t, studentQuantile(p, df));
            double lower = 0.0;
            library.VBDTNDF(-t, df, 2.8, lower);
            EXPECT_EQ(lower, noncentralT.lower(-t, df, 2.8));
            double above = 0.0;
            double below = 0.0;
            library.NoncentralTTails(t, df, 2.8, above, below);
            EXPECT_EQ(above, noncentralT.upper(t, df, 2.8));
            EXPECT_EQ(below, lower);
        }
    }
    double probability = 0.0;
    double x = 0.0;
    library.VBDNORIN(0.0228, x);
    EXPECT_LT(x, 0.0);
    library.VBDNORDF(x, probability);
    EXPECT_NEAR(probability, 0.0228, 1e-16);
}

}  // namespace
}  // namespace lorvane::numerics
