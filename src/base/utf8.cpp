// Text in UTF-8.
#include "base/utf8.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <vector>

namespace lorvane {

namespace {

struct CodeRange {
    unsigned first, last;
};

// Control characters, marks and overrides of the writing direction, line and paragraph separators.
constexpr CodeRange steering[] = {{0, 0x1F},        {0x7F, 0x9F},     {0x61C, 0x61C},  {0x200E, 0x200F},
                                  {0x2028, 0x202E}, {0x2066, 0x2069}, {0xFEFF, 0xFEFF}};

// Marks that stand on the letter before them, joiners, variants of signs.
constexpr CodeRange combining[] = {
    {0x300, 0x36F},   {0x483, 0x489},   {0x591, 0x5BD},     {0x5BF, 0x5BF},    {0x5C1, 0x5C2},
    {0x5C4, 0x5C5},   {0x610, 0x61A},   {0x64B, 0x65F},     {0x670, 0x670},    {0x6D6, 0x6DC},
    {0x93C, 0x93C},   {0x941, 0x948},   {0x94D, 0x94D},     {0xE31, 0xE31},    {0xE34, 0xE3A},
    {0xE47, 0xE4E},   {0x1AB0, 0x1AFF}, {0x1DC0, 0x1DFF},   {0x200B, 0x200D},  {0x20D0, 0x20FF},
    {0xFE00, 0xFE0F}, {0xFE20, 0xFE2F}, {0x1F3FB, 0x1F3FF}, {0xE0100, 0xE01EF}};

// East Asian letters and pictures, which are twice as wide as the others.
constexpr CodeRange wide[] = {{0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0xA4CF},   {0xAC00, 0xD7A3},
                              {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF01, 0xFF60},   {0xFFE0, 0xFFE6},
                              {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF}, {0x1F900, 0x1F9FF}, {0x20000, 0x3FFFD}};

template <std::size_t Count>
bool isAmong(unsigned code, const CodeRange (&ranges)[Count]) {
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [code](const CodeRange& range) { return code >= range.first && code <= range.last; });
}

std::string escaped(unsigned code) {
    if (code == '\n')
        return "\\n";
    if (code == '\r')
        return "\\r";
    if (code == '\t')
        return "\\t";
    std::array<char, 12> buffer{};
    std::snprintf(buffer.data(), buffer.size(), code <= 0xFF ? "\\x%02x" : "\\u%04x", code);
    return buffer.data();
}

}  // namespace

std::size_t letterLength(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char head = byte(0);
    if (head < 0x80)
        return 1;
    const std::size_t length = head >= 0xF0 ? 4 : head >= 0xE0 ? 3 : 2;
    if (head < 0xC2 || head > 0xF4 || text.size() < length)
        return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            return 0;
    }
    const bool overlong = (head == 0xE0 && byte(1) < 0xA0) || (head == 0xF0 && byte(1) < 0x90);
    const bool surrogate = head == 0xED && byte(1) > 0x9F;
    const bool beyond = head == 0xF4 && byte(1) > 0x8F;
    return overlong || surrogate || beyond ? 0 : length;
}

unsigned codePoint(std::string_view letter) {
    unsigned code = static_cast<unsigned char>(letter[0]);
    if (letter.size() > 1)
        code &= 0x7Fu >> letter.size();
    for (const char c : letter.substr(1))
        code = code << 6 | (static_cast<unsigned char>(c) & 0x3F);
    return code;
}

bool isCleanText(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = letterLength(text);
        if (length == 0 || text.front() == '\0')
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string printable(std::string_view text, LineEnds ends) {
    std::string shown;
    while (!text.empty()) {
        const std::size_t length = letterLength(text);
        const std::string_view letter = text.substr(0, std::max<std::size_t>(length, 1));
        const unsigned code = codePoint(letter);
        const bool isMeant = letter == "\n" && ends == LineEnds::kept;
        if (!isMeant && (length == 0 || isAmong(code, steering)))
            shown += escaped(code);
        else
            shown += letter;
        text.remove_prefix(letter.size());
    }
    return shown;
}

std::string withoutLineEnds(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char sign) { return sign == '\n' || sign == '\r' || sign == '\t'; },
        ' ');
    return text;
}

std::size_t shownWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const std::string_view letter = text.substr(0, std::max<std::size_t>(letterLength(text), 1));
        const unsigned code = codePoint(letter);
        width += isAmong(code, combining) ? 0 : isAmong(code, wide) ? 2 : 1;
        text.remove_prefix(letter.size());
    }
    return width;
}

std::string_view firstLetters(std::string_view text, std::size_t letters) {
    std::size_t end = 0;
    for (std::size_t i = 0; i < letters && end < text.size(); ++i)
        end += std::max<std::size_t>(letterLength(text.substr(end)), 1);
    return text.substr(0, end);
}

std::string cutInMiddle(std::string_view text, std::size_t letters) {
    std::vector<std::size_t> ends = {0};
    while (ends.back() < text.size())
        ends.push_back(ends.back() + std::max<std::size_t>(letterLength(text.substr(ends.back())), 1));
    const std::size_t count = ends.size() - 1;
    if (count <= letters)
        return std::string(text);
    const std::size_t tail = (letters - 1) / 2;
    const std::size_t head = letters - 1 - tail;
    return std::string(text.substr(0, ends[head])) + "…" + std::string(text.substr(ends[count - tail]));
}

}  // namespace lorvane
