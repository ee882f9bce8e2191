// A table of texts as other programs take it from the clipboard.
#pragma once

#include <string>
#include <vector>

namespace lorvane {

using TextRow = std::vector<std::string>;

/// The text of a cell on one line, without double blanks and blanks at its ends.
std::string cellText(std::string text);

/// A line a row, cells parted by tabs.
std::string tabbedText(const std::vector<TextRow>& rows);

/// The rows as a table; the texts are plain text in it.
std::string htmlTable(const std::vector<TextRow>& rows);

}  // namespace lorvane
