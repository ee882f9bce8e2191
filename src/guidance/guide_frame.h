// One frame of a guide, as it is shown at the moment.
#pragma once

#include <string>
#include <vector>

namespace lorvane {

struct GuideFrame {
    int frame = 0;
    std::string caption;  ///< the part of the guide, "Part 2"
    std::string title;
    std::vector<std::string> text;  ///< by paragraph
    std::string target;             ///< control or command that it speaks of; empty for none
    std::string menu;               ///< the menu that it speaks of; empty for none
    std::vector<int> frames;        ///< all that there are for the study
};

}  // namespace lorvane
