// The inverse of the central t distribution.
//
// In v = sqrt(ln(1 + t^2 / df)) the tail is nearly normal:
//     P(T > t) = C * integral from v of exp(-N y^2 / 2) H(y^2) dy,   N = df - 1/2,
//     H(q) = sqrt((q / 2) / sinh(q / 2)) = 1 - q^2 / 48 + ...
// Integrated term by term this is an expansion in 1 / N^2, exact to double precision from N = 30 on.
// Smaller df are led there by the recurrence of the incomplete beta function in its first parameter,
//     I_x(a, 1/2) = I_x(a + 1, 1/2) + x^a sqrt(1 - x) C(a) / a,   a = df / 2, x = exp(-v^2),
// all terms of which are positive.
#include "numerics/student_t.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>

#include "numerics/normal_distribution.h"

namespace lorvane::numerics {
namespace {

constexpr double kInverseRootTwoPi = std::numbers::inv_sqrtpi / std::numbers::sqrt2;

/// The power series of H in q^2.
constexpr std::array<double, 7> kSeriesOfH{1.0,
                                           -1.0 / 48,
                                           1.0 / 2560,
                                           -61.0 / 7741440,
                                           1261.0 / 7431782400,
                                           -79.0 / 20761804800,
                                           66643.0 / 761775532277760};

/// 1 / (2j + 1)!!.
constexpr std::array<double, 12> kInverseOddFactorials = [] {
    std::array<double, 12> inverses{};
    double factorial = 1.0;
    for (std::size_t j = 0; j < inverses.size(); ++j) {
        factorial *= static_cast<double>(2 * j + 1);
        inverses[j] = 1.0 / factorial;
    }
    return inverses;
}();

/// A polynomial with coefficients from the constant upwards; two independent sums, of the even and of
/// the odd powers, keep the processor busy.
template <std::size_t terms>
double polynomial(const std::array<double, terms>& coefficients, double x) {
    static_assert(terms % 2 == 0);
    const double x2 = x * x;
    double even = 0.0;
    double odd = 0.0;
    for (std::size_t n = terms; n > 0; n -= 2) {
        even = even * x2 + coefficients[n - 2];
        odd = odd * x2 + coefficients[n - 1];
    }
    return even + x * odd;
}

/// The upper tail of the central t distribution for one df, as a function of v.
class TailInV {
public:
    explicit TailInV(double df);

    /// P(T > t), its density in v, and the slope and curvature of the logarithm of that density.
    struct Values {
        double tail;
        double density;
        double slope;
        double curvature;
    };
    Values at(double v) const;

    /// C, the density in v at v = 0.
    double constant() const { return constant_; }

private:
    static constexpr double kExpansionFromN = 30.0;
    static constexpr std::size_t kMostSteps = 16;
    static constexpr std::size_t kPolynomialTerms = 2 * (kSeriesOfH.size() - 1);

    void prepareExpansion();
    void prepareRecurrence();
    double expansionAt(double z) const;

    double halfDf_;
    double n_;
    std::size_t steps_;  // of the recurrence
    double raisedN_;     // N after them
    double rootOfRaisedN_;
    double constant_ = 0.0;
    std::array<double, kPolynomialTerms> expansion_{};  // in z^2, of the expansion
    std::array<double, kMostSteps> terms_{};            // of the recurrence, by powers of x
};

TailInV::TailInV(double df)
    : halfDf_(0.5 * df), n_(df - 0.5),
      steps_(n_ >= kExpansionFromN ? 0 : static_cast<std::size_t>(std::ceil(0.5 * (kExpansionFromN - n_)))),
      raisedN_(n_ + 2.0 * static_cast<double>(steps_)), rootOfRaisedN_(std::sqrt(raisedN_)) {
    prepareExpansion();
    prepareRecurrence();
}

/// The integral of H times normal density from z is, divided by the whole, Q(z) + density(z) z P(z^2).
/// The moment of order 4k above z contributes (4k - 1)!! / (2j + 1)!! to the j-th coefficient, j < 2k.
void TailInV::prepareExpansion() {
    std::array<double, kSeriesOfH.size()> parts{};
    double moment = 1.0;
    double whole = 0.0;
    const double ratio = 1.0 / (raisedN_ * raisedN_);
    for (std::size_t k = 0; k < parts.size(); ++k) {
        parts[k] = kSeriesOfH[k] * moment;
        whole += parts[k];
        const auto order = static_cast<double>(4 * k + 1);
        moment *= order * (order + 2.0) * ratio;
    }
    double tailOfParts = 0.0;
    for (std::size_t k = parts.size() - 1; k > 0; --k) {
        tailOfParts += parts[k] / whole;
        expansion_[2 * k - 1] = tailOfParts * kInverseOddFactorials[2 * k - 1];
        expansion_[2 * k - 2] = tailOfParts * kInverseOddFactorials[2 * k - 2];
    }
    constant_ = rootOfRaisedN_ * kInverseRootTwoPi / whole;
}

/// Leads C down from the raised df to df and collects the terms on the way.
void TailInV::prepareRecurrence() {
    for (std::size_t k = steps_; k-- > 0;) {
        const double a = halfDf_ + static_cast<double>(k);
        terms_[k] = constant_ * (1.0 / (a + 0.5));
        constant_ = terms_[k] * a;
    }
}

double TailInV::expansionAt(double z) const {
    const double z2 = z * z;
    return normalUpper(z) + kInverseRootTwoPi * std::exp(-0.5 * z2) * z * polynomial(expansion_, z2);
}

/// The first derivative of ln H(v^2) in v, divided by v, and the second; x = exp(-q).
struct LogDerivatives {
    double slope;
    double curvature;
};

LogDerivatives logDerivativesOfH(double q, double x, double oneMinusX) {
    constexpr double leadingTermSuffices = 0.1;
    if (q < leadingTermSuffices) {
        return {-q / 12.0, -q / 4.0};
    }
    const double r = 1.0 / q;
    const double s = 1.0 / oneMinusX;
    const double slope = r - 0.5 * (1.0 + x) * s;
    return {slope, slope + 2.0 * (q * x * s * s - r)};
}

TailInV::Values TailInV::at(double v) const {
    const double q = v * v;
    const double oneMinusX = -std::expm1(-q);
    const double x = 1.0 - oneMinusX;
    const double root = std::sqrt(oneMinusX);
    const double power = std::exp(-halfDf_ * q);
    const double terms = steps_ == 0 ? 0.0 : polynomial(terms_, x);
    const LogDerivatives ofH = logDerivativesOfH(q, x, oneMinusX);
    return {0.5 * root * power * terms + expansionAt(v * rootOfRaisedN_), constant_ * power * v / root,
            v * (ofH.slope - n_), ofH.curvature - n_};
}

/// A first v, exact for large df, near enough for any: v sqrt(N) / z tends to the right limits for
/// z to infinity, for z to 0 and, with the first term of the expansion in 1 / N^2, for N to infinity.
double startingV(double z, double df) {
    const double n = df - 0.5;
    const double z2 = z * z;
    return z / std::sqrt(n + 0.5 * (z2 + 3.0) / (12.0 * n + 5.0 / df + z2));
}

/// t >= 0 for a p just below 1/2, from the series of t in powers of (1/2 - p) / density at 0.
double quantileNearMedian(double p, double df) {
    const double density = TailInV(df).constant() / std::sqrt(df);
    const double u = (0.5 - p) / density;
    const double u2 = u * u;
    const double r = 1.0 / df;
    const double c3 = (1.0 + r) / 6.0;
    const double c5 = (7.0 + r * (8.0 + r)) / 120.0;
    const double c7 = (127.0 + r * (135.0 + r * (9.0 + r))) / 5040.0;
    return u * (1.0 + u2 * (c3 + u2 * (c5 + u2 * c7)));
}

/// What to add to v, for which `error` = (tail - p) / density: Householder's correction of fourth order.
double correction(const TailInV::Values& at, double error) {
    const double s = at.slope * error;
    return error * (1.0 - s * 0.5 + s * s / 3.0 - at.curvature * error * error / 6.0);
}

double upperQuantile(double p, double df) {
    constexpr double nearMedian = 0.49;
    constexpr double quarticIsNegligible = 6e-4;
    constexpr int mostRounds = 20;
    if (p > nearMedian) {
        return quantileNearMedian(p, df);
    }
    const double z = -normalQuantile(p);
    const double scale = std::sqrt(df) * (1.0 + z);
    const TailInV tail(df);
    double v = startingV(z, df);
    double error = 1.0;
    for (int round = 0; round < mostRounds && std::abs(error) * scale > quarticIsNegligible; ++round) {
        const TailInV::Values values = tail.at(v);
        error = (values.tail - p) / values.density;
        v += correction(values, error);
    }
    return std::sqrt(df * std::expm1(v * v));
}

}  // namespace

double studentQuantile(double p, double df) {
    constexpr double smallestDf = 0.5;
    if (std::isnan(p) || !(df >= smallestDf)) {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (p <= 0.0 || p >= 1.0) {
        return p <= 0.0 ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity();
    }
    constexpr double normalFromDf = 1e17;
    constexpr double smallestTail = 1e-10;  // the expansion is not made for less
    const double tail = std::max(std::min(p, 1.0 - p), smallestTail);
    const double quantile = upperQuantile(tail, std::min(df, normalFromDf));
    return p <= 0.5 ? quantile : -quantile;
}

double StudentQuantile::operator()(double p, double df) {
    if (p != p_ || df != df_) {
        p_ = p;
        df_ = df;
        quantile_ = studentQuantile(p, df);
    }
    return quantile_;
}

}  // namespace lorvane::numerics
