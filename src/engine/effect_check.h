// Whether the event rates that a binary effect implies are admissible, and the words for it.
#pragma once

#include <string>

#include "engine/study.h"

namespace lorvane {

/// Checks the effect, writes ValidES, and derives txtEvent2 and ComputedOR. Rates outside the limits leave
/// ComputedOR as it was; a rate exactly on a limit passes. An effect of means is always valid and derives
/// nothing. Throws ArithmeticFault when the treated rate is not finite.
void ComputeES(Study& study);

/// The sentence beside a binary effect that tells what it implies: the treated group's event rate, or for two
/// risks the odds ratio.
std::string derivedEffectText(const Study& study);

/// Its two parts: what it is, and the number.
std::string derivedEffectName(const Study& study);
std::string derivedEffectNumber(const Study& study);

/// Title and text for an effect whose rates lie outside the limits. When both rates do, the text asks for
/// another treated rate.
std::string effectProblemTitle(const Study& study);
std::string effectProblemText(const Study& study);

}  // namespace lorvane
