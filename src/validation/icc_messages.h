// The words for the verdict on the ICCs and spans.
#pragma once

#include <string>

#include "engine/study.h"
#include "validation/icc_span.h"

namespace lorvane {

/// The message line of the panel frmDisplayICC; empty when there is nothing to say.
std::string iccMessageText(const Study& study, const IccVerdict& verdict);

}  // namespace lorvane
