// The words for the verdict on the ICCs and spans.
#pragma once

#include <string>

#include "engine/study.h"
#include "validation/icc_span.h"

namespace lorvane {

/// The message line of the panel frmDisplayICC; empty when there is nothing to say.
std::string iccMessageText(const Study& study, const IccVerdict& verdict);

/// What stands beside the answers of a study whose spans of risks had to be shifted: the level, what was
/// entered for it, the variance that is used instead and what to do. Empty for any other study, and without a
/// power.
std::string truncationNote(const Study& study);

}  // namespace lorvane
