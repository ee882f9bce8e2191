// Text in the letters of 16 bits that spreadsheets count in.
#pragma once

#include <string>
#include <string_view>

namespace lorvane {

/// The text in UTF-16. A byte that is no letter of UTF-8 becomes the sign of a lost letter.
std::u16string utf16(std::string_view text);

}  // namespace lorvane
