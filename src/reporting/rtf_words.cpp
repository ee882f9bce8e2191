// Words of rich text.
#include "reporting/rtf_words.h"

#include <algorithm>
#include <cmath>

namespace lorvane {

std::string rtfWord(const char* name, long number) {
    return std::string("\\").append(name).append(std::to_string(number));
}

long twipsOfInches(double inches) { return std::lround(inches * 1440); }
long twipsOfPoints(double points) { return std::lround(points * 20); }

std::string rtfSize(double points) { return rtfWord("fs", std::lround(points * 2)); }

long RtfColours::numberOf(Colour colour) {
    const auto found = std::find(colours.begin(), colours.end(), colour);
    const long number = found - colours.begin() + 1;
    if (found == colours.end())
        colours.push_back(colour);
    return number;
}

std::string RtfColours::table() const {
    std::string rtf = "{\\colortbl;";
    for (const Colour& colour : colours) {
        rtf += rtfWord("red", colour.red) + rtfWord("green", colour.green) + rtfWord("blue", colour.blue);
        rtf += ";";
    }
    return rtf + "}\n";
}

}  // namespace lorvane
