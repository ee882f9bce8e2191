// The words for the verdict on the ICCs and spans.
#include "validation/icc_messages.h"

#include "base/number_text.h"
#include "validation/logit_variance.h"

namespace lorvane {

namespace {

std::string effectText(const Study& s) {
    return s.BinaryType == BinaryTypes::oddsRatio ? "There is a problem with the odds ratio"
                                                  : "There is a problem with the risk difference";
}

std::string spanText(const Study& s, int level) {
    const bool oddsRatio = s.BinaryType == BinaryTypes::oddsRatio;
    const std::string limit = oddsRatio ? fixedText(1 - 2 * s.limits.txtDelta, 4) : "1.0";
    return "The span for risks across " + s.txtName(level) + " must be less than " + limit +
           ", and ICC must be less than " + fixedText(MaxICC(s), 4);
}

std::string truncationText(const Study& s, int level) {
    const bool lower = s.logit.truncation(level) == Truncations::atLowerLimit;
    const double limit = lower ? s.limits.txtDelta : 1 - s.limits.txtDelta;
    return "The span of risks for " + lowerCased(s.txtName(level)) + " has been truncated at " +
           fixedText(limit, 4);
}

}  // namespace

std::string iccMessageText(const Study& study, const IccVerdict& verdict) {
    switch (verdict.message) {
    case IccMessage::none:
        return "";
    case IccMessage::effectAtFault:
        return effectText(study);
    case IccMessage::spanReachesOne:
        return spanText(study, verdict.level);
    case IccMessage::logitAtFault:
        return GetErrMsg(study, verdict.level);
    case IccMessage::individualsHaveNoSpan:
        return "The span for " + study.txtName(1) + " must exceed 0.001";
    case IccMessage::sumOutOfRange:
        return "The sum of the ICCs must fall in the range of 0 to 0.99";
    case IccMessage::treatedSumOutOfRange:
        return "The implied ICCs for the " + study.treatedName() + " group must sum to less than 1.0";
    case IccMessage::truncated:
        return truncationText(study, verdict.level);
    }
    return "";
}

}  // namespace lorvane
