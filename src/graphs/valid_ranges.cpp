// The part of a dispersion scale on which a study stays valid.
#include "graphs/valid_ranges.h"

#include <algorithm>

#include "validation/effect_dispersion.h"
#include "validation/icc_span.h"

namespace lorvane {

namespace {

constexpr int mostHundredths = 102;        // of an ICC and of a tau-squared
constexpr int mostHundredthsOfSpan = 200;  // of a span of effects and of an omega
constexpr int mostSteps = 100;             // of a span of means or risks

bool iccIsValid(Study& study) {
    SynchICC(study);
    return study.outcome.ValidICC(0);
}

bool tauSqIsValid(Study& study) {
    SynchTauSq(study);
    return study.effect.ValidTauSq(0);
}

// Candidates are never negative, so the lower bound stays where it starts.
template <typename Candidate>
ValidRange triedRange(Study& study, double& field, int most, bool (*isValid)(Study&), Candidate candidate) {
    const double own = field;
    ValidRange range;
    for (int i = 0; i <= most; ++i) {
        field = candidate(i);
        if (!isValid(study))
            continue;
        range.low = std::min(range.low, field);
        range.high = std::max(range.high, field);
    }
    field = own;
    isValid(study);
    return range;
}

double hundredths(int i) { return i / 100.0; }

}  // namespace

ValidRange GetValidRangeICC(Study& s, int level) {
    return triedRange(s, s.txtICC(level), mostHundredths, iccIsValid, hundredths);
}

ValidRange GetValidRangeMRange(Study& s, int level) {
    const double sd = s.txtSD;
    const bool means = s.isMeans();
    return triedRange(s, s.txtMRange(level), mostSteps, iccIsValid,
                      [=](int i) { return means ? sd / 10 * i : hundredths(i); });
}

ValidRange GetValidRangeTausq(Study& s, int level) {
    return triedRange(s, s.txtTauSq(level), mostHundredths, tauSqIsValid, hundredths);
}

ValidRange GetValidRangeDRange(Study& s, int level) {
    return triedRange(s, s.txtDRange(level), mostHundredthsOfSpan, tauSqIsValid, hundredths);
}

ValidRange GetValidRangeOmega(Study& s, int level) {
    return triedRange(s, s.txtOmega(level), mostHundredthsOfSpan, tauSqIsValid, hundredths);
}

ValidRange GetValidRangePrev() { return {0, 1}; }

ValidRange validRangeOf(Study& study, const GraphVariable& variable) {
    switch (variable->field) {
    case GraphFields::ICC:
        return GetValidRangeICC(study, variable.level);
    case GraphFields::MRange:
        return GetValidRangeMRange(study, variable.level);
    case GraphFields::TauSq:
        return GetValidRangeTausq(study, variable.level);
    case GraphFields::DRange:
        return GetValidRangeDRange(study, variable.level);
    case GraphFields::Omega:
        return GetValidRangeOmega(study, variable.level);
    default:
        return GetValidRangePrev();
    }
}

}  // namespace lorvane
