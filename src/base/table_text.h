// A table of texts as other programs take it from the clipboard.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace lorvane {

using TextRow = std::vector<std::string>;

/// Text between the tags of HTML: what would be markup stands as it is.
std::string htmlText(std::string_view text);

/// The text of a cell on one line, without double blanks and blanks at its ends.
std::string cellText(std::string text);

/// A line a row, cells parted by tabs.
std::string tabbedText(const std::vector<TextRow>& rows);

/// The rows as a table; the texts are plain text in it.
std::string htmlTable(const std::vector<TextRow>& rows);

}  // namespace lorvane
