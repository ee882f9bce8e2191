// A document as a rich text file, which word processors open.
#pragma once

#include <string>

#include "platform/document.h"

namespace lorvane {

/// The whole file. Headings stand in the navigator of a word processor, a table stays on one page, and the
/// pages are numbered at their foot.
std::string rtfOf(const Document& document);

}  // namespace lorvane
