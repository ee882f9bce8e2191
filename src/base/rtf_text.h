// Paragraphs as a rich text document that word processors open.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace lorvane {

/// UTF-8 text inside such a document: what would be markup stands as it is, a line break as one.
std::string rtfText(std::string_view text);

/// A document of plain paragraphs in 11 points. Text is UTF-8; what would be markup stands as it is.
std::string rtfDocument(std::span<const std::string> paragraphs);

}  // namespace lorvane
