// The programs that the desktop has for files.
#pragma once

#include "platform/shell.h"

namespace lorvane {

class QtShell final : public Shell {
public:
    bool open(const std::string& path) override;
};

}  // namespace lorvane
