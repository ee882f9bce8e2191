// Hands each service function to its numerical method.
#include "numerics/numeric_distribution_library.h"

#include "numerics/normal_distribution.h"

namespace lorvane {

void NumericDistributionLibrary::VBDNORDF(double x, double& result) { result = numerics::normalLower(x); }

void NumericDistributionLibrary::VBDNORIN(double p, double& result) { result = numerics::normalQuantile(p); }

void NumericDistributionLibrary::VBDTIN(double p, double df, double& result) {
    result = studentQuantile_(p, df);
}

void NumericDistributionLibrary::VBDTNDF(double t, double df, double lambda, double& result) {
    result = noncentralT_.lower(t, df, lambda);
}

void NumericDistributionLibrary::NoncentralTTails(double crit, double df, double lambda, double& above,
                                                  double& below) {
    const numerics::RejectionTails tails = noncentralT_.rejection(crit, df, lambda);
    above = tails.above;
    below = tails.below;
}

}  // namespace lorvane
