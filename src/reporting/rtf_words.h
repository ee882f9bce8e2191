// What rich text is made of: control words, lengths, colours.
#pragma once

#include <string>
#include <vector>

#include "platform/controls.h"

namespace lorvane {

/// A control word with its number.
std::string rtfWord(const char* name, long number);

/// Lengths are in twentieths of a point.
long twipsOfInches(double inches);
long twipsOfPoints(double points);

/// The size of letters.
std::string rtfSize(double points);

/// The colours of a file, which names them by their numbers, from 1.
class RtfColours {
public:
    long numberOf(Colour colour);

    /// The table at the head of the file.
    std::string table() const;

private:
    std::vector<Colour> colours;
};

}  // namespace lorvane
