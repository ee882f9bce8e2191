// ICC and span of every level, two views of one dispersion: keeps them in step and judges them.
#pragma once

#include "engine/study.h"

namespace lorvane {

/// What the panel of the ICC has to say; the words are in icc_messages.h.
enum class IccMessage {
    none,
    effectAtFault,          // the effect has no admissible rates
    spanReachesOne,         // the span of a level reaches 1
    logitAtFault,           // GetErrMsg has the words
    individualsHaveNoSpan,  // the span of level 1 is too small
    sumOutOfRange,
    treatedSumOutOfRange,
    truncated  // told, but no error
};

struct IccVerdict {
    IccMessage message = IccMessage::none;
    int level = 0;            ///< level that the message is about, where it is about one
    bool offerDelta = false;  ///< the limits of the risks would help
    bool areInStep = false;   ///< ICC and span follow from each other, so the table can tell the shares
    bool sumIsGood = false;   ///< GetOkICC held, so the table can be filled
};

/// Brings ICC and span of every level into agreement by ICC Metric, derives the logit variances of a binary
/// study and judges the values; the outcome stands in study.outcome, index 0 being the summary that the
/// computation reads. Entered values stay as they are. Checks the effect first, since the rates belong to it.
/// Throws ArithmeticFault for an ICC or a span that no formula can turn (a negative ICC, as a file can hold).
IccVerdict SynchICC(Study& study);

/// True when the ICCs of levels 2 to NumLevels sum to 0.99 or less.
bool GetOkICC(const Study& study);

/// True for means; for binary when the ICCs that the treated group implies sum to less than 1.
bool GetOkICCTreatment(const Study& study);

/// An ICC at the treated group's rate; 0 for a risk ratio and for two risks, which never fail.
double GetICCTx(const Study& study, double icc);

/// ICC of a span of exactly 1, at most 1.
double MaxICC(const Study& study);

/// Range of a span around a mean, shifted to lie within 0 and 1. The lower limit is not held at 0 a second
/// time. For tables only, never for a power.
struct ShiftedRange {
    double lower;
    double upper;
    bool truncated;
};
ShiftedRange GetRange(double mean, double span);

}  // namespace lorvane
