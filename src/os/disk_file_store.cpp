// Files on the disk of a POSIX system.
#include "os/disk_file_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

namespace lorvane {

namespace {

namespace fs = std::filesystem;

constexpr mode_t permissionsOfNewFile = 0666;
constexpr std::size_t readStep = 1u << 16;

[[noreturn]] void failReading(const std::string& path, const std::string& why) {
    throw FileProblem("The file \"" + path + "\" cannot be read (" + why +
                      "); check its name and its folder.");
}

[[noreturn]] void failWriting(const std::string& path, const std::string& why) {
    throw FileProblem("The file \"" + path + "\" cannot be written (" + why +
                      "); choose another folder or make room, and save again.");
}

std::string errorWords(int error) { return std::error_code(error, std::generic_category()).message(); }

// An open file that closes itself.
class OpenFile {
public:
    explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
    ~OpenFile() { closeNow(); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    bool isOpen() const { return descriptor_ >= 0; }
    int descriptor() const { return descriptor_; }

    bool closeNow() {
        const int descriptor = std::exchange(descriptor_, -1);
        return descriptor < 0 || ::close(descriptor) == 0;
    }

private:
    int descriptor_;
};

// A file beside the target, removed again unless it took the target's place.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& target)
        : name_(target.parent_path() / (".lorvane-" + std::to_string(::getpid()) + ".tmp")) {}
    ~TemporaryFile() {
        if (!name_.empty())
            ::unlink(name_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const fs::path& name() const { return name_; }

    bool takePlaceOf(const fs::path& target) {
        if (::rename(name_.c_str(), target.c_str()) != 0)
            return false;
        name_.clear();
        return true;
    }

private:
    fs::path name_;
};

// The file that a path leads to, through symbolic links, whether or not it exists yet.
fs::path realTarget(const std::string& path) {
    fs::path target = fs::absolute(path);
    for (int links = 0; links < 40 && fs::is_symlink(target); ++links) {
        const fs::path next = fs::read_symlink(target);
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    return target;
}

mode_t permissionsOf(const fs::path& target, bool& exists) {
    struct stat status {};
    exists = ::stat(target.c_str(), &status) == 0;
    return exists ? status.st_mode & 07777 : permissionsOfNewFile;
}

bool writeAll(int descriptor, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

void flushFolder(const fs::path& folder) {
    const OpenFile opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.isOpen())
        ::fsync(opened.descriptor());
}

void writeWhole(const std::string& path, const fs::path& target, const fs::path& name,
                std::string_view content) {
    bool exists = false;
    const mode_t permissions = permissionsOf(target, exists);
    OpenFile file(::open(name.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, permissions));
    if (!file.isOpen())
        failWriting(path, errorWords(errno));
    if (exists)
        ::fchmod(file.descriptor(), permissions);
    if (!writeAll(file.descriptor(), content) || ::fsync(file.descriptor()) != 0 || !file.closeNow())
        failWriting(path, errorWords(errno));
}

}  // namespace

std::string DiskFileStore::read(const std::string& path, std::size_t largest) const {
    const OpenFile file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.isOpen() || ::fstat(file.descriptor(), &status) != 0)
        failReading(path, errorWords(errno));
    if (S_ISDIR(status.st_mode))
        failReading(path, "it is a folder");
    if (!S_ISREG(status.st_mode))
        failReading(path, "it is no ordinary file");
    std::string content;
    while (true) {
        const std::size_t filled = content.size();
        if (filled > largest)
            failReading(path, "it is larger than any study file");
        content.resize(filled + readStep);
        const ssize_t got = ::read(file.descriptor(), content.data() + filled, readStep);
        content.resize(filled + static_cast<std::size_t>(got > 0 ? got : 0));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            failReading(path, errorWords(errno));
        if (got == 0)
            return content;
    }
}

bool DiskFileStore::exists(const std::string& path) const {
    std::error_code error;
    return fs::exists(path, error);
}

void DiskFileStore::replace(const std::string& path, std::string_view content) {
    try {
        const fs::path target = realTarget(path);
        if (fs::is_directory(target))
            failWriting(path, "it is a folder");
        TemporaryFile temporary(target);
        writeWhole(path, target, temporary.name(), content);
        if (!temporary.takePlaceOf(target))
            failWriting(path, errorWords(errno));
        flushFolder(target.parent_path());
    } catch (const fs::filesystem_error& error) {
        failWriting(path, error.code().message());
    }
}

}  // namespace lorvane
