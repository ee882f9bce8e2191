// Reads the texts of the guide: which frames there are, and what each tells in which case. The form of the
// files is told in CONTRIBUTING.md.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/marked_text.h"

namespace lorvane {

/// A stretch of a paragraph that is told where all of its conditions hold.
struct GuidePiece {
    std::vector<std::string> conditions;  ///< "means", "not blocked"
    std::string levels;                   ///< "nested level": told once for each of them; empty: once
    Paragraph text;                       ///< with places such as "{name 2}"
};

using GuideParagraph = std::vector<GuidePiece>;

struct GuideEntry {
    std::string title;
    std::string at;    ///< what it points at; empty for nothing
    std::string menu;  ///< the menu that it speaks of; empty for none
    std::vector<GuideParagraph> paragraphs;
};

/// By number of the frame.
using GuideEntries = std::map<int, GuideEntry>;

/// Adds the frames of a text. Throws std::logic_error, which tells the line, for a text in no such form.
void readGuide(std::string_view text, GuideEntries& entries);

/// The short form of a source by its key. Throws std::logic_error for a key that no source has.
std::string shortSource(std::string_view key);

}  // namespace lorvane
