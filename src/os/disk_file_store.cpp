// Files on the disk of a POSIX system.
#include "os/disk_file_store.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <system_error>

#include "os/open_file.h"
#include "os/temporary_file.h"

namespace lorvane {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t readStep = 1u << 16;
constexpr const char* tooLarge = "it is larger than any study file";

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

[[noreturn]] void failProtected(const std::string& path, const std::string& why) {
    throw ProtectedFile("The file \"" + shown(path) + "\" cannot be written (" + why +
                        "); save under another name.");
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

// The file that stands at the target, or nothing.
std::optional<struct stat> fileAt(const std::string& path, const fs::path& target) {
    struct stat found {};
    if (::stat(target.c_str(), &found) == 0)
        return found;
    if (errno != ENOENT && errno != ENOTDIR)
        failWriting(path, errorWords(errno));
    return std::nullopt;
}

// A folder, a pipe or a device is not replaced by a file. A rename asks nobody whether the old file may be
// written, and the superuser may write every file; its permissions still say what its owner wants.
void checkThatItMayGo(const std::string& path, const fs::path& target, const struct stat& old) {
    if (S_ISDIR(old.st_mode))
        failWriting(path, "it is a folder");
    if (!S_ISREG(old.st_mode))
        failWriting(path, "it is no ordinary file");
    const bool hasWriter = (old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
    if (!hasWriter)
        failProtected(path, "it is write-protected");
    if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0)
        failProtected(path, errno == EACCES ? "it is write-protected" : errorWords(errno));
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

// Owner, group and permissions as the old file has them, as far as the system allows. What its group may do
// is for no other group. Some file systems know no permissions and refuse them; that is no failure.
void makeLike(const struct stat& old, int descriptor) {
    constexpr auto sameOwner = static_cast<uid_t>(-1);
    const bool hasGroup =
        ::fchown(descriptor, old.st_uid, old.st_gid) == 0 || ::fchown(descriptor, sameOwner, old.st_gid) == 0;
    const mode_t kept = hasGroup ? S_IRWXU | S_IRWXG | S_IRWXO : S_IRWXU | S_IRWXO;
    ::fchmod(descriptor, old.st_mode & kept);
}

// The place of an old file is taken by one that is the user's alone until it is complete. It is writable, as
// another process must be able to lock it if this one dies.
void writeWhole(const std::string& path, const fs::path& target, std::string_view content,
                mode_t permissionsOfNewFile) {
    const std::optional<struct stat> old = fileAt(path, target);
    if (old)
        checkThatItMayGo(path, target, *old);
    TemporaryFile file(target, old ? S_IRUSR | S_IWUSR : permissionsOfNewFile);
    if (!file.isOpen() || !writeAll(file.descriptor(), content) || ::fsync(file.descriptor()) != 0)
        failWriting(path, errorWords(errno));
    if (old)
        makeLike(*old, file.descriptor());
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
    if (static_cast<std::uintmax_t>(status.st_size) > largest)
        failReading(path, tooLarge);
    std::string content;
    while (true) {
        const std::size_t filled = content.size();
        if (filled > largest)
            failReading(path, tooLarge);
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

// A file beyond the size limit of the process would end the program, and shall be a failed write instead.
void DiskFileStore::replace(const std::string& path, std::string_view content) {
    if (const char* why = problemOfName(path))
        failWriting(path, why);
    std::signal(SIGXFSZ, SIG_IGN);
    try {
        const fs::path target = realTarget(path);
        writeWhole(path, target, content, permissionsOfNewFile_);
        flushFolder(target.parent_path());
    } catch (const fs::filesystem_error& error) {
        failWriting(path, error.code().message());
    }
}

}  // namespace lorvane
