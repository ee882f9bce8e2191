// Opens a file with the program that the system has for it.
#pragma once

#include <string>

namespace lorvane {

class Shell {
public:
    virtual ~Shell() = default;

    /// False when the system has no program for it.
    virtual bool open(const std::string& path) = 0;
};

}  // namespace lorvane
