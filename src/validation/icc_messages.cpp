// The words for the verdict on the ICCs and spans.
#include "validation/icc_messages.h"

#include "base/letter_case.h"
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

bool hasTruncation(const Study& s, int level) {
    return s.isBinary() && s.BinaryType == BinaryTypes::oddsRatio && s.result.xValid &&
           s.logit.truncation(level) != Truncations::none;
}

// Blocked levels stand in the power with the dispersion of the effect, nested levels with a fixed model not
// at all.
bool powerReadsVariance(const Study& s, int level) {
    return level == s.RandomizedLevel || (level < s.RandomizedLevel && s.txtPop(level) == 0);
}

std::string whatWasShifted(const Study& s, int level) {
    const std::string name = lowerCased(s.txtName(level));
    const std::string span = fixedText(s.txtMRange(level), 4);
    if (s.IccMetric == IccMetrics::icc)
        return "the ICC of " + shortestText(s.txtICC(level)) + " for " + name +
               " could not be kept: its span of risks, " + span + ",";
    return "the span of risks of " + span + " for " + name + " could not be kept: it";
}

// The variance that would have been meant is the ICC carried to the logit scale, to first order.
std::string levelNote(const Study& s, int level) {
    const double meant = s.txtICC(level) / (s.txtPrev * (1 - s.txtPrev));
    return "At an event rate of " + shortestText(s.txtPrev) + " " + whatWasShifted(s, level) +
           " was shifted to " + fixedText(s.limits.txtLL(level), 4) + " to " +
           fixedText(s.limits.txtUL(level), 4) + ". " +
           (powerReadsVariance(s, level) ? "The power rests" : "The cell counts, not the power, rest") +
           " on the variance of that range on the logit scale, " + fixedText(s.logit.LogitV(level), 4) +
           ", where about " + fixedText(meant, 3) + " was meant. ";
}

}  // namespace

std::string truncationNote(const Study& study) {
    std::string note;
    for (int level = 2; level <= study.NumLevels; ++level) {
        if (hasTruncation(study, level))
            note += levelNote(study, level);
    }
    if (note.empty())
        return note;
    return note + "Enter limits of risks, or a smaller " +
           (study.IccMetric == IccMetrics::icc ? "ICC" : "span") + ", for the study that was meant.";
}

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
