// Names of controls and fields.
#include "base/names.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <vector>

#include "base/letter_case.h"
#include "base/utf8.h"

namespace lorvane {

namespace {

// No known name is longer; what follows in a longer one brings none nearer.
constexpr std::size_t longestCompared = 80;
constexpr std::size_t longestQuoted = 60;

// The whole text as a number.
std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool read = result.ec == std::errc() && result.ptr == text.data() + text.size();
    return read ? std::optional(number) : std::nullopt;
}

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

}  // namespace

IndexedName splitName(std::string_view name) {
    const std::size_t open = name.rfind('(');
    if (open == std::string_view::npos || open == 0 || name.back() != ')')
        return {name, std::nullopt};
    const auto index = wholeNumber(name.substr(open + 1, name.size() - open - 2));
    return index ? IndexedName{name.substr(0, open), index} : IndexedName{name, std::nullopt};
}

std::optional<PairName> splitPairName(std::string_view name) {
    const std::size_t open = name.rfind('(');
    const std::size_t comma = name.rfind(',');
    if (open == std::string_view::npos || comma == std::string_view::npos || comma < open ||
        name.back() != ')')
        return std::nullopt;
    const auto first = wholeNumber(name.substr(open + 1, comma - open - 1));
    const auto second = wholeNumber(name.substr(comma + 1, name.size() - comma - 2));
    if (!first || !second)
        return std::nullopt;
    return PairName{name.substr(0, open), *first, *second};
}

std::string indexedName(std::string_view stem, int index) {
    return std::string(stem) + "(" + std::to_string(index) + ")";
}

std::string inQuotes(std::string_view name) { return '"' + cutInMiddle(name, longestQuoted) + '"'; }

std::string nearestName(std::string_view name, std::span<const std::string> known) {
    const std::string wanted = lowerCased(name.substr(0, longestCompared));
    std::string best;
    std::size_t fewest = std::numeric_limits<std::size_t>::max();
    for (const std::string& candidate : known) {
        const std::size_t edits = editDistance(wanted, lowerCased(candidate.substr(0, longestCompared)));
        if (edits < fewest) {
            fewest = edits;
            best = candidate;
        }
    }
    return best;
}

}  // namespace lorvane
