// Numbers as text.
#include "base/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/names.h"

namespace lorvane {

namespace {

// A fixed-notation double has at most 309 digits before the point and 1074 behind it.
constexpr std::size_t longestFixedText = 1400;

std::string plainDecimal(double value) {
    std::array<char, longestFixedText> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

// Adds one unit to the last digit of an unsigned decimal text.
void addOneUnit(std::string& digits) {
    for (std::size_t i = digits.size(); i-- > 0;) {
        if (digits[i] == '.')
            continue;
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(digits.begin(), '1');
}

// An unsigned decimal text cut or filled to a number of decimals, half rounded up.
std::string roundedDecimal(std::string digits, std::size_t decimals) {
    std::size_t point = digits.find('.');
    if (point == std::string::npos) {
        point = digits.size();
        digits += '.';
    }
    const std::size_t wanted = point + 1 + decimals;
    const bool up = digits.size() > wanted && digits[wanted] >= '5';
    digits.resize(wanted, '0');
    if (decimals == 0)
        digits.pop_back();
    if (up)
        addOneUnit(digits);
    return digits;
}

bool isZeroText(std::string_view digits) { return digits.find_first_not_of("0.") == std::string_view::npos; }

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

}  // namespace

std::string shortestText(double value) {
    if (value == 0)
        return "0";
    return plainDecimal(value);
}

std::string sentenceText(double value) {
    const double size = std::fabs(value);
    if (!std::isfinite(value) || value == 0 || (size >= 1e-7 && size < 1e15))
        return shortestText(value);
    std::array<char, 40> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::scientific);
    std::string text(buffer.data(), end.ptr);
    const std::size_t plus = text.find('+');
    if (plus != std::string::npos)
        text.erase(plus, 1);
    return text;
}

std::string fixedText(double value, int decimals) {
    if (!std::isfinite(value))
        return plainDecimal(value);
    std::string digits = roundedDecimal(plainDecimal(std::fabs(value)), static_cast<std::size_t>(decimals));
    if (value < 0 && !isZeroText(digits))
        digits.insert(digits.begin(), '-');
    return digits;
}

std::string groupedText(std::int64_t value) {
    std::string digits = std::to_string(value);
    const std::size_t first = digits[0] == '-' ? 1 : 0;
    for (std::size_t i = digits.size(); i > first + 3;) {
        i -= 3;
        digits.insert(i, 1, ',');
    }
    return digits;
}

std::optional<double> readNumber(std::string_view text) {
    std::string_view body = trimmed(text);
    if (body.size() > 1 && body.front() == '+' && body[1] != '-')
        body.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(body.data(), body.data() + body.size(), value);
    const bool whole = result.ec == std::errc() && result.ptr == body.data() + body.size();
    if (!whole || !std::isfinite(value))
        return std::nullopt;
    return value;
}

bool hasDecimalComma(std::string_view text) {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos)
        return false;
    std::string pointed(text);
    pointed[comma] = '.';
    return readNumber(pointed).has_value();
}

std::string unreadNumber(std::string_view text) {
    return inQuotes(text) +
           (hasDecimalComma(text) ? "; use a point, not a comma, before the decimals." : ".");
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

}  // namespace lorvane
