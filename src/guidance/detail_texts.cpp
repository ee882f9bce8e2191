// What an item of the study screen means for the study at hand.
#include "guidance/detail_texts.h"

#include "base/letter_case.h"
#include "base/number_text.h"
#include "screen/design_words.h"

namespace lorvane {

namespace {

constexpr const char* numberWords[] = {"two", "three", "four"};

std::string lowerName(const Study& s, int level) { return lowerCased(s.txtName(level)); }

// The names of levels, lowest first, joined as the effect size speaks of them: "a", "a, and b", "a, b, and
// c".
std::string levelsAbove(const Study& s, int lowest) {
    std::string names;
    for (int level = lowest; level <= s.NumLevels; ++level) {
        if (level > lowest)
            names += level < s.NumLevels ? ", " : ", and ";
        names += s.txtName(level);
    }
    return names;
}

std::string roleSentence(const Study& s, int level) {
    if (level == s.RandomizedLevel)
        return s.txtName(level) + " are assigned to " + s.treatedName() + " or to " + s.controlName() + ".";
    if (s.isBlocked(level))
        return s.txtName(level) + " are blocked: each of them includes both groups.";
    return s.txtName(level) + " are nested: each of them belongs to one group with its " +
           lowerName(s, level + 1) + ".";
}

std::string sizeSentence(const Study& s, int level, const std::string& count, const std::string& group) {
    const std::string units = count + " " + lowerName(s, level) + group;
    if (level == s.NumLevels)
        return "The study will include " + units + ".";
    return "Each of the " + lowerName(s, level + 1) + " will include " + units + ".";
}

void addUnits(const Study& s, int level, std::vector<std::string>& paragraphs) {
    if (s.isBlocked(level)) {
        paragraphs.push_back(sizeSentence(s, level, shortestText(s.txtNB(level)), ""));
        return;
    }
    paragraphs.push_back(
        sizeSentence(s, level, shortestText(s.txtNT(level)), " in the " + s.treatedName() + " group"));
    paragraphs.push_back(
        sizeSentence(s, level, shortestText(s.txtNC(level)), " in the " + s.controlName() + " group"));
}

DetailText meansText(const Study& s) {
    const bool within = s.DType == DTypes::within;
    const std::string form = within ? "d (within)" : "d (total)";
    const std::string deviation =
        within ? "the within-cell standard deviation" : "the total standard deviation";
    const std::string frame = within ? "The standard deviation is computed for " + s.txtName(1) +
                                           " within cells (that is, within " + levelsAbove(s, 2) + "). "
                                     : "The standard deviation is computed for all " + s.txtName(1) +
                                           " (across " + levelsAbove(s, 2) + "). ";
    return {"Standardized mean difference, " + form,
            {"The standardized mean difference " + form +
                 " is defined as the raw difference in means divided by " + deviation +
                 ". This value is assumed to be " + fixedText(s.txtd, 3) + ".",
             "The standardized mean difference is defined as the difference in means (" + s.treatedName() +
                 " and " + s.controlName() + ") divided by the standard deviation.",
             frame + "It is computed within either treatment group, and assumed to be the same in both."}};
}

// What the effect corresponds to; a risk ratio and two risks are told by their rates alone.
std::string correspondence(const Study& s) {
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return ", corresponding to an odds ratio of " + fixedText(s.txtOR, 2);
    if (s.BinaryType == BinaryTypes::riskDifference)
        return ", corresponding to a risk difference of " + fixedText(s.txtRD, 2);
    return "";
}

std::string currentRates(const Study& s) {
    return "Currently, the event rates in the two groups are " + fixedText(s.txtPrev, 2) + " vs. " +
           fixedText(s.txtEvent2, 2) + correspondence(s) + ".";
}

DetailText oddsRatioText(const Study& s) {
    const std::string& treated = s.treatedName();
    const std::string& control = s.controlName();
    return {
        "Odds ratio",
        {"The odds ratio is defined as the ratio Odds(1)/Odds(2), where Odds(1) is the ratio of "
         "events/non-events in the " +
             treated + " group and Odds(2) is the ratio of events/non-events in the " + control + " group.",
         "If the event rate is lower in the " + treated + " group the odds ratio should be less than 1.0.",
         "If the event rate is higher in the " + treated +
             " group the odds ratio should be greater than 1.0.",
         "You must provide the event rate in the " + control + " group and the odds ratio.",
         "To ensure that the odds ratio was entered correctly, the program will display the event rate in "
         "the " +
             treated +
             " group. If needed, modify the odds ratio (for example you may need to enter 0.50 rather "
             "than 2.0, or 2.0 rather than 0.50).",
         currentRates(s)}};
}

DetailText riskDifferenceText(const Study& s) {
    return {"Risk difference",
            {"You must provide the event rate in the " + s.controlName() + " group and the risk difference.",
             "To ensure that the risk difference was entered correctly, the program will display the event "
             "rate in "
             "the " +
                 s.treatedName() +
                 " group. If needed, modify the risk difference (for example you may need to "
                 "enter -0.20 rather than 0.20, or 0.20 rather than -0.20).",
             currentRates(s)}};
}

}  // namespace

DetailText levelsText(const Study& s) {
    DetailText text{
        "Number of levels in the study design",
        {"The study has " + std::string(numberWords[s.NumLevels - 2]) + " levels. " + designSentence(s)}};
    for (int level = s.NumLevels; level >= 1; --level)
        text.paragraphs.push_back(roleSentence(s, level));
    return text;
}

DetailText unitsText(const Study& s, int level) {
    DetailText text{level == 0 ? "Number of units" : "Number of " + lowerName(s, level), {}};
    for (int k = s.NumLevels; k >= 1; --k) {
        if (level == 0 || k == level)
            addUnits(s, k, text.paragraphs);
    }
    text.paragraphs.push_back("In all, the study includes " + unitsNote(s) + ".");
    if (level == 0)
        text.paragraphs.push_back("Click on a specific row to get details for that row.");
    return text;
}

DetailText GetTextES(const Study& s) {
    if (s.isMeans())
        return meansText(s);
    if (s.BinaryType == BinaryTypes::oddsRatio)
        return oddsRatioText(s);
    if (s.BinaryType == BinaryTypes::riskDifference)
        return riskDifferenceText(s);
    return {"Effect size", {currentRates(s)}};
}

}  // namespace lorvane
