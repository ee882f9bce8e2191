// The study in words.
#include "screen/design_words.h"

#include <cmath>

#include "base/letter_case.h"
#include "base/money.h"
#include "base/number_text.h"
#include "engine/level_costs.h"

namespace lorvane {

namespace {

constexpr const char* levelWords[] = {"Two-level", "Three-level", "Four-level"};

std::string lowerName(const Study& s, int level) { return lowerCased(s.txtName(level)); }

std::string nestingClause(const Study& s) {
    std::string clause = s.txtName(1);
    for (int level = 2; level <= s.NumLevels; ++level)
        clause += " within " + lowerName(s, level);
    return clause;
}

std::string blockedClause(const Study& s) {
    std::vector<std::string> blocked;
    for (int level = s.RandomizedLevel + 1; level <= s.NumLevels; ++level)
        blocked.push_back(lowerName(s, level));
    return blocked.empty() ? "" : "; " + joinedNames(blocked) + " are blocked";
}

}  // namespace

std::string designTitle(const Study& s) {
    return std::string(levelWords[s.NumLevels - 2]) +
           (s.isHierarchical() ? " hierarchical design" : " randomized-block design");
}

std::string designSentence(const Study& s) {
    return nestingClause(s) + ". " + s.txtName(s.RandomizedLevel) + " are randomized" + blockedClause(s) +
           ".";
}

std::string powerNote(const Study& s) {
    if (!s.result.xValid)
        return "";
    if (!s.isTested())
        return "This effect has no test";
    const std::string required = shortestText(roundHalfToEven(s.ReqPower * 100)) + "%";
    return s.result.txtPower >= s.ReqPower ? "Reaches the required power of " + required
                                           : "Does not reach the required power of " + required;
}

std::string unitsNote(const Study& s) {
    constexpr double largestTold = 1e15;
    const PerLevel<LevelCost> costs = levelCosts(s);
    std::string note;
    for (int level = s.NumLevels; level >= 1; --level) {
        const double units = costs(level).units();
        if (!(std::fabs(units) < largestTold))
            return "";
        note += (note.empty() ? "" : ", ") + groupedText(static_cast<std::int64_t>(units)) + " " +
                lowerName(s, level);
    }
    return note;
}

std::string joinedNames(const std::vector<std::string>& names) {
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (i > 0)
            text += i + 1 == names.size() ? " and " : ", ";
        text += names[i];
    }
    return text;
}

}  // namespace lorvane
