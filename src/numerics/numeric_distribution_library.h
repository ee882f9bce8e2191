// The distribution service of the program, on the functions of this folder.
// Knows nothing of the formulas that call it.
#pragma once

#include "numerics/noncentral_t.h"
#include "numerics/student_t.h"
#include "platform/distribution_library.h"

namespace lorvane {

/// Owns what the functions keep between calls, so each thread needs an object of its own.
class NumericDistributionLibrary final : public DistributionLibrary {
public:
    void VBDNORDF(double x, double& result) override;
    void VBDNORIN(double p, double& result) override;
    void VBDTIN(double p, double df, double& result) override;
    void VBDTNDF(double t, double df, double lambda, double& result) override;
    void NoncentralTTails(double crit, double df, double lambda, double& above, double& below) override;

private:
    numerics::StudentQuantile studentQuantile_;
    numerics::NoncentralT noncentralT_;
};

}  // namespace lorvane
