// A document as JSON, for scripts.
#pragma once

#include <nlohmann/json.hpp>

#include "platform/document.h"

namespace lorvane {

/// The commands that make the document, in their order: ["FontSize",14], ["Paragraph","…"], … A table is sent
/// cell by cell; its rows and columns are counted from 1, and a row of 0 is the whole column.
nlohmann::ordered_json documentJson(const Document& document);

}  // namespace lorvane
