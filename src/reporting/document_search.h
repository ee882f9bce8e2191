// Finding text in a document.
#pragma once

#include <string>
#include <vector>

#include "platform/document.h"

namespace lorvane {

/// Where the text stands, capital and small letters being the same; in the order of the document, and none
/// within another. An empty text stands nowhere.
std::vector<TextPlace> placesOf(const std::string& text, const Document& document);

}  // namespace lorvane
