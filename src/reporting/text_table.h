// A table of a document in letters of equal width.
#pragma once

#include <string>
#include <vector>

#include "platform/document.h"

namespace lorvane {

/// The lines of the table, without blanks at their ends. Long texts are broken inside their column; a rule
/// stands below the heads, and a cell over several columns in their middle.
std::vector<std::string> linesOf(const DocumentTable& table);

}  // namespace lorvane
