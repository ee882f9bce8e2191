// Pictures of unsaved studies in the user's state folder.
//
// A picture lies beside a lock that its program holds while it runs. The system lets go of the lock when the
// program ends, however it ends; a picture whose lock can be taken has been left behind.
#include "os/unsaved_folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <utility>
#include <vector>

namespace lorvane {

namespace {

namespace fs = std::filesystem;

constexpr const char* pictureEnding = ".Lorvane";
constexpr const char* lockEnding = ".lock";
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

void writeOwner(int lock, const std::string& file) {
    if (::ftruncate(lock, 0) == 0)
        static_cast<void>(!::pwrite(lock, file.data(), file.size(), 0));
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
    if (fs::create_directories(folder_, error))
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
        writeOwner(lock_.descriptor(), study.file);
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
    stem_.clear();
    lock_.closeNow();
}

std::string UnsavedFolder::readOwner() const {
    std::string file(longestPath, '\0');
    const ssize_t got = ::pread(lock_.descriptor(), file.data(), file.size(), 0);
    file.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    return file;
}

std::optional<UnsavedStudy> UnsavedFolder::takeLeftBehind() {
    for (const std::string& stem : picturesIn(folder_)) {
        if (!takeLock(stem, 0))
            continue;
        try {
            return UnsavedStudy{readOwner(), files_.read(stem + pictureEnding, largestPicture)};
        } catch (const FileProblem&) {
            stem_.clear();
            lock_.closeNow();
        }
    }
    return std::nullopt;
}

}  // namespace lorvane
