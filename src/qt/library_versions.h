// The versions of the libraries behind this folder.
#pragma once

#include <vector>

#include "platform/program_facts.h"

namespace lorvane {

/// Qt and qpdf as they run, QCustomPlot as it was built.
std::vector<LibraryVersion> libraryVersionsOfQt();

}  // namespace lorvane
