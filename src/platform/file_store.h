// Files as the core needs them: read whole, replaced whole.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace lorvane {

/// A file that cannot be read or written. The message is one sentence that names the file and says what to
/// do.
class FileProblem : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A file that its owner has protected from being written.
class ProtectedFile : public FileProblem {
public:
    using FileProblem::FileProblem;
};

class FileStore {
public:
    virtual ~FileStore() = default;

    /// The whole content of a file of at most largest bytes. Throws FileProblem.
    virtual std::string read(const std::string& path, std::size_t largest) const = 0;

    /// Whether there is something at the path.
    virtual bool exists(const std::string& path) const = 0;

    /// Writes a file whole beside the target, brings it to the disk and puts it in the target's place, so
    /// that a failure or an interruption leaves the old file. Throws FileProblem.
    virtual void replace(const std::string& path, std::string_view content) = 0;
};

}  // namespace lorvane
