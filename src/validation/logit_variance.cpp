// The range of risks of one level and its variance on the logit scale.
#include "validation/logit_variance.h"

#include <cmath>

#include "base/arithmetic_fault.h"
#include "base/letter_case.h"
#include "base/number_text.h"
#include "engine/effect_metrics.h"

namespace lorvane {

namespace {

void fail(LogitRange& range, LogitErrors code) {
    range.ok = false;
    range.code = code;
}

void checkLimits(LogitRange& range, double prevalence) {
    const bool dispersed = range.LL != range.UL;
    if (range.LL <= 0)
        fail(range, LogitErrors::includesZero);
    if (range.UL >= 1)
        fail(range, LogitErrors::includesOne);
    if (dispersed && range.LL >= prevalence)
        fail(range, LogitErrors::excludesPrevalence);
    if (dispersed && range.UL <= prevalence)
        fail(range, LogitErrors::excludesPrevalence);
}

// The lower limit is looked at first. A span that is too wide for both limits counts as cut at the upper one.
void placeSpan(LogitRange& range, double span, double prevalence, double delta) {
    range.LL = prevalence - span / 2;
    range.UL = prevalence + span / 2;
    if (delta > range.LL) {
        range.LL = delta;
        range.UL = delta + span;
        range.truncation = Truncations::atLowerLimit;
    }
    if (1 - delta < range.UL) {
        range.UL = 1 - delta;
        range.LL = range.UL - span;
        range.truncation = Truncations::atUpperLimit;
        if (range.LL < delta)
            fail(range, LogitErrors::spanTooWide);
    }
    if (prevalence <= delta)
        fail(range, LogitErrors::prevalenceTooLow);
    if (prevalence >= 1 - delta)
        fail(range, LogitErrors::prevalenceTooHigh);
    if (range.ok && 1 - 2 * delta <= span)
        fail(range, LogitErrors::spanTooWide);
}

}  // namespace

LogitRange GetLogitV(const Study& study, double span, double prevalence, const LogitRange& range) {
    LogitRange result{range.LL, range.UL, range.variance};
    if (study.IccMetric == IccMetrics::span && study.limits.RangeMode == RangeModes::limits)
        checkLimits(result, prevalence);
    else
        placeSpan(result, span, prevalence, study.limits.txtDelta);
    if (!result.ok)
        return result;
    const double width = Logit(result.UL) - Logit(result.LL);
    result.variance = width * width / 16;
    requireFinite("GetLogitV", {result.variance});
    return result;
}

std::string GetErrMsg(const Study& study, int level) {
    const std::string name = lowerCased(study.txtName(level));
    const double delta = study.limits.txtDelta;
    switch (study.logit.error(level)) {
    case LogitErrors::spanTooWide:
        return "The span of risks for " + name + " cannot exceed " + fixedText(1 - 2 * delta, 3);
    case LogitErrors::prevalenceTooLow:
        return "The mean prevalence must be greater than " + fixedText(delta, 4);
    case LogitErrors::prevalenceTooHigh:
        return "The mean prevalence must be less than " + fixedText(1 - delta, 4);
    case LogitErrors::includesZero:
        return "The range of risks for " + name + " cannot include 0.0";
    case LogitErrors::includesOne:
        return "The range of risks for " + name + " cannot include 1.0";
    case LogitErrors::excludesPrevalence:
        return "The range of risks for " + name + " must include the overall prevalence, " +
               fixedText(study.txtPrev, 3);
    case LogitErrors::cumulativeTooWide:
        return "The cumulative span of risks cannot exceed 1.0";
    case LogitErrors::none:
        break;
    }
    return "";
}

}  // namespace lorvane
