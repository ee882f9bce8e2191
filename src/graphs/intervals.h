// A range of a variable as it is asked for, and the values that a graph computes of it.
#pragma once

#include <cmath>

namespace lorvane {

/// How the range of a variable is chosen, with the ends of a range by hand in any order.
struct XRange {
    int Mode = 0;  ///< 0 automatic, 1 by hand
    double Start = 0;
    double End = 0;

    /// A range by hand whose ends lie too near to each other counts as automatic.
    bool isByHand() const { return Mode == 1 && std::fabs(End - Start) >= 0.001; }
};

struct Intervals {
    double Start = 0;
    double End = 0;
    double Step = 0;
    int Points = 0;               ///< values that are computed; below 1 there are none
    bool Reversed = false;        ///< the axis runs from high to low
    bool isCutToNothing = false;  ///< nothing of a range by hand is valid for the study
};

}  // namespace lorvane
