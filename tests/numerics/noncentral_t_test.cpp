#include "numerics/noncentral_t.h"

#include <boost/math/distributions/non_central_t.hpp>
#include <boost/math/distributions/students_t.hpp>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "numerics/noncentral_t_quadrature.h"
#include "numerics/reference_table.h"

namespace lorvane::numerics {
namespace {

constexpr double kAbsoluteBound = 1e-12;
constexpr double kRelativeBound = 1e-8;

struct Point {
    double t;
    double df;
    double lambda;
};

class NoncentralTTest : public testing::Test {
protected:
    void expectTails(const Point& at, double lower, double upper) {
        const double ourLower = noncentralT_.lower(at.t, at.df, at.lambda);
        const double ourUpper = noncentralT_.upper(at.t, at.df, at.lambda);
        EXPECT_TRUE(ourLower >= 0.0 && ourLower <= 1.0 && ourUpper >= 0.0 && ourUpper <= 1.0);
        EXPECT_NEAR(ourLower, lower, kAbsoluteBound) << describe(at);
        EXPECT_NEAR(ourUpper, upper, kAbsoluteBound) << describe(at);
        if (at.df >= 4 && at.lambda <= 6 && std::abs(at.t) <= 9) {
            expectSmallTail(at, ourLower, lower);
            expectSmallTail(at, ourUpper, upper);
        }
    }

    /// Both regions against reference tails at t and at -t.
    void expectRejection(const Point& at, double above, double below) {
        const RejectionTails tails = noncentralT_.rejection(at.t, at.df, at.lambda);
        EXPECT_NEAR(tails.above, above, kAbsoluteBound) << describe(at);
        EXPECT_NEAR(tails.below, below, kAbsoluteBound) << describe(at);
        EXPECT_NEAR(tails.above + tails.below, above + below, kAbsoluteBound) << describe(at);
    }

    static void expectSmallTail(const Point& at, double ours, double reference) {
        if (reference >= 1e-9) {
            EXPECT_LT(std::abs(ours / reference - 1.0), kRelativeBound) << describe(at);
        }
    }

    static std::string describe(const Point& at) {
        std::ostringstream text;
        text.precision(17);
        text << "t " << at.t << ", df " << at.df << ", lambda " << at.lambda;
        return text.str();
    }

    NoncentralT noncentralT_;
};

TEST_F(NoncentralTTest, MatchesReferenceTables) {
    for (const char* table : {"noncentral_t.csv", "noncentral_t_typical.csv"}) {
        const auto rows = test::readReferenceTable(table);
        ASSERT_GT(rows.size(), 700u);
        for (const auto& row : rows) {
            expectTails({row[0], row[1], row[2]}, row[3], row[4]);
        }
    }
}

TEST_F(NoncentralTTest, RejectionMatchesReferencePairs) {
    const auto rows = test::readReferenceTable("noncentral_t_typical.csv");
    int pairs = 0;
    for (const auto& positive : rows) {
        const auto negative = std::find_if(rows.begin(), rows.end(), [&](const auto& row) {
            return row[0] == -positive[0] && row[1] == positive[1] && row[2] == positive[2];
        });
        if (positive[0] > 0 && negative != rows.end()) {
            ++pairs;
            expectRejection({positive[0], positive[1], positive[2]}, positive[4], (*negative)[3]);
        }
    }
    EXPECT_GE(pairs, 30);
}

/// Points of the whole domain, most of them where the distribution function is neither 0 nor 1.
std::vector<Point> pointsOfDomain(int count) {
    std::mt19937_64 engine(20240917);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    std::normal_distribution<double> normal;
    std::vector<Point> points;
    for (int k = 0; k < count; ++k) {
        const double df = std::pow(10.0, uniform(engine) * (k % 2 == 0 ? 2.0 : 9.0));
        const double lambda = (k % 5 < 2 ? 100.0 : 8.0) * uniform(engine);
        const double chiSquare = std::gamma_distribution<double>(0.5 * df, 2.0)(engine);
        const double likely = (lambda + 2.5 * normal(engine)) / std::sqrt(chiSquare / df);
        const double anywhere = std::pow(10.0, 7.0 * uniform(engine) - 3.0) * (k % 6 < 3 ? 1.0 : -1.0);
        points.push_back({k % 3 == 0 ? anywhere : likely, df, lambda});
    }
    return points;
}

TEST_F(NoncentralTTest, MatchesQuadratureOverWholeDomain) {
    for (const Point& at : pointsOfDomain(2500)) {
        const test::ExtendedTails here = test::noncentralTByQuadrature(at.t, at.df, at.lambda);
        const test::ExtendedTails mirrored = test::noncentralTByQuadrature(-at.t, at.df, at.lambda);
        expectTails(at, here.lower, here.upper);
        expectRejection({std::abs(at.t), at.df, at.lambda}, std::min(here.upper, mirrored.upper),
                        std::min(here.lower, mirrored.lower));
    }
}

// Where lambda <= 30, df <= 1e6 and t is within 4 of lambda, Boost.Math itself is right to 3e-13.
TEST_F(NoncentralTTest, MatchesBoostWhereItIsExact) {
    std::mt19937_64 engine(5);
    std::uniform_real_distribution<double> uniform(0.0, 1.0);
    for (int k = 0; k < 2000; ++k) {
        const double df = std::pow(10.0, 6.0 * uniform(engine));
        const double lambda = (k % 2 == 0 ? 30.0 : 6.0) * uniform(engine);
        const double t = lambda + 8.0 * uniform(engine) - 4.0;
        const boost::math::non_central_t boost(df, lambda);
        expectTails({t, df, lambda}, cdf(boost, t), cdf(complement(boost, t)));
    }
}

TEST_F(NoncentralTTest, WithoutNoncentralityIsCentralT) {
    for (const double df : {1.0, 2.0, 3.5, 5.9, 30.0, 1e4, 1e9}) {
        const boost::math::students_t central(df);
        for (const double t : {-400.0, -12.7, -4.3, -1.0, 0.0, 1e-3, 0.7, 1.96, 6.0, 63.0}) {
            expectTails({t, df, 0.0}, cdf(central, t), cdf(complement(central, t)));
        }
        EXPECT_DOUBLE_EQ(noncentralT_.lower(0.0, df, 0.0), 0.5);
    }
}

TEST_F(NoncentralTTest, TailsMirrorAndAddUp) {
    for (const Point& at : pointsOfDomain(2000)) {
        const double lower = noncentralT_.lower(at.t, at.df, at.lambda);
        EXPECT_NEAR(lower + noncentralT_.upper(at.t, at.df, at.lambda), 1.0, 1e-15) << describe(at);
        EXPECT_EQ(lower, noncentralT_.upper(-at.t, at.df, -at.lambda)) << describe(at);
    }
}

TEST_F(NoncentralTTest, ExtremesAnswerTheirLimits) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double df : {1.0, 2.0, 7.0, 1e3, 1e9, 1e30, infinity}) {
        for (const double lambda : {0.0, 3.0, 100.0}) {
            for (const double huge : {1e14, 1e100, 1e300, infinity}) {
                expectTails({huge, df, lambda}, 1.0, 0.0);
                expectTails({-huge, df, lambda}, 0.0, 1.0);
                expectRejection({huge, df, lambda}, 0.0, 0.0);
            }
            const double atZero = 0.5 * std::erfc(lambda / std::sqrt(2.0));
            expectTails({0.0, df, lambda}, atZero, 1.0 - atZero);
        }
        expectTails({5.0, df, infinity}, 0.0, 1.0);
        expectRejection({5.0, df, infinity}, 1.0, 0.0);
    }
    EXPECT_TRUE(std::isnan(noncentralT_.lower(1.0, 0.0, 1.0)));
    EXPECT_TRUE(std::isnan(noncentralT_.upper(1.0, -3.0, 1.0)));
    EXPECT_TRUE(std::isnan(noncentralT_.lower(std::nan(""), 5.0, 1.0)));
    EXPECT_TRUE(std::isnan(noncentralT_.rejection(2.0, 5.0, std::nan("")).above));
}

/// Each kept quadrature is at its worst for its least df and at its greatest steepness. There it must be
/// exact, and the value must not jump where another takes over.
TEST_F(NoncentralTTest, QuadraturesAreExactToTheirBounds) {
    constexpr double nudge = 1e-15;
    for (const double df : {1.0, 2.0, 2.1, 6.0, 6.1, 12.0, 12.1, 40.0, 40.1, 900.0}) {
        for (const double steepness : {0.12, 0.35, 0.5, 1.0, 2.2}) {
            const double t = steepness * std::sqrt(2.0 * df);
            for (const double lambda : {0.0, 0.5, 1.5, 3.0, 4.5, 6.0, 0.8 * t, t, 1.3 * t}) {
                const Point inside{t * (1.0 - nudge), df * (1.0 + nudge), lambda};
                const double before = noncentralT_.lower(inside.t, inside.df, lambda);
                EXPECT_NEAR(before, noncentralT_.lower(t * (1.0 + nudge), inside.df, lambda), 1e-13)
                    << describe(inside);
                EXPECT_NEAR(before, noncentralT_.lower(inside.t, df * (1.0 - nudge), lambda), 1e-13)
                    << describe(inside);
                for (const double side : {-1.0, 1.0}) {
                    const auto exact = test::noncentralTByQuadrature(side * inside.t, inside.df, lambda);
                    expectTails({side * inside.t, inside.df, lambda}, exact.lower, exact.upper);
                }
            }
        }
    }
}

/// More df than the object keeps rules for, asked in another order and by a fresh object.
TEST_F(NoncentralTTest, AnswersDoNotDependOnEarlierCalls) {
    std::vector<Point> points = pointsOfDomain(1500);
    std::vector<double> answers;
    for (const Point& at : points) {
        answers.push_back(noncentralT_.lower(at.t, at.df, at.lambda));
    }
    for (std::size_t k = points.size(); k-- > 0;) {
        NoncentralT fresh;
        const Point& at = points[k];
        EXPECT_EQ(noncentralT_.lower(at.t, at.df, at.lambda), answers[k]) << describe(at);
        EXPECT_EQ(fresh.lower(at.t, at.df, at.lambda), answers[k]) << describe(at);
    }
}

}  // namespace
}  // namespace lorvane::numerics
