// A table of a document as rich text.
#pragma once

#include <string>

#include "reporting/document_blocks.h"
#include "reporting/rtf_words.h"

namespace lorvane {

/// The rows of a table, which a word processor keeps together on one page.
std::string rtfTable(const DocumentBlock& block, RtfColours& colours);

}  // namespace lorvane
