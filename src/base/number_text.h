// Numbers as text: the shortest form that reads back, and the fixed formats of the screen.
// Independent of the system's locale: the decimal sign is a point, thousands are parted by commas.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lorvane {

/// The shortest decimal text, without exponent, that reads back as the same double ("0.1", "1000000").
/// A zero has no sign. Infinities and NaN give "inf", "-inf", "nan".
std::string shortestText(double value);

/// A number in a sentence: as above, but numbers that would be very long as "1e308".
std::string sentenceText(double value);

/// The value with a fixed number of decimals (0 or more), rounded half away from zero on its shortest
/// decimal text, so that 0.125 gives "0.13" and 0.285 gives "0.29". A result of zero has no sign.
std::string fixedText(double value, int decimals);

/// A whole number with thousands parted by commas: the format "###,###,###,##0".
std::string groupedText(std::int64_t value);

/// The number that the whole text spells, blanks around it allowed; nothing for any other text,
/// for infinities and for NaN.
std::optional<double> readNumber(std::string_view text);

/// The end of a sentence that refuses a text which is no number: the text in quotes, and the advice to use a
/// point where a comma may be meant as one.
std::string unreadNumber(std::string_view text);

/// Whether the text would be a number, were its one comma a point.
bool hasDecimalComma(std::string_view text);

/// The text without the blanks at both ends.
std::string_view trimmed(std::string_view text);

}  // namespace lorvane
