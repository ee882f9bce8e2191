// Lines of a text in letters of equal width.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

using Lines = std::vector<std::string>;

/// The lines of a text; those wider than so many letters are broken at blanks, longer words inside.
Lines brokenLines(std::string_view text, std::size_t width);

/// The letters of the widest line.
std::size_t widest(const Lines& lines);

}  // namespace lorvane
