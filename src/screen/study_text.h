// The study as text to be copied: its answer in a line, and its table for a spreadsheet or a text.
#pragma once

#include <string>

#include "platform/clipboard.h"
#include "screen/design.h"

namespace lorvane {

/// "Power = 0.7726, cost = $106,560"; with the request for other data where there is no power.
std::string resultText(const Design& design);

/// The table of levels as it is shown, below it effect, test, power and cost: parted by tabs, and as HTML.
ClipboardContent studyTable(const Design& design);

}  // namespace lorvane
