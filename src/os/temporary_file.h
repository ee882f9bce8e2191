// A new file in the folder of another one, the target, whose place it shall take. Knows nothing of what is
// written.
#pragma once

#include <sys/stat.h>

#include <filesystem>

#include "os/open_file.h"

namespace lorvane {

/// Locked while it lives and removed at the end, unless it took the target's place. Making one first cleans
/// the folder of temporary files that nobody locks, since the process that made them is dead.
class TemporaryFile {
public:
    /// Opens the file for writing, with the permissions less the umask. Where none can be made, isOpen() is
    /// false and errno tells why.
    TemporaryFile(const std::filesystem::path& target, mode_t permissions);
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// The descriptor to write to; below 0 when the file is not open. This object closes it.
    bool isOpen() const { return file_.isOpen(); }
    int descriptor() const { return file_.descriptor(); }

    /// Renames the file to the target, in one step that leaves either the old or the new one, and closes it.
    /// False, with the reason in errno, when the system refuses; both files then stay as they are.
    bool takePlaceOf(const std::filesystem::path& target);

private:
    bool isOurs() const;

    std::filesystem::path name_;
    OpenFile file_;
};

}  // namespace lorvane
