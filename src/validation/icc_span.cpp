// ICC and span of every level: the conversions and the verdict.
#include "validation/icc_span.h"

#include <algorithm>
#include <cmath>

#include "base/arithmetic_fault.h"
#include "engine/effect_check.h"
#include "engine/effect_metrics.h"
#include "validation/logit_variance.h"

namespace lorvane {

namespace {

constexpr double largestSumOfIcc = 0.99;
constexpr double smallestDelta = 0.0001;
constexpr double largestDelta = 0.1;
constexpr double smallestSpanOfIndividuals = 0.001;

double square(double x) { return x * x; }

double sumOfIcc(const Study& s) {
    double sum = 0;
    for (int level = 2; level <= s.NumLevels; ++level)
        sum += s.txtICC(level);
    return sum;
}

void trustAll(OutcomeDispersion& outcome) {
    outcome.ValidICC.fill(true);
    outcome.ShowICC.fill(true);
    outcome.ShowSpan.fill(true);
}

// Means, span entered: each level's share of the total variance, level 1 included. Without any span the ICCs
// are 0, and the verdict on level 1 tells why.
void iccOfMeans(Study& s) {
    double total = 0;
    for (int level = 1; level <= s.NumLevels; ++level)
        total += square(s.txtMRange(level) / spanOfOneSd);
    for (int level = 2; level <= s.NumLevels; ++level)
        s.txtICC(level) = total == 0 ? 0 : square(s.txtMRange(level) / spanOfOneSd) / total;
}

// Means, ICC entered: level 1's span is the scale, and the other spans follow from the shares.
void spanOfMeans(Study& s) {
    s.txtSD = s.txtMRange(1) / spanOfOneSd;
    const double total = std::sqrt(square(s.txtSD) / (1 - sumOfIcc(s)));
    for (int level = 2; level <= s.NumLevels; ++level)
        s.txtMRange(level) = spanOfOneSd * std::sqrt(s.txtICC(level)) * total;
    s.txtMRange(1) = spanOfOneSd * s.txtSD;
}

void writeLogit(Study& s, int level, double span) {
    const LogitRange earlier{s.limits.txtLL(level), s.limits.txtUL(level), s.logit.LogitV(level)};
    const LogitRange range = GetLogitV(s, span, s.txtPrev, earlier);
    s.limits.txtLL(level) = range.LL;
    s.limits.txtUL(level) = range.UL;
    s.limits.txtVariance(level) = range.variance;
    s.logit.LogitV(level) = range.variance;
    s.logit.ok(level) = range.ok;
    s.logit.error(level) = range.code;
    s.logit.truncation(level) = range.truncation;
}

// Binary, span or limits entered: each level against the binomial variance, none depending on another.
void iccOfRisks(Study& s) {
    for (int level = 2; level <= s.NumLevels; ++level) {
        const double span = s.limits.RangeMode == RangeModes::limits
                                ? s.limits.txtUL(level) - s.limits.txtLL(level)
                                : s.txtMRange(level);
        s.txtICC(level) = square(span / spanOfOneSd) / (s.txtPrev * (1 - s.txtPrev));
        writeLogit(s, level, s.txtMRange(level));
    }
}

// Binary, ICC entered. The spans are written after all levels have been worked out.
void spanOfRisks(Study& s) {
    const double sd = std::sqrt(s.txtPrev * (1 - s.txtPrev));
    PerLevel<double> span;
    for (int level = 2; level <= s.NumLevels; ++level) {
        span(level) = spanOfOneSd * std::sqrt(s.txtICC(level)) * sd;
        requireFinite("SynchICC", {span(level)});
        writeLogit(s, level, span(level));
    }
    for (int level = 2; level <= s.NumLevels; ++level)
        s.txtMRange(level) = span(level);
}

void convert(Study& s) {
    const bool spanEntered = s.IccMetric == IccMetrics::span;
    if (s.isMeans())
        spanEntered ? iccOfMeans(s) : spanOfMeans(s);
    else
        spanEntered ? iccOfRisks(s) : spanOfRisks(s);
    for (int level = 2; level <= s.NumLevels; ++level)
        requireFinite("SynchICC", {s.txtICC(level), s.txtMRange(level)});
}

// The first message stays; a flag is cleared whether its message is told or not.
class Verdict {
public:
    explicit Verdict(Study& study) : s_(study) {}

    IccVerdict judge();

private:
    void say(IccMessage message, int level = 0);
    void judgeEffect();
    void judgeRisks();
    void judgeIndividuals();
    void judgeSums();
    void tellTruncation();
    void summarise();
    void clearAboveIndividuals();

    Study& s_;
    IccVerdict verdict_;
};

void Verdict::say(IccMessage message, int level) {
    if (verdict_.message == IccMessage::none) {
        verdict_.message = message;
        verdict_.level = level;
    }
}

IccVerdict Verdict::judge() {
    judgeEffect();
    if (s_.isBinary())
        judgeRisks();
    else
        judgeIndividuals();
    judgeSums();
    tellTruncation();
    summarise();
    return verdict_;
}

// A risk ratio and two risks have no words of their own.
void Verdict::judgeEffect() {
    if (s_.result.ValidES)
        return;
    s_.outcome.ValidICC(0) = false;
    s_.outcome.ShowICC.fill(false);
    if (s_.BinaryType == BinaryTypes::oddsRatio || s_.BinaryType == BinaryTypes::riskDifference)
        say(IccMessage::effectAtFault);
}

void Verdict::judgeRisks() {
    const bool oddsRatio = s_.BinaryType == BinaryTypes::oddsRatio;
    for (int level = 2; level <= s_.NumLevels; ++level) {
        if (s_.txtMRange(level) >= 1.0) {
            s_.outcome.ValidICC(level) = false;
            if (oddsRatio || s_.BinaryType == BinaryTypes::riskDifference)
                say(IccMessage::spanReachesOne, level);
        }
        if (oddsRatio && !s_.logit.ok(level)) {
            const LogitErrors code = s_.logit.error(level);
            s_.outcome.ValidICC(level) = false;
            say(IccMessage::logitAtFault, level);
            if (code == LogitErrors::prevalenceTooLow || code == LogitErrors::prevalenceTooHigh)
                verdict_.offerDelta = true;
        }
    }
}

void Verdict::judgeIndividuals() {
    if (s_.txtMRange(1) >= smallestSpanOfIndividuals)
        return;
    s_.outcome.ValidICC(1) = false;
    s_.outcome.ShowICC.fill(false);
    say(IccMessage::individualsHaveNoSpan, 1);
}

void Verdict::clearAboveIndividuals() {
    for (int level = 2; level <= highestLevel; ++level)
        s_.outcome.ValidICC(level) = false;
}

void Verdict::judgeSums() {
    const bool effectIsGood = s_.result.ValidES;
    verdict_.sumIsGood = effectIsGood && GetOkICC(s_);
    if (!verdict_.sumIsGood) {
        clearAboveIndividuals();
        s_.outcome.ShowSpan.fill(false);
        say(IccMessage::sumOutOfRange);
    }
    if (!effectIsGood || !GetOkICCTreatment(s_)) {
        clearAboveIndividuals();
        say(IccMessage::treatedSumOutOfRange);
    }
}

void Verdict::tellTruncation() {
    if (!s_.isBinary() || s_.BinaryType != BinaryTypes::oddsRatio)
        return;
    for (int level = 2; level <= s_.NumLevels && verdict_.message == IccMessage::none; ++level) {
        if (s_.logit.truncation(level) != Truncations::none) {
            say(IccMessage::truncated, level);
            verdict_.offerDelta = true;
        }
    }
}

// The column that the user types in always shows.
void Verdict::summarise() {
    for (int level = 1; level <= highestLevel; ++level) {
        if (!s_.outcome.ValidICC(level))
            s_.outcome.ValidICC(0) = false;
    }
    (s_.IccMetric == IccMetrics::icc ? s_.outcome.ShowICC : s_.outcome.ShowSpan).fill(true);
}

void copyToLimits(Study& s) {
    for (int level = 1; level <= s.NumLevels; ++level) {
        s.limits.txtICC(level) = s.txtICC(level);
        s.limits.txtSpan(level) = s.txtMRange(level);
    }
}

}  // namespace

bool GetOkICC(const Study& study) { return sumOfIcc(study) <= largestSumOfIcc; }

bool GetOkICCTreatment(const Study& study) {
    if (study.isMeans())
        return true;
    double sum = 0;
    for (int level = 2; level <= study.NumLevels; ++level)
        sum += GetICCTx(study, study.txtICC(level));
    return sum < 1.0;
}

double GetICCTx(const Study& study, double icc) {
    const double p = study.txtPrev;
    double p2 = 0;
    if (study.BinaryType == BinaryTypes::oddsRatio)
        p2 = treatedRateOfOddsRatio(p, study.txtOR);
    else if (study.BinaryType == BinaryTypes::riskDifference)
        p2 = p + study.txtRD;
    else
        return 0;
    return icc * p * (1 - p) / ((1 - p2) * p2);
}

double MaxICC(const Study& study) {
    const double p = study.txtPrev;
    return std::min(1 / ((1 - p) * (p * 16)), 1.0);
}

ShiftedRange GetRange(double mean, double span) {
    ShiftedRange range{mean - span / 2, mean + span / 2, false};
    if (range.lower < 0)
        range = {0, range.upper + std::fabs(range.lower), true};
    if (range.upper > 1)
        range = {range.lower - (range.upper - 1), 1, true};
    return range;
}

IccVerdict SynchICC(Study& study) {
    study.limits.txtDelta = std::clamp(study.limits.txtDelta, smallestDelta, largestDelta);
    ComputeES(study);
    bool possible = study.result.ValidES;
    if (possible) {
        trustAll(study.outcome);
        possible = study.IccMetric != IccMetrics::icc || (GetOkICC(study) && GetOkICCTreatment(study));
    }
    if (possible)
        convert(study);
    IccVerdict verdict = Verdict(study).judge();
    verdict.areInStep = possible;
    copyToLimits(study);
    return verdict;
}

}  // namespace lorvane
