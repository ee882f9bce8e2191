// Paragraphs as a rich text document.
#include "base/rtf_text.h"

#include <cstdint>

#include "base/utf8.h"

namespace lorvane {

namespace {

// A letter beyond ASCII stands as one number or two of 16 bits, signed, with "?" for programs without them.
void appendUnit(std::string& rtf, std::uint32_t unit) {
    const int number = unit > 0x7FFF ? static_cast<int>(unit) - 0x10000 : static_cast<int>(unit);
    rtf += "\\u" + std::to_string(number) + "?";
}

void appendCodePoint(std::string& rtf, std::uint32_t code) {
    if (code <= 0xFFFF) {
        appendUnit(rtf, code);
        return;
    }
    appendUnit(rtf, 0xD800 + ((code - 0x10000) >> 10));
    appendUnit(rtf, 0xDC00 + ((code - 0x10000) & 0x3FF));
}

}  // namespace

std::string rtfText(std::string_view text) {
    std::string rtf;
    while (!text.empty()) {
        const std::size_t length = letterLength(text);
        const std::string_view letter = text.substr(0, length == 0 ? 1 : length);
        text.remove_prefix(letter.size());
        if (length == 0)
            rtf += '?';
        else if (letter == "\n")
            rtf += "\\line ";
        else if (letter == "\\" || letter == "{" || letter == "}")
            rtf.append("\\").append(letter);
        else if (length == 1)
            rtf += letter;
        else
            appendCodePoint(rtf, codePoint(letter));
    }
    return rtf;
}

std::string rtfDocument(std::span<const std::string> paragraphs) {
    std::string rtf = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Calibri;}}\\f0\\fs22\n";
    for (const std::string& paragraph : paragraphs)
        rtf += rtfText(paragraph) + "\\par\n";
    return rtf + "}\n";
}

}  // namespace lorvane
