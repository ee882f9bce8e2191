// How the sentences of the report become a section.
#pragma once

#include <string>
#include <vector>

#include "screen/sentences.h"

namespace lorvane {

/// A section of the report: its heading, and its text as summary and in detail.
struct ReportSection {
    std::vector<Sentence> heading;
    std::vector<Block> summary;
    std::vector<Block> detail;
};

enum class Halves { summary = 1, detail = 2 };

struct SectionText {
    std::string heading;
    std::string text;
};

/// The section for a study. Throws std::logic_error for a place that no one knows.
SectionText sectionText(const ReportSection& section, Halves half, const StudyFacts& facts);

}  // namespace lorvane
