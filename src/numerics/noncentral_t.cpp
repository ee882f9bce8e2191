// Chooses the quadrature and the side to sum for the noncentral t distribution.
#include "numerics/noncentral_t.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "numerics/chi_tail_mean.h"
#include "numerics/normal_tail_table.h"

namespace lorvane::numerics {
namespace {

constexpr double kNormalFromDf = 1e17;  // S is 1 to double precision
constexpr double kHugeShift = 1e6;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// The kept rule of fewest nodes that is exact enough for |t| and df, if any. What counts is the steepness
/// t / sqrt(2 df) of t S in the variable of the rule: the error of n nodes of Gauss falls as
/// (steepness^2 / (1 + steepness^2))^n, that of a step h as exp(-2 pi^2 / (h^2 (1 + steepness^2))). The
/// bounds are measured: up to them the absolute error stays below 5e-14 (Even60) and 1e-14 (the others), the
/// relative error of a tail of 1e-9 below 1e-9.
std::optional<ChiRuleGrade> gradeFor(double t, double df) {
    const double squaredSteepness = t * t / (2.0 * df);
    if (squaredSteepness <= 0.12 * 0.12 && df >= 40.0) {
        return ChiRuleGrade::Gauss8;
    }
    if (squaredSteepness <= 0.35 * 0.35 && df >= 12.0) {
        return ChiRuleGrade::Gauss12;
    }
    if (squaredSteepness <= 0.5 * 0.5 && df >= 6.0) {
        return ChiRuleGrade::Gauss20;
    }
    if (squaredSteepness <= 1.0 * 1.0 && df >= 2.0) {
        return ChiRuleGrade::Even36;
    }
    if (squaredSteepness <= 2.2 * 2.2 && df >= 1.0) {
        return ChiRuleGrade::Even60;
    }
    return std::nullopt;
}

double ruleMeanOfUpperTail(const ChiRule& rule, double slope, double shift) {
    double sum = 0.0;
    for (std::size_t k = 0; k < static_cast<std::size_t>(rule.nodes); ++k) {
        sum += rule.weight[k] * tabledUpperTail(slope * rule.scale[k] + shift);
    }
    return sum;
}

bool isUndefined(double t, double df, double lambda) {
    return !(df > 0.0) || std::isnan(t) || std::isnan(lambda);
}

bool isLimiting(double t, double lambda) { return std::isinf(t) || std::abs(lambda) > kHugeShift; }

/// P(T <= t) where t or lambda leaves nothing to compute.
double limitingLower(double t, double lambda) {
    return std::isinf(t) ? (t > 0.0 ? 1.0 : 0.0) : (lambda < 0.0 ? 1.0 : 0.0);
}

/// The means over S that one |t| and one df call for, with a kept rule if there is one good enough.
class TailMeans {
public:
    TailMeans(ChiRuleCache& rules, double t, double df) : df_(std::min(df, kNormalFromDf)) {
        if (const auto grade = gradeFor(t, df_)) {
            rule_ = &rules.find(df_, *grade);
        }
    }

    /// P(T <= t), as the sum itself where it is the smaller tail, which keeps its relative accuracy, and
    /// as the complement of the other tail where it is the larger.
    double lower(double t, double lambda) const {
        return t > lambda ? 1.0 - meanOfUpperTail(t, -lambda) : meanOfUpperTail(-t, lambda);
    }

private:
    double meanOfUpperTail(double slope, double shift) const {
        const double mean = rule_ != nullptr ? ruleMeanOfUpperTail(*rule_, slope, shift)
                                             : chiMeanOfUpperTail(slope, shift, df_);
        return std::min(mean, 1.0);
    }

    double df_;
    const ChiRule* rule_ = nullptr;
};

}  // namespace

double NoncentralT::lower(double t, double df, double lambda) {
    if (isUndefined(t, df, lambda)) {
        return kNaN;
    }
    if (isLimiting(t, lambda)) {
        return limitingLower(t, lambda);
    }
    return TailMeans(rules_, t, df).lower(t, lambda);
}

// -T is a noncentral t of noncentrality -lambda, which makes a lower tail of every upper one.

double NoncentralT::upper(double t, double df, double lambda) { return lower(-t, df, -lambda); }

RejectionTails NoncentralT::rejection(double crit, double df, double lambda) {
    if (isUndefined(crit, df, lambda)) {
        return {kNaN, kNaN};
    }
    if (isLimiting(crit, lambda)) {
        return {limitingLower(-crit, -lambda), limitingLower(-crit, lambda)};
    }
    const TailMeans means(rules_, crit, df);
    return {means.lower(-crit, -lambda), means.lower(-crit, lambda)};
}

}  // namespace lorvane::numerics
