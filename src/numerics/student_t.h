// The inverse of the central t distribution. Knows nothing of noncentrality and of tests.
#pragma once

namespace lorvane::numerics {

/// The t with P(T > t) = p. df real, 1 to 1e9 and beyond; p 1e-6 to 0.5, relative error below 1e-12;
/// p above 0.5 gives the negative quantile of 1 - p. Beyond that domain: p below 1e-10 counts as 1e-10,
/// but p <= 0 and p >= 1 answer plus and minus infinity; df from 0.5 to 1 is served too, so that a df just
/// below 1 by rounding has an answer; NaN for df < 0.5 and for NaN. Method: fourth-order iteration on the
/// tail in v = sqrt(ln(1 + t^2 / df)), see student_t.cpp.
double studentQuantile(double p, double df);

/// studentQuantile that remembers its last question, so that asking it again costs nothing.
class StudentQuantile {
public:
    double operator()(double p, double df);

private:
    double p_ = 0.5;
    double df_ = 1.0;
    double quantile_ = 0.0;
};

}  // namespace lorvane::numerics
