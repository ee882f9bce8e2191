// The range of risks of one level, and the variance on the logit scale that it implies.
#pragma once

#include <string>

#include "engine/study.h"

namespace lorvane {

// Why a level's risks are impossible.
namespace LogitErrors {
inline constexpr int none = 0;
inline constexpr int spanTooWide = 1;
inline constexpr int prevalenceTooLow = 2;
inline constexpr int prevalenceTooHigh = 3;
inline constexpr int includesZero = 4;
inline constexpr int includesOne = 5;
inline constexpr int excludesPrevalence = 6;
inline constexpr int cumulativeTooWide = 7;  // no path sets it; its text stays in the table, deliberately
}  // namespace LogitErrors

namespace Truncations {
inline constexpr int none = 0;
inline constexpr int atLowerLimit = 1;
inline constexpr int atUpperLimit = 2;
}  // namespace Truncations

/// Range and logit variance of the risks of one level.
struct LogitRange {
    double LL = 0;
    double UL = 0;
    double variance = 0;
    int ok = 1;
    int code = LogitErrors::none;
    int truncation = Truncations::none;
};

/// Works out the range of a level's risks and their variance on the logit scale, the squared difference of
/// the limits' log odds over 16, since a span is four standard deviations. Where risks are entered as limits,
/// range brings LL and UL; elsewhere they follow from span and prevalence, and a span that passes a limit is
/// shifted, not shortened. An impossible level gets ok 0 and a code, and keeps the variance that range
/// brings.
LogitRange GetLogitV(const Study& study, double span, double prevalence, const LogitRange& range);

/// The text for the code that GetLogitV left for a level; empty for no code.
std::string GetErrMsg(const Study& study, int level);

/// The range of risks in words, for an odds ratio and a logit variance: "LL = 0.1234,   UL = 0.5678".
std::string CheckLogitT(double variance, double prevalence, double oddsRatio);

}  // namespace lorvane
