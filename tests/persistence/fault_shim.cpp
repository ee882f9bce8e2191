// Preloaded into a program that saves: counts its calls that change files in one folder, and at a chosen one
// kills the program, cuts the write short or lets the call fail. FAULT_FOLDER is the folder, FAULT_LOG takes
// a line a call, FAULT is "NUMBER ACTION" with before, half, after, short or the number of an error.
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr int mostFiles = 1024;
bool watched[mostFiles];
int calls = 0;

std::string setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool isInFolder(const char* path) {
    static const std::string folder = setting("FAULT_FOLDER");
    return !folder.empty() && std::strncmp(path, folder.c_str(), folder.size()) == 0;
}

bool isWatched(long file) { return file >= 0 && file < mostFiles && watched[file]; }

void note(const char* call) {
    static const std::string log = setting("FAULT_LOG");
    const std::string line = std::string(call) + "\n";
    const long file = syscall(SYS_openat, AT_FDCWD, log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    syscall(SYS_write, file, line.data(), line.size());
    syscall(SYS_close, file);
}

// What shall happen at this call; empty for nothing.
std::string fault(const char* call) {
    note(call);
    static const std::string chosen = setting("FAULT");
    const std::string number = std::to_string(++calls) + " ";
    return chosen.compare(0, number.size(), number) == 0 ? chosen.substr(number.size()) : "";
}

void die() { syscall(SYS_kill, getpid(), SIGKILL); }

template <typename Call>
long with(const std::string& action, Call call) {
    if (action == "before")
        die();
    if (const int error = std::atoi(action.c_str()); error != 0) {
        errno = error;
        return -1;
    }
    const long result = call();
    if (action == "after" || action == "half")
        die();
    return result;
}

template <typename Call>
long changing(const char* name, Call call) {
    return with(fault(name), call);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : mode_t{0};
    va_end(rest);
    const auto call = [&] { return syscall(SYS_openat, AT_FDCWD, path, flags, mode); };
    const bool changes = (flags & (O_WRONLY | O_RDWR)) != 0;
    if (!isInFolder(path) || !(changes || (flags & O_DIRECTORY) != 0))
        return static_cast<int>(call());
    const long file = changing(changes ? "open" : "open folder", call);
    if (file >= 0 && file < mostFiles)
        watched[file] = true;
    return static_cast<int>(file);
}

ssize_t write(int file, const void* content, size_t size) {
    if (!isWatched(file))
        return syscall(SYS_write, file, content, size);
    const std::string action = fault("write");
    const size_t part = action == "half" || action == "short" ? size / 2 : size;
    return with(action, [&] { return syscall(SYS_write, file, content, part); });
}

int fchmod(int file, mode_t mode) {
    const auto call = [&] { return syscall(SYS_fchmod, file, mode); };
    return static_cast<int>(isWatched(file) ? changing("fchmod", call) : call());
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
    const auto call = [&] { return syscall(SYS_fchown, file, owner, group); };
    return static_cast<int>(isWatched(file) ? changing("fchown", call) : call());
}

int fsync(int file) {
    const auto call = [&] { return syscall(SYS_fsync, file); };
    return static_cast<int>(isWatched(file) ? changing("fsync", call) : call());
}

// A close that fails has closed the file all the same.
int close(int file) {
    if (!isWatched(file))
        return static_cast<int>(syscall(SYS_close, file));
    watched[file] = false;
    const std::string action = fault("close");
    if (std::atoi(action.c_str()) != 0)
        syscall(SYS_close, file);
    return static_cast<int>(with(action, [&] { return syscall(SYS_close, file); }));
}

int rename(const char* from, const char* to) noexcept {
    const auto call = [&] { return syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0); };
    return static_cast<int>(isInFolder(to) ? changing("rename", call) : call());
}

int unlink(const char* path) noexcept {
    const auto call = [&] { return syscall(SYS_unlinkat, AT_FDCWD, path, 0); };
    return static_cast<int>(isInFolder(path) ? changing("unlink", call) : call());
}
}
