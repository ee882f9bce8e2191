// Text in UTF-8: whether it is, and where its letters end.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace lorvane {

/// Number of bytes of the letter at the head of a text that is not empty; 0 when there is none.
std::size_t letterLength(std::string_view text);

/// The number of a letter; a byte that is none has its own.
unsigned codePoint(std::string_view letter);

/// Whether the text is UTF-8 without a NUL, which every file and every window can take.
bool isCleanText(std::string_view text);

/// What becomes of line ends; they are kept where a text has lines.
enum class LineEnds { escaped, kept };

/// The text with what would steer a screen (control characters, changes of the writing direction, bytes that
/// are no letters) written as "\x1b" or "\u202e".
std::string printable(std::string_view text, LineEnds ends = LineEnds::escaped);

/// The text with a blank for every line end and tabulator.
std::string withoutLineEnds(std::string text);

/// How many places the text takes where all letters are equally wide: none for a mark on a letter, two for an
/// East Asian one.
std::size_t shownWidth(std::string_view text);

/// The text up to so many letters.
std::string_view firstLetters(std::string_view text, std::size_t letters);

/// The text with at most so many letters, 3 or more; a longer one has an ellipsis in place of its middle.
std::string cutInMiddle(std::string_view text, std::size_t letters);

}  // namespace lorvane
