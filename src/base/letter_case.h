// Capital and small letters of UTF-8 text, one letter for one, whatever the alphabet and the system's locale.
#pragma once

#include <string>
#include <string_view>

namespace lorvane {

/// The text in small letters. A letter without a small one stays, and so does a byte that is no letter.
std::string lowerCased(std::string_view text);

/// The text in capital letters, for comparing names without regard to case.
std::string upperCased(std::string_view text);

}  // namespace lorvane
