// One step of a value by an arrow: by units of the last decimal shown, within limits.
#pragma once

#include "session/field_limits.h"

namespace lorvane {

/// The value after one step up (direction 1) or down (-1) of step units of the last decimal. A limit that may
/// not be reached itself is kept off by one step; a value within 1e-6 of an inclusive lower limit lands on
/// it. Any other direction leaves the value.
double spun(double value, int direction, const FieldLimits& limits, int decimals, int step);

/// The value brought by ones to a multiple of the step, back towards where it came from: after a step up down
/// to one, after a step down up to one. So with a step of 10 a 23 goes up to 30 and down to 20.
double snapped(double value, int direction, int step);

}  // namespace lorvane
