// The words that the texts of the guide are filled with: three tables and the loops that read them.
#include "guidance/guide_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include "base/letter_case.h"
#include "base/money.h"
#include "base/number_text.h"
#include "base/utf8.h"
#include "screen/design_words.h"
#include "session/field_book.h"
#include "session/field_words.h"

namespace lorvane {

namespace {

using F = const GuideFacts&;

[[noreturn]] void unknown(const char* what, std::string_view name) {
    throw std::logic_error(std::string("The guide knows no ") + what + " \"" + std::string(name) + "\".");
}

// Conditions -----------------------------------------------------------------------------------------------

bool hasCovariates(const Study& s, int level) { return s.txtQ(level) > 0; }

bool anyLevel(const Study& s, bool (*holds)(const Study&, int)) {
    for (int level = lowestLevel; level <= s.NumLevels; ++level) {
        if (holds(s, level))
            return true;
    }
    return false;
}

int blockedLevels(const Study& s) { return s.NumLevels - s.RandomizedLevel; }

// Both groups have the same outcome, as in a study that has just begun.
bool isWithoutEffect(const Study& s) {
    return s.isMeans() ? s.txtd == 0 : std::fabs(s.txtEvent2 - s.txtPrev) < 1e-9;
}

struct Condition {
    std::string_view name;
    bool (*holds)(F);
};

constexpr Condition conditions[] = {
    {"means", [](F f) { return f.study().isMeans(); }},
    {"binary", [](F f) { return f.study().isBinary(); }},
    {"d within", [](F f) { return f.study().isMeans() && f.study().DType == DTypes::within; }},
    {"d total", [](F f) { return f.study().isMeans() && f.study().DType == DTypes::total; }},
    {"odds ratio",
     [](F f) { return f.study().isBinary() && f.study().BinaryType == BinaryTypes::oddsRatio; }},
    {"risk difference",
     [](F f) { return f.study().isBinary() && f.study().BinaryType == BinaryTypes::riskDifference; }},
    {"two levels", [](F f) { return f.study().NumLevels == 2; }},
    {"three levels", [](F f) { return f.study().NumLevels == 3; }},
    {"four levels", [](F f) { return f.study().NumLevels == 4; }},
    {"hierarchical", [](F f) { return f.study().isHierarchical(); }},
    {"blocked", [](F f) { return !f.study().isHierarchical(); }},
    {"one blocked level", [](F f) { return blockedLevels(f.study()) == 1; }},
    {"several blocked levels", [](F f) { return blockedLevels(f.study()) > 1; }},
    {"one-tailed", [](F f) { return f.study().txtTails == Tails::one; }},
    {"two-tailed", [](F f) { return f.study().txtTails == Tails::two; }},
    {"icc entered", [](F f) { return f.study().IccMetric == IccMetrics::icc; }},
    {"span entered", [](F f) { return f.study().IccMetric == IccMetrics::span; }},
    {"tau entered", [](F f) { return f.study().TauSqMetric == TauSqMetrics::tauSquared; }},
    {"effects entered", [](F f) { return f.study().TauSqMetric == TauSqMetrics::spanOfEffects; }},
    {"omega entered", [](F f) { return f.study().TauSqMetric == TauSqMetrics::omega; }},
    {"covariates", [](F f) { return anyLevel(f.study(), hasCovariates); }},
    {"power reached",
     [](F f) { return f.study().result.xValid && f.study().result.txtPower >= f.study().ReqPower; }},
    {"power missed",
     [](F f) { return f.study().result.xValid && f.study().result.txtPower < f.study().ReqPower; }},
    {"no power", [](F f) { return !f.study().result.xValid; }},
    {"no effect", [](F f) { return isWithoutEffect(f.study()); }},
    {"tested", [](F f) { return f.study().isTested(); }},
};

bool holds(std::string_view name, F facts) {
    constexpr std::string_view denial = "not ";
    if (name.starts_with(denial))
        return !holds(name.substr(denial.size()), facts);
    for (const Condition& condition : conditions) {
        if (condition.name == name)
            return condition.holds(facts);
    }
    unknown("condition", name);
}

// Levels ---------------------------------------------------------------------------------------------------

struct LevelKind {
    std::string_view name;
    bool (*holds)(const Study&, int);
};

constexpr LevelKind levelKinds[] = {
    {"level", [](const Study&, int) { return true; }},
    {"cluster level", [](const Study&, int level) { return level > lowestLevel; }},
    {"blocked level", [](const Study& s, int level) { return s.isBlocked(level); }},
    {"nested level", [](const Study& s, int level) { return level < s.RandomizedLevel; }},
    {"level below top", [](const Study& s, int level) { return level < s.NumLevels; }},
    {"level with covariates", hasCovariates},
    {"fixed level", [](const Study& s, int level) { return s.txtModel(level) == SamplingModels::fixed; }},
};

std::vector<int> levelsOf(const std::string& kind, const Study& s) {
    if (kind.empty())
        return {0};
    const auto found = std::find_if(std::begin(levelKinds), std::end(levelKinds),
                                    [&](const LevelKind& row) { return row.name == kind; });
    if (found == std::end(levelKinds))
        unknown("kind of level", kind);
    std::vector<int> levels;
    for (int level = s.NumLevels; level >= lowestLevel; --level) {
        if (found->holds(s, level))
            levels.push_back(level);
    }
    return levels;
}

// Places ---------------------------------------------------------------------------------------------------

// A name on one line, in small letters as inside a sentence.
std::string smallName(const std::string& name) { return lowerCased(withoutLineEnds(name)); }

std::string nameOf(const Study& s, int level) { return smallName(s.txtName(level)); }

std::string namesOf(const Study& s, int from, int to) {
    std::vector<std::string> names;
    for (int level = from; level <= to; ++level)
        names.push_back(nameOf(s, level));
    return joinedNames(names);
}

const char* roleOf(const Study& s, int level) {
    if (level == s.RandomizedLevel)
        return "randomized";
    return s.isBlocked(level) ? "blocked" : "nested";
}

// The number of a level's units, and those of both groups where they differ.
std::string unitsOf(const Study& s, int level) {
    if (s.isBlocked(level))
        return shortestText(s.txtNB(level));
    const std::string treated = shortestText(s.txtNT(level));
    const std::string control = shortestText(s.txtNC(level));
    if (treated == control)
        return treated;
    return treated + " in the " + smallName(s.treatedName()) + " group and " + control + " in the " +
           smallName(s.controlName()) + " group";
}

struct LevelPlace {
    std::string_view name;
    std::string (*text)(F, int level);
};

constexpr LevelPlace levelPlaces[] = {
    {"name", [](F f, int level) { return nameOf(f.study(), level); }},
    {"above", [](F f, int level) { return nameOf(f.study(), std::min(level + 1, f.study().NumLevels)); }},
    {"role", [](F f, int level) { return std::string(roleOf(f.study(), level)); }},
    {"units", [](F f, int level) { return unitsOf(f.study(), level); }},
};

std::string rate(double value) { return fixedText(value, 2); }

constexpr const char* levelWords[] = {"two", "three", "four"};

// The metric by study: one of four.
struct Metric {
    const char* name;
    const char* plural;
    const char* article;
    const char* field;
};

const Metric& metricOf(const Study& s) {
    static constexpr Metric within = {"d (within)", "d (within)", "a ", "txtd"};
    static constexpr Metric total = {"d (total)", "d (total)", "a ", "txtd"};
    static constexpr std::array<Metric, 4> binary = {{{"odds ratio", "odds ratios", "an ", "txtOR"},
                                                      {"risk ratio", "risk ratios", "a ", "txtRR"},
                                                      {"risk difference", "risk differences", "a ", "txtRD"},
                                                      {"risk", "risks", "a ", "txtP2"}}};
    if (s.isMeans())
        return s.DType == DTypes::within ? within : total;
    return binary[static_cast<std::size_t>(s.BinaryType) - 1];
}

// A value as its cell shows it; one without a cell in its shortest form.
std::string numberOf(F f, FieldRef field) {
    if (field->cell.stem.empty())
        return shortestText(readNumberField(f.state, field));
    return f.screen.cell(field->cell.stem, field.index).number;
}

std::string effectOf(F f) {
    const Metric& metric = metricOf(f.study());
    return std::string(metric.article) + metric.name + " of " + numberOf(f, *findField(metric.field));
}

struct StudyPlace {
    std::string_view name;
    std::string (*text)(F);
};

const StudyPlace studyPlaces[] = {
    {"randomized", [](F f) { return nameOf(f.study(), f.study().RandomizedLevel); }},
    {"top", [](F f) { return nameOf(f.study(), f.study().NumLevels); }},
    {"lowest", [](F f) { return nameOf(f.study(), lowestLevel); }},
    {"blocked", [](F f) { return namesOf(f.study(), f.study().RandomizedLevel + 1, f.study().NumLevels); }},
    {"uppers", [](F f) { return namesOf(f.study(), f.study().RandomizedLevel + 1, f.study().NumLevels); }},
    {"clusters", [](F f) { return namesOf(f.study(), 2, f.study().NumLevels); }},
    {"treated", [](F f) { return smallName(f.study().treatedName()); }},
    {"control", [](F f) { return smallName(f.study().controlName()); }},
    {"levels", [](F f) { return std::string(levelWords[f.study().NumLevels - 2]); }},
    {"design", [](F f) { return lowerCased(designTitle(f.study())); }},
    {"sense",
     [](F f) {
         std::string sentence = withoutLineEnds(designSentence(f.study()));
         sentence.pop_back();
         return sentence;
     }},
    {"means or risks", [](F f) { return std::string(f.study().isMeans() ? "means" : "risks"); }},
    {"metric", [](F f) { return std::string(metricOf(f.study()).name); }},
    {"metrics", [](F f) { return std::string(metricOf(f.study()).plural); }},
    {"effect", effectOf},
    {"alpha", [](F f) { return shortestText(f.study().txtAlpha); }},
    {"tails",
     [](F f) { return std::string(f.study().txtTails == Tails::one ? "one-tailed" : "two-tailed"); }},
    {"power",
     [](F f) { return f.study().result.xValid ? f.screen.pnlPower.number : std::string("not known"); }},
    {"required", [](F f) { return shortestText(roundHalfToEven(f.study().ReqPower * 100)) + "%"; }},
    {"cost", [](F f) { return f.screen.pnlCost.number; }},
    {"all units", [](F f) { return withoutLineEnds(unitsNote(f.study())); }},
    {"control risk", [](F f) { return rate(f.study().txtPrev); }},
    {"treated risk", [](F f) { return rate(f.study().txtEvent2); }},
    {"event rates", [](F f) { return rate(f.study().txtPrev) + " vs. " + rate(f.study().txtEvent2); }},
};

// The level that a place names by its number or its letter; the level of the piece where it names none.
int levelNamed(std::string_view name, const Study& s, int level) {
    if (name.empty())
        return level;
    if (name == "R")
        return s.RandomizedLevel;
    if (name == "T")
        return s.NumLevels;
    if (name == "B")
        return std::min(s.RandomizedLevel + 1, s.NumLevels);
    const auto number = readNumber(name);
    if (!number || *number < lowestLevel || *number > highestLevel)
        unknown("level", name);
    return static_cast<int>(*number);
}

bool isCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }

std::string lowerWord(std::string_view place) {
    std::string word(place);
    word.front() = static_cast<char>(word.front() - 'A' + 'a');
    return word;
}

std::string placeText(std::string_view place, F facts, int level) {
    if (!place.empty() && isCapital(place.front()))
        return beginSentence(placeText(lowerWord(place), facts, level));
    for (const StudyPlace& row : studyPlaces) {
        if (row.name == place)
            return row.text(facts);
    }
    const std::size_t blank = place.find(' ');
    const std::string_view name = place.substr(0, blank);
    const std::string_view rest = blank == place.npos ? std::string_view() : place.substr(blank + 1);
    if (name == "cite")
        return shortSource(rest);
    const int named = levelNamed(rest, facts.study(), level);
    for (const LevelPlace& row : levelPlaces) {
        if (row.name == name && named > 0)
            return row.text(facts, named);
    }
    for (const Field& field : fieldBook()) {
        if (field.stem == name && (field.index == FieldIndex::none || named > 0))
            return numberOf(facts, {&field, field.index == FieldIndex::none ? 0 : named});
    }
    unknown("place", place);
}

std::string filled(std::string_view text, F facts, int level) {
    std::string result;
    while (!text.empty()) {
        const std::size_t open = text.find('{');
        result += text.substr(0, open);
        if (open == text.npos)
            break;
        const std::size_t close = text.find('}', open);
        if (close == text.npos)
            unknown("place", text.substr(open));
        result += placeText(text.substr(open + 1, close - open - 1), facts, level);
        text.remove_prefix(close + 1);
    }
    return result;
}

bool isTold(const GuidePiece& piece, F facts) {
    return std::all_of(piece.conditions.begin(), piece.conditions.end(),
                       [&](const std::string& condition) { return holds(condition, facts); });
}

Paragraph told(const GuideParagraph& pieces, F facts) {
    Paragraph paragraph;
    for (const GuidePiece& piece : pieces) {
        if (!isTold(piece, facts))
            continue;
        for (const int level : levelsOf(piece.levels, facts.study())) {
            if (!paragraph.empty())
                paragraph.push_back({" "});
            for (const Run& run : piece.text)
                paragraph.push_back({filled(run.text, facts, level), run.strong});
        }
    }
    return paragraph;
}

}  // namespace

std::string titleOf(const GuideEntry& entry, const GuideFacts& facts) {
    return filled(entry.title, facts, 0);
}

std::vector<Paragraph> textOf(const GuideEntry& entry, const GuideFacts& facts) {
    std::vector<Paragraph> text;
    for (const GuideParagraph& pieces : entry.paragraphs) {
        if (Paragraph paragraph = told(pieces, facts); !paragraph.empty())
            text.push_back(std::move(paragraph));
    }
    return text;
}

}  // namespace lorvane
