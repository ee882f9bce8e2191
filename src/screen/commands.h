// The commands of the study screen: what every tool does. One table from the name of a tool to its operation.
#pragma once

#include "platform/event_registry.h"
#include "screen/design.h"

namespace lorvane {

/// Enters the tools whose subject is the study screen itself. The screen must outlive the registry.
void registerCommands(EventRegistry& events, Design& design);

/// Adds or removes a level at the top.
void addLevel(Design& design);
void removeLevel(Design& design);

/// The dispersion of the outcome entered as ICC, or as limits of the risks.
void enterIcc(Design& design);
void enterLimits(Design& design);

/// Clears effect, dispersion, covariates and R-squared; sizes, costs and links stay.
void ClearVals(Study& study);

/// Sets data type and effect metric by the name of their tool, "Odds ratio"; any other name does nothing.
void SetDataType(Design& design, std::string_view tool);

/// Two levels, randomized at the top, for the example of the optimal design; the kind of outcome stays.
void ResetForOD(Design& design);

/// The mark that a level is blocked: setting it blocks all levels above too, clearing it clears all below.
/// The lowest level cannot be blocked.
void toggleBlocked(Design& design, int level);

/// The same with the question that comes before values are thrown away.
void changeDataType(Design& design, std::string_view tool);

}  // namespace lorvane
