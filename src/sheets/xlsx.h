// A table as an .xlsx file.
#pragma once

#include <string>

#include "platform/sheet.h"

namespace lorvane {

/// The bytes of the file; the same table gives the same bytes. Throws std::runtime_error with a sentence for
/// a table that it cannot hold, and where the system has no room for temporary files.
std::string xlsxFile(const Sheet& sheet);

}  // namespace lorvane
