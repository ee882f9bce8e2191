// A table as a .csv file.
#pragma once

#include <string>

#include "platform/sheet.h"

namespace lorvane {

/// The bytes of the file: numbers with their decimals and a point, a band's heading in its first column.
std::string csvFile(const Sheet& sheet);

}  // namespace lorvane
