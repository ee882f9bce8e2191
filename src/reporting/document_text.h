// A document as plain text, to be read in letters of equal width.
#pragma once

#include <string>

#include "platform/document.h"

namespace lorvane {

/// Headings are underlined, paragraphs stand on one line each, the columns of tables are aligned.
std::string plainTextOf(const Document& document);

}  // namespace lorvane
