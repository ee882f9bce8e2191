// Files on the disk of a POSIX system.
#include "os/disk_file_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

#include "os/open_file.h"
#include "os/temporary_file.h"

namespace lorvane {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t readStep = 1u << 16;

// Writes NUL bytes out, since a message would end at the first of them.
std::string shown(std::string path) {
    for (std::size_t i = path.find('\0'); i != std::string::npos; i = path.find('\0', i))
        path.replace(i, 1, "\\0");
    return path;
}

[[noreturn]] void failReading(const std::string& path, const std::string& why) {
    throw FileProblem("The file \"" + shown(path) + "\" cannot be read (" + why +
                      "); check its name and its folder.");
}

[[noreturn]] void failWriting(const std::string& path, const std::string& why) {
    throw FileProblem("The file \"" + shown(path) + "\" cannot be written (" + why +
                      "); choose another folder or make room, and save again.");
}

// What is wrong with a name, or nullptr. The system would stop reading a name at a NUL byte and open another
// file.
const char* problemOfName(const std::string& path) {
    if (path.empty())
        return "it has no name";
    return path.find('\0') == std::string::npos ? nullptr : "its name holds a NUL byte";
}

std::string errorWords(int error) { return std::error_code(error, std::generic_category()).message(); }

// The file that a path leads to, through symbolic links, whether or not it exists yet.
fs::path realTarget(const std::string& path) {
    fs::path target = fs::absolute(path);
    for (int links = 0; links < 40 && fs::is_symlink(target); ++links) {
        const fs::path next = fs::read_symlink(target);
        target = next.is_absolute() ? next : target.parent_path() / next;
    }
    return target;
}

// A folder, a pipe or a device is not replaced by a file.
void checkThatItIsNoOther(const std::string& path, const fs::file_status& status) {
    if (fs::is_directory(status))
        failWriting(path, "it is a folder");
    if (fs::exists(status) && !fs::is_regular_file(status))
        failWriting(path, "it is no ordinary file");
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

mode_t permissionsOf(const fs::file_status& status, mode_t permissionsOfNewFile) {
    return fs::exists(status) ? static_cast<mode_t>(status.permissions()) : permissionsOfNewFile;
}

// The new file is writable at first, because another process must be able to lock it if this one dies. It
// gets the permissions of the old file, which may be read-only, at the end. Some file systems know no
// permissions and refuse them; that is no failure.
void writeWhole(const std::string& path, const fs::path& target, std::string_view content,
                mode_t permissionsOfNewFile) {
    const fs::file_status old = fs::status(target);
    checkThatItIsNoOther(path, old);
    const mode_t permissions = permissionsOf(old, permissionsOfNewFile);
    TemporaryFile file(target, permissions | S_IWUSR);
    if (!file.isOpen() || !writeAll(file.descriptor(), content) || ::fsync(file.descriptor()) != 0)
        failWriting(path, errorWords(errno));
    if (fs::exists(old))
        ::fchmod(file.descriptor(), permissions);
    if (!file.takePlaceOf(target))
        failWriting(path, errorWords(errno));
}

}  // namespace

std::string DiskFileStore::read(const std::string& path, std::size_t largest) const {
    if (const char* why = problemOfName(path))
        failReading(path, why);
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
    if (const char* why = problemOfName(path))
        failWriting(path, why);
    try {
        const fs::path target = realTarget(path);
        writeWhole(path, target, content, permissionsOfNewFile_);
        flushFolder(target.parent_path());
    } catch (const fs::filesystem_error& error) {
        failWriting(path, error.code().message());
    }
}

}  // namespace lorvane
