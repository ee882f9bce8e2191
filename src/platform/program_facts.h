// What a program knows of itself only when it is built and run.
#pragma once

#include <string>
#include <vector>

namespace lorvane {

struct LibraryVersion {
    std::string library;  ///< "Qt"
    std::string version;  ///< "6.4.2"
};

struct ProgramFacts {
    std::string version = {};
    std::vector<LibraryVersion> libraries = {};
};

}  // namespace lorvane
