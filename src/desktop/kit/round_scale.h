// Scales of axes in round steps. Knows numbers only.
#pragma once

namespace lorvane::desktop {

/// A scale from its lowest line upwards.
struct RoundScale {
    double low = 0;
    double step = 1;
    int steps = 5;

    double high() const { return low + steps * step; }
};

/// 1, 2, 2.5 or 5 times a power of ten: the least that is no less than a number above 0.
double roundStep(double least);

/// Five round steps that hold two values from 0 up, with about as much room above as below.
RoundScale fiveSteps(double low, double high);

/// The distance of marks on whole numbers that gives no more than seven marks on a length.
double wholeStep(double length);

}  // namespace lorvane::desktop
