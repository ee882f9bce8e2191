// The part of a dispersion scale on which a study stays valid, found by trying values.
#pragma once

#include "graphs/graph_variables.h"
#include "session/study_trial.h"

namespace lorvane {

struct ValidRange {
    double low = 0;
    double high = 0;
};

// Each tries values of its field and puts the field back. The lower bound is always 0: only the upper one is
// found. Both are 0 where no value is valid. Throws ArithmeticFault.
ValidRange GetValidRangeICC(Study& study, int level);
ValidRange GetValidRangeMRange(Study& study, int level);
ValidRange GetValidRangeTausq(Study& study, int level);
ValidRange GetValidRangeDRange(Study& study, int level);
ValidRange GetValidRangeOmega(Study& study, int level);

/// 0 to 1, whatever the study.
ValidRange GetValidRangePrev();

/// The one of a variable whose range the study sets.
ValidRange validRangeOf(Study& study, const GraphVariable& variable);

}  // namespace lorvane
