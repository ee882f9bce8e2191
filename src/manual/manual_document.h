// A manual as a document.
#pragma once

#include <string>

#include "manual/manual_text.h"
#include "platform/document.h"

namespace lorvane {

/// The steps of a manual; below its title stand a line of its own, as the version of the program. The press
/// measures where long tables are parted. Throws ManualProblem where a link or a picture leads nowhere.
Document manualOf(const ManualText& text, const std::string& lineBelowTitle, DocumentPress& press);

}  // namespace lorvane
