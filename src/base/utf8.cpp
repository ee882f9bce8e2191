// Text in UTF-8.
#include "base/utf8.h"

#include <algorithm>
#include <vector>

namespace lorvane {

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

bool isCleanText(std::string_view text) {
    while (!text.empty()) {
        const std::size_t length = letterLength(text);
        if (length == 0 || text.front() == '\0')
            return false;
        text.remove_prefix(length);
    }
    return true;
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
