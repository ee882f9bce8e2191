// Pages on paper, by a printer that the user chooses.
#pragma once

#include <optional>

#include "qt/document_pages.h"

namespace lorvane {

/// Asks for a printer and prints a page or, without one, all; false when the user cancelled. A printer that
/// takes nothing throws std::runtime_error.
bool printPages(DocumentPages& pages, const PageSetup& setup, std::optional<int> page);

}  // namespace lorvane
