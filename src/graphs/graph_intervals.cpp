// Which values of a variable a graph has along its axis. The rules of the variables differ from each other
// on purpose: where one counts its last value and the next does not, both are meant.
#include "graphs/graph_intervals.h"

#include "graphs/interval_tools.h"

namespace lorvane {

Intervals GetIntervalsRsq(StudyTrial&, int, const XRange& range) {
    if (!range.isByHand())
        return withoutEnd({0, 0.99, 0.01});
    Intervals axis = roundedEndsByHand(range, twoDecimals);
    axis.Step = 0.01;
    return withBothEnds(axis);
}

Intervals GetIntervalsAlpha(StudyTrial&, const XRange& range) {
    if (!range.isByHand())
        return withBothEnds({0.01, 0.2, 0.01});
    Intervals axis = roundedEndsByHand(range, threeDecimals);
    axis.Step = valueBelow(stepsOfSmallRanges, axis.End - axis.Start, usualStep);
    return withBothEnds(axis);
}

namespace {

Intervals rawIntervalsOf(StudyTrial& trial, const GraphVariable& variable, const XRange& range) {
    using enum GraphFields;
    const int level = variable.level;
    switch (variable->field) {
    case NT:
        return GetIntervalsNT(trial, level, range);
    case NB:
        return GetIntervalsNB(trial, level, range);
    case ICC:
        return GetIntervalsICC(trial, level, range);
    case MRange:
        return GetIntervalsMrange(trial, level, range);
    case TauSq:
        return GetIntervalsTausq(trial, level, range);
    case DRange:
        return GetIntervalsDrange(trial, level, range);
    case Omega:
        return GetIntervalsOmega(trial, level, range);
    case Rsq:
        return GetIntervalsRsq(trial, level, range);
    case d:
        return GetIntervalsd(trial, range);
    case Prev:
        return GetIntervalsPrev(trial, range);
    case OR:
        return GetIntervalsOR(trial, range);
    case RR:
        return GetIntervalsRR(trial, range);
    case RD:
        return GetIntervalsRD(trial, range);
    case P2:
        return GetIntervalsP2(trial, range);
    case Alpha:
        break;
    }
    return GetIntervalsAlpha(trial, range);
}

}  // namespace

Intervals intervalsOf(StudyTrial& trial, const GraphVariable& variable, const XRange& range) {
    const Intervals axis = rawIntervalsOf(trial, variable, range);
    trial.refresh();
    return axis;
}

}  // namespace lorvane
