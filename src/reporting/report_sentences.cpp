// From sentences to the text of a section.
#include "reporting/report_sentences.h"

#include <span>

namespace lorvane {

namespace {

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

// Inserts what the places stand for; what it inserts is not read again.
void appendFilled(std::string& text, std::string_view pattern, const ReportFacts& facts, int level) {
    while (!pattern.empty()) {
        const std::size_t open = pattern.find('{');
        text += pattern.substr(0, open);
        if (open == std::string_view::npos)
            return;
        const std::size_t close = pattern.find('}', open);
        text += placeText(pattern.substr(open + 1, close - open - 1), facts, level);
        pattern.remove_prefix(close + 1);
    }
}

void appendSentences(std::string& text, std::span<const Sentence> sentences, const ReportFacts& facts,
                     int level) {
    const cases::Set cases = casesOf(facts) | (level == 0 ? 0 : casesOf(facts, level));
    for (const Sentence& sentence : sentences) {
        if ((sentence.when & cases) == sentence.when)
            appendFilled(text, sentence.text, facts, level);
    }
}

std::string textOf(const std::vector<Block>& blocks, const ReportFacts& facts) {
    std::string text;
    for (const Block& block : blocks) {
        const std::size_t start = text.size();
        for (const int level : levelsOf(block.levels, facts.study())) {
            std::string told;
            appendSentences(told, block.sentences, facts, level);
            if (!told.empty() && text.size() > start)
                text += block.between;
            text += told;
        }
    }
    return text;
}

}  // namespace

SectionText sectionText(const ReportSection& section, Halves half, const ReportFacts& facts) {
    SectionText told;
    appendSentences(told.heading, section.heading, facts, 0);
    told.text = textOf(half == Halves::summary ? section.summary : section.detail, facts);
    return told;
}

}  // namespace lorvane
