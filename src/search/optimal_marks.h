// The outlines on the main screen around what keeps the search for the cheapest design from running.
#pragma once

#include "screen/design.h"
#include "search/optimal_texts.h"

namespace lorvane {

/// Outlines the fields that a reason marks.
void markProblem(Design& design, const ReadinessProblem& problem);

/// Takes the outlines of all reasons away. Those of the computation, under the same numbers, stay.
void clearMarks(Design& design);

}  // namespace lorvane
