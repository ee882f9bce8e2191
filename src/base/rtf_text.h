// Paragraphs as a rich text document that word processors open.
#pragma once

#include <span>
#include <string>

namespace lorvane {

/// A document of plain paragraphs in 11 points. Text is UTF-8; what would be markup stands as it is.
std::string rtfDocument(std::span<const std::string> paragraphs);

}  // namespace lorvane
