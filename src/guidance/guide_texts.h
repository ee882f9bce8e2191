// The texts of the guide as they stand in the files of assets/guide, which the build puts into the program.
#pragma once

#include <span>
#include <string_view>

namespace lorvane {

/// The frames, a text a file.
std::span<const std::string_view> guideTexts();

/// The sources that the texts name, a line each: key | short form | full reference.
std::string_view guideSources();

}  // namespace lorvane
