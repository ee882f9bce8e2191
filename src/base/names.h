// Names of controls and fields as people write them: "txtNT(2)" is the stem "txtNT" at index 2.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lorvane {

/// A name taken apart; index is empty where the name carries none.
struct IndexedName {
    std::string_view stem;
    std::optional<int> index;
};

/// "txtNT(2)" gives {"txtNT", 2}; "txtd" gives {"txtd"}. A malformed index stays part of the stem.
IndexedName splitName(std::string_view name);

/// A name with two indices: "CurrChart(2,15)".
struct PairName {
    std::string_view stem;
    int first;
    int second;
};

/// Such a name taken apart; nothing for any other one.
std::optional<PairName> splitPairName(std::string_view name);

/// The stem with its index, as in "txtNT(2)".
std::string indexedName(std::string_view stem, int index);

/// A name or a value as a sentence tells it: in quotes, a long one without its middle.
std::string inQuotes(std::string_view name);

/// The known name with the fewest single-letter edits from the given one, upper and lower case being the
/// same; empty when there are no known names.
std::string nearestName(std::string_view name, std::span<const std::string> known);

}  // namespace lorvane
