// Which values of a variable a graph has along its axis: chosen by the power engine itself, or from a range
// that was set by hand.
#pragma once

#include "graphs/graph_variables.h"
#include "graphs/intervals.h"
#include "session/study_trial.h"

namespace lorvane {

// One rule a variable. Each tries values on the trial and puts the field back with a silent refresh. Each
// throws ArithmeticFault, also where a range would have more points than 16 bits count.

Intervals GetIntervalsNT(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsNB(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsICC(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsMrange(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsTausq(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsDrange(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsOmega(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsRsq(StudyTrial& trial, int level, const XRange& range);
Intervals GetIntervalsd(StudyTrial& trial, const XRange& range);
Intervals GetIntervalsPrev(StudyTrial& trial, const XRange& range);
Intervals GetIntervalsOR(StudyTrial& trial, const XRange& range);
Intervals GetIntervalsRR(StudyTrial& trial, const XRange& range);
Intervals GetIntervalsRD(StudyTrial& trial, const XRange& range);
Intervals GetIntervalsP2(StudyTrial& trial, const XRange& range);
Intervals GetIntervalsAlpha(StudyTrial& trial, const XRange& range);

/// The one of a variable.
Intervals intervalsOf(StudyTrial& trial, const GraphVariable& variable, const XRange& range);

}  // namespace lorvane
