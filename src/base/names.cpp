// Names of controls and fields.
#include "base/names.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <vector>

#include "base/number_text.h"

namespace lorvane {

namespace {

std::size_t editDistance(const std::string& a, const std::string& b) {
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        row[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({row[j] + 1, row[j - 1] + 1, replaced});
        }
    }
    return row[b.size()];
}

// Runs of small letters and the way to their capitals: a distance, or the odd numbers of pairs.
struct CaseRun {
    char32_t first, last;
    int distance;
    enum class Kind { run, pairsEndingOdd, pairsEndingEven } kind = Kind::run;
};

constexpr CaseRun caseRuns[] = {{U'a', U'z', -32},
                                {0xE0, 0xF6, -32},
                                {0xF8, 0xFE, -32},
                                {0x101, 0x137, -1, CaseRun::Kind::pairsEndingOdd},
                                {0x13A, 0x148, -1, CaseRun::Kind::pairsEndingEven},
                                {0x14B, 0x177, -1, CaseRun::Kind::pairsEndingOdd},
                                {0x17A, 0x17E, -1, CaseRun::Kind::pairsEndingEven},
                                {0x3B1, 0x3C1, -32},
                                {0x3C3, 0x3C9, -32},
                                {0x430, 0x44F, -32},
                                {0x450, 0x45F, -80}};

char32_t capitalOf(char32_t letter) {
    for (const CaseRun& run : caseRuns) {
        if (letter < run.first || letter > run.last)
            continue;
        const bool odd = letter % 2 == 1;
        if (run.kind == CaseRun::Kind::run || odd == (run.kind == CaseRun::Kind::pairsEndingOdd))
            return static_cast<char32_t>(static_cast<int>(letter) + run.distance);
    }
    return letter;
}

// A letter of two bytes at the head of UTF-8 text; all letters with a case here have one byte or two.
bool isTwoByteLetter(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    return text.size() >= 2 && (byte(0) & 0xE0) == 0xC0 && (byte(1) & 0xC0) == 0x80;
}

}  // namespace

std::string upperCased(std::string_view text) {
    std::string capitals;
    while (!text.empty()) {
        if (isTwoByteLetter(text)) {
            const char32_t letter =
                static_cast<char32_t>((text[0] & 0x1F) << 6) | static_cast<char32_t>(text[1] & 0x3F);
            const char32_t capital = capitalOf(letter);
            capitals += static_cast<char>(0xC0 | (capital >> 6));
            capitals += static_cast<char>(0x80 | (capital & 0x3F));
            text.remove_prefix(2);
        } else {
            const auto byte = static_cast<unsigned char>(text.front());
            capitals += byte < 0x80 ? static_cast<char>(capitalOf(byte)) : text.front();
            text.remove_prefix(1);
        }
    }
    return capitals;
}

IndexedName splitName(std::string_view name) {
    const std::size_t open = name.rfind('(');
    if (open == std::string_view::npos || open == 0 || name.back() != ')')
        return {name, std::nullopt};
    const std::string_view digits = name.substr(open + 1, name.size() - open - 2);
    int index = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), index);
    if (result.ec != std::errc() || result.ptr != digits.data() + digits.size())
        return {name, std::nullopt};
    return {name.substr(0, open), index};
}

std::string indexedName(std::string_view stem, int index) {
    return std::string(stem) + "(" + std::to_string(index) + ")";
}

std::string nearestName(std::string_view name, std::span<const std::string> known) {
    const std::string wanted = lowerCased(name);
    std::string best;
    std::size_t fewest = std::numeric_limits<std::size_t>::max();
    for (const std::string& candidate : known) {
        const std::size_t edits = editDistance(wanted, lowerCased(candidate));
        if (edits < fewest) {
            fewest = edits;
            best = candidate;
        }
    }
    return best;
}

}  // namespace lorvane
