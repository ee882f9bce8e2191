// From sentences to paragraphs.
#include "screen/sentences.h"

namespace lorvane {

namespace {

// Inserts what the places stand for; what it inserts is not read again.
std::string filled(std::string_view pattern, const StudyFacts& facts, int level) {
    std::string text;
    while (!pattern.empty()) {
        const std::size_t open = pattern.find('{');
        text += pattern.substr(0, open);
        if (open == std::string_view::npos)
            break;
        const std::size_t close = pattern.find('}', open);
        text += placeText(pattern.substr(open + 1, close - open - 1), facts, level);
        pattern.remove_prefix(close + 1);
    }
    return text;
}

}  // namespace

std::vector<int> levelsOf(Levels levels, const Study& s) {
    if (levels == Levels::none || levels == Levels::lowestOne)
        return {levels == Levels::none ? 0 : 1};
    const int lowest = levels == Levels::clusters      ? 2
                       : levels == Levels::blockedOnes ? s.RandomizedLevel + 1
                                                       : 1;
    std::vector<int> told;
    for (int level = s.NumLevels; level >= lowest; --level)
        told.push_back(level);
    if (levels == Levels::fromLowest)
        told = {told.rbegin(), told.rend()};
    return told;
}

Paragraph told(std::span<const Sentence> sentences, const StudyFacts& facts, int level) {
    const cases::Set cases = casesOf(facts) | (level == 0 ? 0 : casesOf(facts, level));
    Paragraph paragraph;
    for (const Sentence& sentence : sentences) {
        if ((sentence.when & cases) != sentence.when)
            continue;
        for (const Run& run : markedText(sentence.text))
            paragraph.push_back({filled(run.text, facts, level), run.strong});
    }
    return paragraph;
}

}  // namespace lorvane
