// Writes the blocks of a document one below the other.
#include "reporting/document_text.h"

#include "reporting/document_blocks.h"
#include "reporting/text_lines.h"
#include "reporting/text_table.h"

namespace lorvane {

namespace {

// How many empty lines part two blocks. The little space below the heading of a section is none.
int emptyLines(const DocumentBlock& above, const DocumentBlock& below) {
    if (below.pageBreak == PageBreaks::forced)
        return 2;
    const bool hasTable = above.table || below.table;
    const bool isEmptySection = above.kind == BlockKinds::section && below.isHeading();
    return hasTable || isEmptySection || below.above > below.points / 2 ? 1 : 0;
}

std::string textOf(const DocumentBlock& block) {
    if (!block.table) {
        const std::size_t width = widest(brokenLines(block.text, block.text.size()));
        const char sign = block.kind == BlockKinds::part ? '=' : '-';
        return block.text + "\n" + (block.isHeading() ? std::string(width, sign) + "\n" : "");
    }
    std::string text;
    for (const std::string& line : linesOf(*block.table))
        text.append(line).append("\n");
    return text;
}

}  // namespace

std::string plainTextOf(const Document& document) {
    std::string text;
    const auto blocks = blocksOf(document.steps);
    const DocumentBlock* above = nullptr;
    for (const DocumentBlock& block : blocks) {
        if (above)
            text.append(static_cast<std::size_t>(emptyLines(*above, block)), '\n');
        text += textOf(block);
        above = &block;
    }
    return text;
}

}  // namespace lorvane
