// What the nine routines for binary outcomes share.
#include "engine/binary_frame.h"

#include <cmath>

#include "base/arithmetic_fault.h"
#include "engine/effect_metrics.h"

namespace lorvane {

namespace {

ScaledIcc rescaled(const Study& s, const EventRates& rates, double rate) {
    const double factor = u(rates.p) / u(rate);
    return {s.txtICC(2) * factor, s.txtICC(3) * factor, s.txtICC(4) * factor};
}

}  // namespace

EventRates eventRates(const Study& s, double NT, double NC) {
    const double p = s.txtPrev;
    const double q = treatedRateOfOddsRatio(p, s.ComputedOR);
    return {p, q, s.ComputedOR, (NT * q + NC * p) / (NC + NT), NT, NC};
}

ScaledIcc enteredIcc(const Study& s) { return {s.txtICC(2), s.txtICC(3), s.txtICC(4)}; }

ScaledIcc iccOfTreatedRate(const Study& s, const EventRates& rates) { return rescaled(s, rates, rates.q); }

ScaledIcc iccOfPooledRate(const Study& s, const EventRates& rates) { return rescaled(s, rates, rates.pbar); }

ArmSizes treatedSizes(const Study& s) { return {s.txtNT(1), s.txtNT(2), s.txtNT(3)}; }

ArmSizes controlSizes(const Study& s) { return {s.txtNC(1), s.txtNC(2), s.txtNC(3)}; }

double noDesignEffect(const Study&, const ArmSizes&, const ScaledIcc&) { return 1; }

void postRiskDifference(Study& s, const EventRates& r, DesignEffect E, double W, const char* routine) {
    const ScaledIcc iP = iccOfPooledRate(s, r);
    const ScaledIcc iT = iccOfTreatedRate(s, r);
    const ArmSizes treated = treatedSizes(s);
    const ArmSizes control = controlSizes(s);

    const double pooled = E(s, control, iP) * u(r.pbar) / r.NC + E(s, treated, iP) * u(r.pbar) / r.NT + W;
    const double separate =
        E(s, treated, iT) * u(r.q) / r.NT + E(s, control, enteredIcc(s)) * u(r.p) / r.NC + W;
    const double lambda = (r.q - r.p) / std::sqrt(separate);
    requireFinite(routine, {r.q, r.pbar, pooled, separate, lambda});

    s.result.txtBinaryES = r.q - r.p;
    s.result.xLambda = lambda;
    s.result.txtVarPooled = pooled;
    s.result.txtVarSep = separate;
}

void postOddsRatio(Study& s, const EventRates& r, double designTerms, const char* routine) {
    const double var = 1 / (r.NT * r.q * (1 - r.q)) + 1 / (r.NC * r.p * (1 - r.p)) + designTerms;
    const double lambda = std::log(r.OR) / std::sqrt(var);
    requireFinite(routine, {r.q, r.pbar, var, lambda});
    s.result.xLambda = lambda;
}

void postDf(Study& s, const TestDf& df) {
    if (df)
        s.result.xdf = *df;
}

}  // namespace lorvane
