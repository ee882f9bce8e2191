// Along an axis of numbers of units: as far as power goes on to rise.
#include "engine/docompute.h"
#include "graphs/graph_intervals.h"
#include "graphs/interval_tools.h"

namespace lorvane {

namespace {

constexpr int mostTensOfUnits = 100;

/// The axis for a number of units at which power is saturated.
struct UnitAxis {
    double n;
    double Start;
    double End;
    double Step;
};

constexpr UnitAxis axesOfArms[] = {{10, 2, 10, 1},   {20, 2, 20, 1},   {30, 2, 30, 1},
                                   {40, 2, 40, 1},   {50, 2, 50, 1},   {100, 2, 100, 1},
                                   {200, 5, 200, 5}, {300, 5, 300, 5}, {400, 10, 400, 10}};
// Up to 100 blocks go by twos.
constexpr UnitAxis axesOfBlocks[] = {{10, 2, 10, 1},   {20, 2, 20, 1},   {30, 2, 30, 1},
                                     {40, 2, 40, 1},   {50, 2, 50, 1},   {100, 2, 100, 2},
                                     {200, 5, 200, 5}, {300, 5, 300, 5}, {400, 10, 400, 10}};
constexpr UnitAxis longestAxis{1000, 10, 1000, 10};

template <std::size_t count>
Intervals axisOfUnits(const UnitAxis (&axes)[count], double n) {
    const UnitAxis* found = std::find_if(axes, axes + count, [&](const UnitAxis& a) { return n <= a.n; });
    const UnitAxis& axis = found == axes + count ? longestAxis : *found;
    return {axis.Start, axis.End, axis.Step};
}

constexpr Rung stepsOfUnits[] = {{5, 1}, {10, 5}, {50, 10}, {100, 50}, {500, 100}, {1000, 500}, {5000, 1000}};
constexpr double largestStepOfUnits = 5000;

bool isMultiple(double value, double step) {
    return std::fmod(roundHalfToEven(value), roundHalfToEven(step)) == 0;
}

// The ends move outwards to multiples of the step, and 0 gives way to the step.
Intervals unitsByHand(const XRange& range) {
    Intervals axis = endsByHand(range);
    axis.Step = valueUpTo(stepsOfUnits, std::trunc((axis.End - axis.Start) / 20), largestStepOfUnits);
    while (!isMultiple(axis.Start, axis.Step))
        axis.Start -= 1;
    if (axis.Start == 0)
        axis.Start = axis.Step;
    while (!isMultiple(axis.End, axis.Step))
        axis.End += 1;
    return withBothEnds(axis);
}

}  // namespace

Intervals GetIntervalsNT(StudyTrial& trial, int level, const XRange& range) {
    if (range.isByHand())
        return unitsByHand(range);
    Study& s = trial.study;
    const Kept treated(s.txtNT(level));
    const Kept control(s.txtNC(level));
    for (int i = 1; i <= mostTensOfUnits; ++i) {
        s.txtNT(level) = s.txtNC(level) = 10 * i;
        docompute(s, trial.library());
        if (reaches(trial, saturated))
            break;
    }
    return withBothEnds(axisOfUnits(axesOfArms, s.txtNT(level)));
}

// Other than with arms, the last number of blocks is left out.
Intervals GetIntervalsNB(StudyTrial& trial, int level, const XRange& range) {
    if (range.isByHand())
        return unitsByHand(range);
    Study& s = trial.study;
    const Kept blocks(s.txtNB(level));
    for (int i = 1; i <= mostTensOfUnits; ++i) {
        s.txtNB(level) = 10 * i;
        docompute(s, trial.library());
        if (reaches(trial, saturated))
            break;
    }
    return withoutEnd(axisOfUnits(axesOfBlocks, s.txtNB(level)));
}

}  // namespace lorvane
