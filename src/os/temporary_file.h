// A new file beside a target whose place it shall take. Knows nothing of what is written.
#pragma once

#include <sys/stat.h>

#include <filesystem>

#include "os/open_file.h"

namespace lorvane {

/// Locked while it lives and removed at the end, unless it took the target's place. Making one first removes
/// those in the folder that nobody locks, since the process that made them is dead.
class TemporaryFile {
public:
    /// Where none can be made, isOpen() is false and errno tells why.
    TemporaryFile(const std::filesystem::path& target, mode_t permissions);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const { return file_.isOpen(); }
    int descriptor() const { return file_.descriptor(); }

    bool takePlaceOf(const std::filesystem::path& target);

private:
    bool isOurs() const;

    std::filesystem::path name_;
    OpenFile file_;
};

}  // namespace lorvane
