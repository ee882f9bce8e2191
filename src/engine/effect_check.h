// Whether the event rates that a binary effect implies are admissible, and the words for it.
#pragma once

#include <string>

#include "engine/compute_display.h"
#include "engine/study.h"

namespace lorvane {

/// Checks the effect and derives ComputedOR and txtEvent2; the outcome stands in ValidES. An effect of
/// means is always valid. A rate exactly on a limit passes.
void ComputeES(Study& study, ComputeDisplay& display);

/// The derived metric beside the effect: the treated group's event rate, or for two risks the odds ratio.
std::string derivedEffectText(const Study& study);

/// Title and text for an effect whose rates lie outside the limits.
std::string effectProblemTitle(const Study& study);
std::string effectProblemText(const Study& study);

}  // namespace lorvane
