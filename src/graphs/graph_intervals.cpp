// Which values of a variable a graph has along its axis. The rules of the variables differ from each other
// on purpose: where one counts its last value and the next does not, both are meant.
#include "graphs/graph_intervals.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <limits>
#include <utility>

#include "base/arithmetic_fault.h"
#include "base/money.h"
#include "engine/docompute.h"
#include "graphs/valid_ranges.h"

namespace lorvane {

namespace {

constexpr double leastRangeByHand = 0.001;
constexpr double saturated = 0.95;         // power at which the axes of sizes and odds ratios end
constexpr double nearlyCertain = 0.99;     // the same of the other effects
constexpr double mostPointsOfRatio = 200;  // of an odds ratio by hand

// A search ends where power is saturated; a study that has become invalid keeps the power before it.
bool reaches(const StudyTrial& trial, double power) { return trial.study.result.txtPower >= power; }
bool reachesValidly(const StudyTrial& trial, double power) {
    return reaches(trial, power) && trial.study.result.xValid;
}

// Puts a field back when the search that tries values in it is over.
class Kept {
public:
    explicit Kept(double& field) : field_(field), own_(field) {}
    ~Kept() { field_ = own_; }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

private:
    double& field_;
    const double own_;
};

// Points
// --------------------------------------------------------------------------------------------------

int asPoints(double points) {
    if (!(std::fabs(points) <= std::numeric_limits<std::int16_t>::max()))
        throw ArithmeticFault("GetIntervals", "the range of the graph");
    return static_cast<int>(points);
}

double stepsIn(const Intervals& axis) { return roundHalfToEven((axis.End - axis.Start) / axis.Step); }

// The general rule: both ends are computed.
Intervals withBothEnds(Intervals axis) {
    axis.Points = asPoints(std::fabs(stepsIn(axis)) + 1);
    return axis;
}

// The last value is left out.
Intervals withoutEnd(Intervals axis) {
    axis.Points = asPoints(stepsIn(axis));
    return axis;
}

// A range by hand runs from the smaller end to the larger one.
Intervals endsByHand(const XRange& range) {
    return {std::min(range.Start, range.End), std::max(range.Start, range.End)};
}

double rounded(double value, double scale) { return roundHalfToEven(value * scale) / scale; }

Intervals roundedEndsByHand(const XRange& range, double scale) {
    const Intervals ends = endsByHand(range);
    return {rounded(ends.Start, scale), rounded(ends.End, scale)};
}
constexpr double twoDecimals = 100;
constexpr double threeDecimals = 1000;

// Ladders
// -------------------------------------------------------------------------------------------------

constexpr double tenths[] = {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0};

template <std::size_t count>
double firstNotBelow(const double (&ladder)[count], double value, double otherwise) {
    const double* found = std::find_if(ladder, ladder + count, [&](double rung) { return rung >= value; });
    return found == ladder + count ? otherwise : *found;
}

// A value for what is below, or not above, a limit.
struct Rung {
    double limit;
    double value;
};

template <std::size_t count>
double valueUpTo(const Rung (&ladder)[count], double x, double otherwise) {
    const Rung* found = std::find_if(ladder, ladder + count, [&](const Rung& r) { return x <= r.limit; });
    return found == ladder + count ? otherwise : found->value;
}

template <std::size_t count>
double valueBelow(const Rung (&ladder)[count], double x, double otherwise) {
    const Rung* found = std::find_if(ladder, ladder + count, [&](const Rung& r) { return x < r.limit; });
    return found == ladder + count ? otherwise : found->value;
}

// Numbers of units
// ----------------------------------------------------------------------------------------

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

// Scales of dispersion
// ------------------------------------------------------------------------------------

constexpr Rung stepsOfDispersion[] = {{0.1, 0.001}, {0.2, 0.002}};
constexpr double usualStep = 0.01;

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
    axis.Step = valueBelow(stepsOfDispersion, axis.End - axis.Start, usualStep);
    return withBothEnds(axis);
}

// Effects
// -------------------------------------------------------------------------------------------------

constexpr double endsOfd[] = {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9,
                              1.0, 1.2, 1.4, 1.6, 1.8, 2.0, 2.5, 3.0, 5.0};
constexpr Rung stepsOfd[] = {{1, 0.01}, {2, 0.02}, {4, 0.05}};
constexpr double largestd = 3;
constexpr double stepsOfdByHand = 50;

double saturatingd(StudyTrial& trial) {
    double& field = trial.study.txtd;
    const Kept kept(field);
    for (int i = 1; i <= 30; ++i) {
        field = 0.1 * i;
        if (field > largestd)
            break;
        trial.refresh();
        if (reaches(trial, nearlyCertain))
            break;
    }
    return field;
}

constexpr double endsOfOR[] = {1.1, 1.2, 1.3, 1.4, 1.5, 1.6, 1.8, 2, 3, 4, 5, 6, 8, 10};
constexpr double largestOR = 10;
constexpr Rung stepsOfRatio[] = {{1.1, 0.001}, {2, 0.01}};
constexpr double tenth = 0.1;
// An odds ratio up to 0.2 starts the axis itself.
constexpr Rung startsOfOR[] = {{0.4, 0.2}, {0.5, 0.4}, {0.6, 0.5}, {0.8, 0.6}, {1, 0.8}};
constexpr double ownStartOfOR = 0.2;

Intervals oddsRatiosAbove1(StudyTrial& trial) {
    double& field = trial.study.txtOR;
    for (int i = 1; i <= 400; ++i) {
        field = 1 + 0.1 * i;
        if (field > largestOR)
            break;
        trial.refresh();
        if (reachesValidly(trial, saturated))
            break;
    }
    return {1, firstNotBelow(endsOfOR, field, largestOR), valueUpTo(stepsOfRatio, field, tenth)};
}

Intervals oddsRatiosBelow1(StudyTrial& trial) {
    double& field = trial.study.txtOR;
    for (int i = 1; i <= 100; ++i) {
        field = 1 - 0.01 * i;
        trial.refresh();
        if (reachesValidly(trial, saturated))
            break;
    }
    const double start = field > ownStartOfOR ? valueUpTo(startsOfOR, field, field) : field;
    return {start, 1, usualStep};
}

// A ratio by hand goes by hundredths below 1 and by tenths beyond.
Intervals ratioByHand(const XRange& range) {
    Intervals axis = roundedEndsByHand(range, threeDecimals);
    axis.Step = axis.End <= 1 ? usualStep : tenth;
    return axis;
}

bool leavesRates(double rate) { return rate < 0.001 || rate > 0.999; }

constexpr double endsOfRR[] = {1.1, 1.2, 1.3, 1.4, 1.5, 1.6, 1.8, 2, 3, 4, 5, 6, 8, 10, 20, 30, 40, 80};
constexpr Rung stepsOfRR[] = {{1.1, 0.001}, {2, 0.01}, {10, 0.1}, {80, 1}};
constexpr double endOfLargeRR = 5;
constexpr double nearOne = 0.99;

// The first ratio, walking in steps, whose treated rate is none; the end of the walk where there is none.
double boundOfRR(double controlRate, double step, double end) {
    for (double v = 1; step < 0 ? v >= end : v <= end; v += step) {
        if (leavesRates(controlRate * v))
            return v;
    }
    return end;
}

double startOfRR(double x) {
    if (x >= nearOne)
        return 0;
    const auto above = std::upper_bound(std::begin(tenths), std::end(tenths) - 1, x);
    return above == std::begin(tenths) ? 0 : *std::prev(above);
}

Intervals riskRatiosBelow1(StudyTrial& trial) {
    double& field = trial.study.txtRR;
    const double bound = boundOfRR(trial.study.txtPrev, -0.01, 0);
    for (int i = 1; i <= 100; ++i) {
        field = 1 - 0.01 * i;
        if (field < bound)
            break;
        trial.refresh();
        if (reachesValidly(trial, nearlyCertain))
            break;
    }
    return {startOfRR(field), 1 + usualStep, usualStep, 0, true};
}

Intervals riskRatiosAbove1(StudyTrial& trial) {
    double& field = trial.study.txtRR;
    const double bound = boundOfRR(trial.study.txtPrev, 0.1, 100);
    for (int i = 1; i <= 400; ++i) {
        field = 1 + 0.1 * i;
        if (field > bound)
            break;
        trial.refresh();
        if (reaches(trial, nearlyCertain))
            break;
    }
    const double x = field - 0.1;
    return {1, firstNotBelow(endsOfRR, x, endOfLargeRR), valueUpTo(stepsOfRR, x, tenth)};
}

Intervals riskDifferencesAbove0(StudyTrial& trial) {
    double& field = trial.study.txtRD;
    for (int i = 1; i <= 100; ++i) {
        field = 0.1 * i;
        if (field > 1 - trial.study.txtPrev)
            break;
        trial.refresh();
        if (reaches(trial, nearlyCertain))
            break;
    }
    return {0, firstNotBelow(tenths, field, 1), field <= 0.1 ? 0.001 : usualStep};
}

double startOfRD(double x) {
    constexpr double starts[] = {-0.9, -0.8, -0.7, -0.6, -0.5, -0.4, -0.3, -0.2, -0.1};
    const auto above = std::upper_bound(std::begin(starts), std::end(starts), x);
    return above == std::begin(starts) ? -1 : *std::prev(above);
}

Intervals riskDifferencesBelow0(StudyTrial& trial) {
    double& field = trial.study.txtRD;
    for (int i = 1; i <= 100; ++i) {
        field = -0.1 * i;
        if (field < -trial.study.txtPrev)
            break;
        trial.refresh();
        if (reaches(trial, nearlyCertain))
            break;
    }
    return {startOfRD(field), 0, field >= -0.1 ? 0.001 : usualStep, 0, true};
}

constexpr double lowestRate = 0.01;
constexpr double highestRate = 0.99;

double stepOfRates(double range) { return range <= 0.1 ? 0.001 : usualStep; }

// Walks the treated rate away from the control rate until power is nearly certain.
double walkP2(StudyTrial& trial, double step) {
    double& field = trial.study.txtP2;
    for (double v = trial.study.txtPrev; step < 0 ? v >= lowestRate : v <= highestRate; v += step) {
        field = v;
        trial.refresh();
        if (reaches(trial, nearlyCertain))
            break;
    }
    return field;
}

Intervals ratesBelowControl(StudyTrial& trial) {
    // There is deliberately no row for 0.2.
    constexpr Rung starts[] = {{0.1, 0},   {0.3, 0.2}, {0.4, 0.3}, {0.5, 0.4}, {0.6, 0.5},
                               {0.7, 0.6}, {0.8, 0.7}, {0.9, 0.8}, {1, 0.9}};
    const double control = trial.study.txtPrev;
    const double x = walkP2(trial, -0.01);
    return {valueUpTo(starts, x, x), control, stepOfRates(control - lowestRate), 0, true};
}

Intervals ratesAboveControl(StudyTrial& trial) {
    const double control = trial.study.txtPrev;
    const double x = walkP2(trial, 0.01);
    return {control, firstNotBelow(tenths, x, 1), stepOfRates(highestRate - control)};
}

}  // namespace

bool XRange::isByHand() const { return Mode == 1 && std::fabs(End - Start) >= leastRangeByHand; }

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

Intervals GetIntervalsRsq(StudyTrial&, int, const XRange& range) {
    if (!range.isByHand())
        return withoutEnd({0, 0.99, 0.01});
    Intervals axis = roundedEndsByHand(range, twoDecimals);
    axis.Step = 0.01;
    return withBothEnds(axis);
}

// The search looks at positive effects, whatever the sign of the study's own; a negative one turns the axis.
Intervals GetIntervalsd(StudyTrial& trial, const XRange& range) {
    if (range.isByHand()) {
        Intervals axis = endsByHand(range);
        axis.Step = (axis.End - axis.Start) / stepsOfdByHand;
        return withBothEnds(axis);
    }
    const bool negative = trial.study.txtd < 0;
    const double d = saturatingd(trial);
    Intervals axis{0, firstNotBelow(endsOfd, d, largestd), valueUpTo(stepsOfd, d, usualStep)};
    if (negative)
        axis = {-axis.End, 0, axis.Step, 0, true};
    return withoutEnd(axis);
}

Intervals GetIntervalsPrev(StudyTrial&, const XRange& range) {
    return onDispersionScale(GetValidRangePrev(), range, 0.1, 0.9);
}

Intervals GetIntervalsOR(StudyTrial& trial, const XRange& range) {
    if (range.isByHand()) {
        Intervals axis = withBothEnds(ratioByHand(range));
        while (axis.Points > mostPointsOfRatio) {
            axis.Step *= 10;
            axis = withBothEnds(axis);
        }
        return axis;
    }
    const Kept kept(trial.study.txtOR);
    return withBothEnds(trial.study.txtOR >= 1 ? oddsRatiosAbove1(trial) : oddsRatiosBelow1(trial));
}

// Below 1 the axis ends at 1.01, so that 1 is the last value.
Intervals GetIntervalsRR(StudyTrial& trial, const XRange& range) {
    if (range.isByHand())
        return withBothEnds(ratioByHand(range));
    const Kept kept(trial.study.txtRR);
    return withoutEnd(trial.study.txtRR < 1 ? riskRatiosBelow1(trial) : riskRatiosAbove1(trial));
}

Intervals GetIntervalsRD(StudyTrial& trial, const XRange& range) {
    if (range.isByHand()) {
        Intervals axis = roundedEndsByHand(range, threeDecimals);
        axis.Step = usualStep;
        return withBothEnds(axis);
    }
    const Kept kept(trial.study.txtRD);
    return withoutEnd(trial.study.txtRD >= 0 ? riskDifferencesAbove0(trial) : riskDifferencesBelow0(trial));
}

Intervals GetIntervalsP2(StudyTrial& trial, const XRange& range) {
    if (range.isByHand()) {
        Intervals axis = roundedEndsByHand(range, threeDecimals);
        axis.Step = usualStep;
        return withBothEnds(axis);
    }
    const Study& s = trial.study;
    const Kept kept(trial.study.txtP2);
    return withoutEnd(s.txtPrev > s.txtP2 ? ratesBelowControl(trial) : ratesAboveControl(trial));
}

Intervals GetIntervalsAlpha(StudyTrial&, const XRange& range) {
    if (!range.isByHand())
        return withBothEnds({0.01, 0.2, 0.01});
    Intervals axis = roundedEndsByHand(range, threeDecimals);
    axis.Step = valueBelow(stepsOfDispersion, axis.End - axis.Start, usualStep);
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
