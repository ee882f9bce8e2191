// Along an axis of effects: away from no effect, until power is all but certain.
#include <iterator>

#include "graphs/graph_intervals.h"
#include "graphs/interval_tools.h"

namespace lorvane {

// Standardized mean difference
// ------------------------------------------------------------------------------

namespace {

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

}  // namespace

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

// Odds ratio and risk ratio
// ---------------------------------------------------------------------------------

namespace {

constexpr double tenth = 0.1;
constexpr double mostPointsOfRatio = 200;  // of an odds ratio by hand

// A ratio by hand goes by hundredths below 1 and by tenths beyond.
Intervals ratioByHand(const XRange& range) {
    Intervals axis = roundedEndsByHand(range, threeDecimals);
    axis.Step = axis.End <= 1 ? usualStep : tenth;
    return axis;
}

constexpr double endsOfOR[] = {1.1, 1.2, 1.3, 1.4, 1.5, 1.6, 1.8, 2, 3, 4, 5, 6, 8, 10};
constexpr double largestOR = 10;
constexpr Rung stepsOfRatio[] = {{1.1, 0.001}, {2, 0.01}};
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

}  // namespace

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

namespace {

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

}  // namespace

// Below 1 the axis ends at 1.01, so that 1 is the last value.
Intervals GetIntervalsRR(StudyTrial& trial, const XRange& range) {
    if (range.isByHand())
        return withBothEnds(ratioByHand(range));
    const Kept kept(trial.study.txtRR);
    return withoutEnd(trial.study.txtRR < 1 ? riskRatiosBelow1(trial) : riskRatiosAbove1(trial));
}

// Risk difference and two risks
// -----------------------------------------------------------------------------

namespace {

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

}  // namespace

Intervals GetIntervalsRD(StudyTrial& trial, const XRange& range) {
    if (range.isByHand()) {
        Intervals axis = roundedEndsByHand(range, threeDecimals);
        axis.Step = usualStep;
        return withBothEnds(axis);
    }
    const Kept kept(trial.study.txtRD);
    return withoutEnd(trial.study.txtRD >= 0 ? riskDifferencesAbove0(trial) : riskDifferencesBelow0(trial));
}

namespace {

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

}  // namespace lorvane
