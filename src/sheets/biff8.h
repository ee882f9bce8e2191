// A table as an .xls file: a BIFF8 workbook of one sheet in a compound file.
#pragma once

#include <string>

#include "platform/sheet.h"

namespace lorvane {

/// The bytes of the file. Throws std::runtime_error with a sentence for a table that it cannot hold.
std::string xlsFile(const Sheet& sheet);

}  // namespace lorvane
