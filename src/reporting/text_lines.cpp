// Breaks lines where letters are equally wide.
#include "reporting/text_lines.h"

#include <algorithm>

#include "base/utf8.h"

namespace lorvane {

namespace {

// The bytes of as many letters as fit, at least one; marks stay on their letter.
std::size_t fittingBytes(std::string_view text, std::size_t width) {
    std::size_t bytes = 0;
    std::size_t used = 0;
    while (bytes < text.size()) {
        const std::size_t length = std::max<std::size_t>(letterLength(text.substr(bytes)), 1);
        used += shownWidth(text.substr(bytes, length));
        if (used > width && bytes > 0)
            break;
        bytes += length;
    }
    return bytes;
}

// Breaks a line at blanks, and inside of words that are longer.
void addBroken(Lines& lines, std::string_view line, std::size_t width) {
    while (shownWidth(line) > width) {
        const std::size_t fitting = fittingBytes(line, width);
        const std::size_t blank = line.rfind(' ', fitting);
        const bool atBlank = blank != std::string_view::npos && blank > 0;
        lines.emplace_back(line.substr(0, atBlank ? blank : fitting));
        line.remove_prefix(atBlank ? blank + 1 : fitting);
    }
    lines.emplace_back(line);
}

}  // namespace

Lines brokenLines(std::string_view text, std::size_t width) {
    Lines lines;
    for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n')) {
        addBroken(lines, text.substr(0, end), width);
        text.remove_prefix(end + 1);
    }
    addBroken(lines, text, width);
    return lines;
}

std::size_t widest(const Lines& lines) {
    std::size_t width = 0;
    for (const std::string& line : lines)
        width = std::max(width, shownWidth(line));
    return width;
}

}  // namespace lorvane
