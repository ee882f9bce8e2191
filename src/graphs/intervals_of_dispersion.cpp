// Along a scale of dispersion, or of the event rate: cut to where the study is valid.
#include "graphs/graph_intervals.h"
#include "graphs/interval_tools.h"
#include "graphs/valid_ranges.h"

namespace lorvane {

namespace {

constexpr Rung stepsOfSpan[] = {
    {0.01, 0.0001},   {0.02, 0.0002},   {0.05, 0.0005},  {0.1, 0.001},   {0.2, 0.002},   {0.5, 0.005},
    {1, 0.01},        {2, 0.02},        {5, 0.05},       {10, 0.1},      {20, 0.2},      {50, 0.5},
    {100, 1},         {200, 2},         {500, 5},        {1000, 10},     {2000, 20},     {5000, 50},
    {10000, 100},     {20000, 200},     {50000, 500},    {100000, 1000}, {200000, 2000}, {500000, 5000},
    {1000000, 10000}, {2000000, 20000}, {5000000, 50000}};
constexpr double noStep = 0;

// The range by hand or the usual one, cut to what is valid.
Intervals endsWithin(const ValidRange& valid, const XRange& range, double usualStart, double usualEnd) {
    Intervals axis = range.isByHand() ? endsByHand(range) : Intervals{usualStart, usualEnd};
    axis.Start = std::max(axis.Start, valid.low);
    axis.End = std::min(axis.End, valid.high);
    axis.isCutToNothing = axis.End < axis.Start;
    return axis;
}

Intervals onDispersionScale(const ValidRange& valid, const XRange& range, double usualStart,
                            double usualEnd) {
    Intervals axis = endsWithin(valid, range, usualStart, usualEnd);
    axis.Step = valueBelow(stepsOfSmallRanges, axis.End - axis.Start, usualStep);
    return withBothEnds(axis);
}

}  // namespace

Intervals GetIntervalsICC(StudyTrial& trial, int level, const XRange& range) {
    return onDispersionScale(GetValidRangeICC(trial.study, level), range, 0, 0.3);
}

Intervals GetIntervalsMrange(StudyTrial& trial, int level, const XRange& range) {
    const double usualEnd = trial.study.isMeans() ? 3 * trial.study.txtSD : 0.5;
    Intervals axis = endsWithin(GetValidRangeMRange(trial.study, level), range, 0, usualEnd);
    axis.Step = valueBelow(stepsOfSpan, axis.End - axis.Start, noStep);
    return withBothEnds(axis);
}

Intervals GetIntervalsTausq(StudyTrial& trial, int level, const XRange& range) {
    return onDispersionScale(GetValidRangeTausq(trial.study, level), range, 0,
                             trial.study.isMeans() ? 0.05 : 0.03);
}

Intervals GetIntervalsDrange(StudyTrial& trial, int level, const XRange& range) {
    return onDispersionScale(GetValidRangeDRange(trial.study, level), range, 0, 0.5);
}

Intervals GetIntervalsOmega(StudyTrial& trial, int level, const XRange& range) {
    return onDispersionScale(GetValidRangeOmega(trial.study, level), range, 0, 0.5);
}

Intervals GetIntervalsPrev(StudyTrial&, const XRange& range) {
    return onDispersionScale(GetValidRangePrev(), range, 0.1, 0.9);
}

}  // namespace lorvane
