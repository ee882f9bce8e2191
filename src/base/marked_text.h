// Text with strong parts, as plain data. A writer of the program's own texts marks them by "**".
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

/// Letters of one look.
struct Run {
    std::string text;
    bool strong = false;

    friend bool operator==(const Run&, const Run&) = default;
};

using Paragraph = std::vector<Run>;

/// Reads "an ICC of **0.10**" into its runs. A mark without a second one stays as it is written. Not for what
/// a user wrote: fill that into the runs.
Paragraph markedText(std::string_view text);

/// The letters of a paragraph.
std::string plainText(const Paragraph& paragraph);

/// The letters of paragraphs, parted by an empty line.
std::string plainText(const std::vector<Paragraph>& paragraphs);

}  // namespace lorvane
