// A stretch of a document as other programs take it from the clipboard.
#pragma once

#include <span>
#include <string>

#include "platform/document.h"

namespace lorvane {

/// Headings, paragraphs and tables as HTML in UTF-8; all texts are plain text in it.
std::string htmlOf(std::span<const DocumentStep> steps);

}  // namespace lorvane
