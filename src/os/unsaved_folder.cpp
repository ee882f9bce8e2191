// Pictures of unsaved studies in the user's state folder.
//
// A picture lies beside a lock that its program holds while it runs. The system lets go of the lock when the
// program ends, however it ends; a picture whose lock can be taken has been left behind.
#include "os/unsaved_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

namespace lorvane {

namespace {

namespace fs = std::filesystem;

constexpr const char* pictureEnding = ".Lorvane";
constexpr const char* lockEnding = ".lock";
constexpr const char* asideEnding = ".damaged";
constexpr int mostAtOnce = 1000;
constexpr std::size_t largestPicture = 256u << 20;
constexpr std::size_t longestPath = 1u << 16;
constexpr mode_t forTheUserAlone = 0600;

// Paths without their endings of all pictures in a folder, the latest first.
std::vector<std::string> picturesIn(const std::string& folder) {
    std::vector<std::pair<fs::file_time_type, std::string>> found;
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        fs::path path = entry.path();
        if (path.extension() == pictureEnding)
            found.emplace_back(entry.last_write_time(error), path.replace_extension().string());
    }
    std::sort(found.rbegin(), found.rend());
    std::vector<std::string> stems;
    stems.reserve(found.size());
    for (auto& [time, stem] : found)
        stems.push_back(std::move(stem));
    return stems;
}

// The path of the study's file, and after a NUL byte, which no path holds, the hash of what it held.
void writeOwner(int lock, const UnsavedStudy& study) {
    const std::string owner = study.file + '\0' + std::to_string(study.fileContent);
    if (::ftruncate(lock, 0) == 0)
        static_cast<void>(!::pwrite(lock, owner.data(), owner.size(), 0));
}

}  // namespace

std::string userStateFolder() {
    if (const char* state = std::getenv("XDG_STATE_HOME"); state != nullptr && *state == '/')
        return std::string(state) + "/lorvane";
    const char* home = std::getenv("HOME");
    return home == nullptr || *home == '\0' ? std::string() : std::string(home) + "/.local/state/lorvane";
}

bool UnsavedFolder::takeLock(const std::string& stem, int flags) {
    lock_.take(::open((stem + lockEnding).c_str(), O_RDWR | O_CLOEXEC | flags, forTheUserAlone));
    if (!lock_.isOpen() || ::flock(lock_.descriptor(), LOCK_EX | LOCK_NB) != 0) {
        lock_.closeNow();
        return false;
    }
    stem_ = stem;
    return true;
}

bool UnsavedFolder::makeLock() {
    std::error_code error;
    fs::create_directories(folder_, error);
    fs::permissions(folder_, fs::perms::owner_all, error);
    const std::string own = folder_ + "/unsaved-" + std::to_string(::getpid()) + "-";
    for (int i = 0; i < mostAtOnce; ++i) {
        if (takeLock(own + std::to_string(i), O_CREAT | O_EXCL))
            return true;
    }
    return false;
}

void UnsavedFolder::keep(const UnsavedStudy& study) {
    if (folder_.empty() || (stem_.empty() && !makeLock()))
        return;
    try {
        writeOwner(lock_.descriptor(), study);
        files_.replace(stem_ + pictureEnding, study.table);
    } catch (const FileProblem&) {
        // Without room for a picture the program works without one.
    }
}

void UnsavedFolder::drop() {
    if (stem_.empty())
        return;
    ::unlink((stem_ + pictureEnding).c_str());
    ::unlink((stem_ + lockEnding).c_str());
    leave();
}

void UnsavedFolder::readOwner(UnsavedStudy& study) const {
    std::string owner(longestPath, '\0');
    const ssize_t got = ::pread(lock_.descriptor(), owner.data(), owner.size(), 0);
    owner.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    const std::size_t end = std::min(owner.find('\0'), owner.size());
    study.file = owner.substr(0, end);
    std::from_chars(owner.data() + std::min(end + 1, owner.size()), owner.data() + owner.size(),
                    study.fileContent);
}

// A picture whose lock has been lost is nobody's and is offered too. One that has gone before it was locked
// was another program's, which has ended well.
std::optional<LeftBehind> UnsavedFolder::takeLeftBehind() {
    for (const std::string& stem : picturesIn(folder_)) {
        const std::string place = stem + pictureEnding;
        if (!takeLock(stem, O_CREAT))
            continue;
        LeftBehind left;
        left.place = place;
        left.aside = stem + asideEnding;
        readOwner(left.study);
        ::chmod(place.c_str(), forTheUserAlone);
        try {
            left.study.table = files_.read(place, largestPicture);
        } catch (const FileProblem& problem) {
            left.problem = problem.what();
        }
        if (files_.exists(place))
            return left;
        drop();
    }
    return std::nullopt;
}

void UnsavedFolder::leave() {
    stem_.clear();
    lock_.closeNow();
}

void UnsavedFolder::setAside() {
    if (stem_.empty())
        return;
    ::rename((stem_ + pictureEnding).c_str(), (stem_ + asideEnding).c_str());
    ::unlink((stem_ + lockEnding).c_str());
    leave();
}

}  // namespace lorvane
