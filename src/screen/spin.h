// One step of a value by an arrow: by units of the last decimal shown, within limits.
#pragma once

#include "screen/study_fields.h"

namespace lorvane {

/// The value after one step up (direction 1) or down (-1) of step units of the last decimal. A limit that may
/// not be reached itself is kept off by one step; a value within 1e-6 of an inclusive lower limit lands on
/// it. Any other direction leaves the value.
double spun(double value, int direction, const FieldLimits& limits, int decimals, int step);

/// The value raised by ones until it is, taken as a whole number, a multiple of the step.
double snapped(double value, int step);

}  // namespace lorvane
