// Text in UTF-16.
#include "sheets/utf16.h"

#include "base/utf8.h"

namespace lorvane {

namespace {

constexpr char16_t lostLetter = 0xFFFD;
constexpr unsigned firstOfPairs = 0x10000;  // letters from here on take two units of 16 bits
constexpr unsigned highSurrogates = 0xD800;
constexpr unsigned lowSurrogates = 0xDC00;

void append(std::u16string& text, unsigned code) {
    if (code < firstOfPairs) {
        text += static_cast<char16_t>(code);
        return;
    }
    const unsigned rest = code - firstOfPairs;
    text += static_cast<char16_t>(highSurrogates + (rest >> 10));
    text += static_cast<char16_t>(lowSurrogates + (rest & 0x3FF));
}

}  // namespace

std::u16string utf16(std::string_view text) {
    std::u16string wide;
    while (!text.empty()) {
        const std::size_t length = letterLength(text);
        append(wide, length == 0 ? lostLetter : codePoint(text.substr(0, length)));
        text.remove_prefix(length == 0 ? 1 : length);
    }
    return wide;
}

}  // namespace lorvane
