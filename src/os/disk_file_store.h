// Files on the disk of a POSIX system.
#pragma once

#include <sys/stat.h>

#include "platform/file_store.h"

namespace lorvane {

/// Reads and replaces ordinary files only: a folder, a pipe or a device is a FileProblem.
class DiskFileStore final : public FileStore {
public:
    /// A new file gets these permissions less the umask, from its first byte on.
    explicit DiskFileStore(mode_t permissionsOfNewFile = 0666)
        : permissionsOfNewFile_(permissionsOfNewFile) {}

    std::string read(const std::string& path, std::size_t largest) const override;

    bool exists(const std::string& path) const override;

    /// Where the path is a symbolic link, the link stays and the file that it leads to is replaced. The new
    /// file keeps owner, group and permissions of the old one where the system allows, and never a bit that
    /// starts it as a program of its owner. A write-protected file is not replaced.
    void replace(const std::string& path, std::string_view content) override;

private:
    mode_t permissionsOfNewFile_;
};

}  // namespace lorvane
