// The range of risks of one level, and the variance on the logit scale that it implies.
#pragma once

#include <string>

#include "engine/study.h"

namespace lorvane {

/// Range and logit variance of the risks of one level.
struct LogitRange {
    double LL = 0;
    double UL = 0;
    double variance = 0;
    bool ok = true;
    LogitErrors code = LogitErrors::none;
    Truncations truncation = Truncations::none;
};

/// Works out the range of a level's risks and their variance on the logit scale, the squared difference of
/// the limits' log odds over 16, since a span is four standard deviations. Where risks are entered as limits,
/// range brings LL and UL; elsewhere they follow from span and prevalence, and a span that passes a limit is
/// shifted, not shortened. An impossible level is not ok and gets a code, and keeps the variance that range
/// brings.
LogitRange GetLogitV(const Study& study, double span, double prevalence, const LogitRange& range);

/// The text for the code that GetLogitV left for a level; empty for no code.
std::string GetErrMsg(const Study& study, int level);

}  // namespace lorvane
