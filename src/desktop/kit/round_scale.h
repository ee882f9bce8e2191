// Scales of axes in round steps. Knows numbers only.
#pragma once

namespace lorvane::desktop {

/// The lines of an axis: the lowest, the distance between two, and how many distances there are.
struct RoundScale {
    double low = 0;
    double step = 1;
    int steps = 5;

    /// The highest line.
    double high() const { return low + steps * step; }
};

/// The smallest round step that is not below a number above 0. Round steps are 1, 2, 2.5 and 5 times a power
/// of ten.
double roundStep(double least);

/// A scale of five round steps that holds two values of 0 or more, with about as much room above them as
/// below. It never begins below 0.
RoundScale fiveSteps(double low, double high);

/// A scale of round steps, mostly four to six of them and each of whole percents, that holds two shares of 0
/// to 1. It stays within 0 and 1.
RoundScale percentSteps(double low, double high);

/// The distance of marks on whole numbers, itself whole and round, that gives no more than seven marks on a
/// length.
double wholeStep(double length);

/// Marks on round numbers within two values, at most seven. They count from 0, or from the middle of the two
/// where only that is round, to half a step.
RoundScale marksWithin(double low, double high);

/// The marks of a scale that reaches from the round number below one value to the one above another.
RoundScale roundedOut(double low, double high);

/// The decimals that tell the lines of a scale apart, at most six.
int decimalsOf(const RoundScale& scale);

}  // namespace lorvane::desktop
