// From sentences to the text of a section.
#include "reporting/report_sentences.h"

namespace lorvane {

namespace {

std::string textOf(const std::vector<Block>& blocks, const StudyFacts& facts) {
    std::string text;
    for (const Block& block : blocks) {
        const std::size_t start = text.size();
        for (const int level : levelsOf(block.levels, facts.study())) {
            const std::string words = plainText(told(block.sentences, facts, level));
            if (!words.empty() && text.size() > start)
                text += block.between;
            text += words;
        }
    }
    return text;
}

}  // namespace

SectionText sectionText(const ReportSection& section, Halves half, const StudyFacts& facts) {
    return {plainText(told(section.heading, facts, 0)),
            textOf(half == Halves::summary ? section.summary : section.detail, facts)};
}

}  // namespace lorvane
