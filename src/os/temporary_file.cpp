// A new file beside a target whose place it shall take.
#include "os/temporary_file.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <string_view>
#include <system_error>

namespace lorvane {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view prefix = ".lorvane-";
constexpr std::string_view suffix = ".tmp";
constexpr int largestNumber = 100;

fs::path nameBeside(const fs::path& target, int number) {
    const std::string own = std::to_string(::getpid()) + "-" + std::to_string(number);
    return target.parent_path() / (std::string(prefix) + own + std::string(suffix));
}

bool isTemporaryName(std::string_view name) {
    if (!name.starts_with(prefix) || !name.ends_with(suffix))
        return false;
    name.remove_prefix(prefix.size());
    const std::size_t digits = std::min(name.find_first_not_of("0123456789-"), name.size());
    return digits > 0 && digits == name.size() - suffix.size();
}

// The lock belongs to the open file, not to the process. It falls when the file is closed or the process
// dies.
bool lock(int descriptor) {
    struct flock whole {};
    whole.l_type = F_WRLCK;
    whole.l_whence = SEEK_SET;
    return ::fcntl(descriptor, F_OFD_SETLK, &whole) == 0;
}

// False when the file has been renamed or removed since it was opened under this name.
bool isNameOf(const fs::path& name, int descriptor) {
    struct stat named {
    }, opened{};
    return ::lstat(name.c_str(), &named) == 0 && ::fstat(descriptor, &opened) == 0 &&
           named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

void removeIfDead(const fs::path& name) {
    const OpenFile file(::open(name.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (file.isOpen() && lock(file.descriptor()) && isNameOf(name, file.descriptor()))
        ::unlink(name.c_str());
}

void removeDead(const fs::path& folder) {
    std::error_code ignored;
    for (fs::directory_iterator entry(folder, ignored), end; !ignored && entry != end;
         entry.increment(ignored)) {
        if (isTemporaryName(entry->path().filename().native()))
            removeIfDead(entry->path());
    }
}

}  // namespace

TemporaryFile::TemporaryFile(const fs::path& target, mode_t permissions) {
    removeDead(target.parent_path());
    for (int number = 0; number < largestNumber; ++number) {
        name_ = nameBeside(target, number);
        file_.take(::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions));
        if (isOpen() ? isOurs() : errno != EEXIST)
            return;
        file_.closeNow();
    }
}

TemporaryFile::~TemporaryFile() {
    if (isOpen())
        ::unlink(name_.c_str());
}

// Another process may find the new file before it is locked, take it for a dead one and remove it. The file
// is ours when we hold the lock and the name still leads to it. Where the file system knows no locks, no
// process can remove it, and it is ours too.
bool TemporaryFile::isOurs() const {
    if (!lock(descriptor()))
        return errno != EAGAIN && errno != EACCES;
    return isNameOf(name_, descriptor());
}

bool TemporaryFile::takePlaceOf(const fs::path& target) {
    if (::rename(name_.c_str(), target.c_str()) != 0)
        return false;
    file_.closeNow();
    return true;
}

}  // namespace lorvane
