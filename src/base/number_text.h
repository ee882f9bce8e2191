// Numbers as text: the shortest form that reads back, and the fixed formats of the screen.
// Independent of the system's locale: the decimal sign is a point, thousands are parted by commas.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/letter_case.h"

namespace lorvane {

/// The shortest decimal text, without exponent, that reads back as the same double ("0.1", "1000000").
/// A zero has no sign. Infinities and NaN give "inf", "-inf", "nan".
std::string shortestText(double value);

/// The value with a fixed number of decimals (0 or more), rounded half away from zero on its shortest
/// decimal text, so that 0.125 gives "0.13" and 0.285 gives "0.29". A result of zero has no sign.
std::string fixedText(double value, int decimals);

/// A whole number with thousands parted by commas: the format "###,###,###,##0".
std::string groupedText(std::int64_t value);

/// The number that the whole text spells, blanks around it allowed; nothing for any other text,
/// for infinities and for NaN.
std::optional<double> readNumber(std::string_view text);

/// The text without the blanks at both ends.
std::string_view trimmed(std::string_view text);

}  // namespace lorvane
