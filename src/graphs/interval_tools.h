// What the rules of the ranges share: counting points, ends by hand, ladders of numbers.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "base/arithmetic_fault.h"
#include "base/money.h"
#include "graphs/intervals.h"
#include "session/study_trial.h"

namespace lorvane {

/// A search ends where power is saturated; a study that has become invalid keeps the power before it.
inline bool reaches(const StudyTrial& trial, double power) { return trial.study.result.txtPower >= power; }
inline bool reachesValidly(const StudyTrial& trial, double power) {
    return reaches(trial, power) && trial.study.result.xValid;
}

/// Puts a field back when the search that tries values in it is over.
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

inline int asPoints(double points) {
    if (!(std::fabs(points) <= std::numeric_limits<std::int16_t>::max()))
        throw ArithmeticFault("GetIntervals", "the range of the graph");
    return static_cast<int>(points);
}

inline double stepsIn(const Intervals& axis) { return roundHalfToEven((axis.End - axis.Start) / axis.Step); }

/// The general rule: both ends are computed.
inline Intervals withBothEnds(Intervals axis) {
    axis.Points = asPoints(std::fabs(stepsIn(axis)) + 1);
    return axis;
}

/// The last value is left out.
inline Intervals withoutEnd(Intervals axis) {
    axis.Points = asPoints(stepsIn(axis));
    return axis;
}

/// A range by hand runs from the smaller end to the larger one.
inline Intervals endsByHand(const XRange& range) {
    return {std::min(range.Start, range.End), std::max(range.Start, range.End)};
}

inline double rounded(double value, double scale) { return roundHalfToEven(value * scale) / scale; }

inline Intervals roundedEndsByHand(const XRange& range, double scale) {
    const Intervals ends = endsByHand(range);
    return {rounded(ends.Start, scale), rounded(ends.End, scale)};
}
inline constexpr double twoDecimals = 100;
inline constexpr double threeDecimals = 1000;

// Ladders
// -------------------------------------------------------------------------------------------------

inline constexpr double tenths[] = {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0};

template <std::size_t count>
double firstNotBelow(const double (&ladder)[count], double value, double otherwise) {
    const double* found = std::find_if(ladder, ladder + count, [&](double rung) { return rung >= value; });
    return found == ladder + count ? otherwise : *found;
}

/// A value for what is below, or not above, a limit.
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

inline constexpr double saturated = 0.95;      // power at which the axes of sizes and odds ratios end
inline constexpr double nearlyCertain = 0.99;  // the same of the other effects
inline constexpr double usualStep = 0.01;
inline constexpr Rung stepsOfSmallRanges[] = {{0.1, 0.001}, {0.2, 0.002}};

}  // namespace lorvane
