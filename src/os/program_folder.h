// Where the program itself lies on the disk.
#pragma once

#include <string>

namespace lorvane {

/// The folder of the running program, through symbolic links; "." where the system does not tell.
std::string programFolder();

}  // namespace lorvane
