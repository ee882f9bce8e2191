#include "os/disk_file_store.h"

#include <fcntl.h>
#include <grp.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>

namespace lorvane {
namespace {

namespace fs = std::filesystem;

constexpr uid_t nobody = 65534;

class DiskFileStoreTest : public ::testing::Test {
protected:
    DiskFileStoreTest() : folder(fs::temp_directory_path() / ("lorvane-test-" + std::to_string(::getpid()))) {
        fs::create_directories(folder);
    }
    ~DiskFileStoreTest() override { fs::remove_all(folder); }

    std::string pathOf(const std::string& name) const { return (folder / name).string(); }
    std::string contentOf(const std::string& name) const { return store.read(pathOf(name), 1000); }
    std::size_t filesInFolder() const {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
    }

    unsigned permissionsOf(const std::string& name) const {
        return static_cast<unsigned>(fs::status(folder / name).permissions());
    }

    // The reason that a refused action tells.
    std::string reasonOf(const std::function<void()>& action) const {
        try {
            action();
        } catch (const FileProblem& problem) {
            const std::string message = problem.what();
            const std::size_t start = message.rfind('(') + 1;
            return message.substr(start, message.rfind(')') - start);
        }
        return "done";
    }
    std::string reading(const std::string& path) const {
        return reasonOf([&] { store.read(path, 1000); });
    }
    std::string writing(const std::string& path) {
        return reasonOf([&] { store.replace(path, "x"); });
    }

    fs::path folder;
    DiskFileStore store;
};

TEST_F(DiskFileStoreTest, ReplacesAFileAndLeavesNothingBeside) {
    const std::string names[] = {"plain", "quote\" and\nline", "Ж中", std::string(255, 'n')};
    for (const std::string& name : names) {
        store.replace(pathOf(name), "old");
        store.replace(pathOf(name), "new");
        EXPECT_EQ(contentOf(name), "new");
    }
    EXPECT_EQ(filesInFolder(), 4u);
}

TEST_F(DiskFileStoreTest, KeepsALinkAndThePermissions) {
    store.replace(pathOf("real"), "old");
    ::chmod(pathOf("real").c_str(), 0600);
    fs::create_symlink("real", folder / "link");
    store.replace(pathOf("link"), "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(contentOf("real"), "new");
    EXPECT_EQ(permissionsOf("real"), 0600u);
    const mode_t umask = ::umask(0);
    DiskFileStore(0640).replace(pathOf("shared"), "new");
    ::umask(umask);
    EXPECT_EQ(permissionsOf("shared"), 0640u);
}

TEST_F(DiskFileStoreTest, FollowsLinksToTheirEnd) {
    fs::create_directory(folder / "sub");
    fs::create_symlink("sub/missing", folder / "dangling");
    store.replace(pathOf("dangling"), "made");
    EXPECT_EQ(contentOf("sub/missing"), "made");
    fs::create_symlink("there", folder / "here");
    fs::create_symlink("here", folder / "there");
    EXPECT_EQ(reading(pathOf("here")), "Too many levels of symbolic links");
    EXPECT_EQ(writing(pathOf("here")), "Too many levels of symbolic links");
    EXPECT_TRUE(fs::is_symlink(folder / "here"));
    EXPECT_EQ(filesInFolder(), 4u);
}

TEST_F(DiskFileStoreTest, TellsWhatCannotBeDone) {
    fs::create_directory(folder / "sub");
    ::mkfifo(pathOf("pipe").c_str(), 0600);
    store.replace(pathOf("large"), std::string(100000, 'x'));
    const std::string noFile = "No such file or directory", tooLong = "File name too long";
    const std::string cut = pathOf("large") + std::string("\0.csv", 5);
    struct Case {
        std::string path, reading, writing;
    };
    for (const Case& c : {Case{pathOf("sub"), "it is a folder", "it is a folder"},
                          {pathOf("pipe"), "it is no ordinary file", "it is no ordinary file"},
                          {pathOf("no/such/folder"), noFile, noFile},
                          {pathOf("large/inside"), "Not a directory", "Not a directory"},
                          {pathOf(std::string(256, 'n')), tooLong, tooLong},
                          {cut, "its name holds a NUL byte", "its name holds a NUL byte"},
                          {"", "it has no name", "it has no name"}}) {
        EXPECT_EQ(reading(c.path), c.reading) << c.path;
        EXPECT_EQ(writing(c.path), c.writing) << c.path;
    }
    EXPECT_EQ(reading(pathOf("missing")), noFile);
    EXPECT_EQ(reading("/dev/zero"), "it is no ordinary file");
    EXPECT_EQ(reading(pathOf("large")), "it is larger than any study file");
    EXPECT_EQ(fs::file_size(folder / "large"), 100000u);
    EXPECT_EQ(filesInFolder(), 3u);
}

// Permissions do not bind the superuser, so that the test steps down from it.
TEST_F(DiskFileStoreTest, TellsWhatIsNotAllowed) {
    for (const char* name : {"study", "protected", "others"})
        store.replace(pathOf(name), "old");
    ::chmod(pathOf("study").c_str(), 0222);
    ::chmod(pathOf("protected").c_str(), 0444);
    EXPECT_EQ(writing(pathOf("protected")), "it is write-protected") << "by its permissions alone";
    ::chmod(pathOf("others").c_str(), ::geteuid() == 0 ? 0644 : 0444);
    fs::permissions(folder, fs::perms::owner_read | fs::perms::owner_exec | fs::perms::group_exec);
    const bool steppedDown = ::geteuid() == 0 && ::seteuid(nobody) == 0;
    EXPECT_EQ(reading(pathOf("study")), "Permission denied");
    EXPECT_EQ(writing(pathOf("study")), "Permission denied");
    EXPECT_EQ(writing(pathOf("others")), "it is write-protected");
    ASSERT_EQ(steppedDown ? ::seteuid(0) : 0, 0);
    fs::permissions(folder, fs::perms::owner_all);
    for (const char* name : {"study", "protected", "others"}) {
        fs::permissions(folder / name, fs::perms::owner_all);
        EXPECT_EQ(contentOf(name), "old");
    }
}

// A team's file stays the team's, or nobody's of another group; a new study starts no program.
TEST_F(DiskFileStoreTest, KeepsOwnerAndGroupWhereTheSystemAllows) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the superuser gives files away";
    constexpr gid_t team = 54321, noTeam = 54322;
    constexpr uid_t owner = 12345;
    struct Case {
        uid_t saver;
        gid_t groupOfSaver, group;
        mode_t before;
        std::string after;
    };
    fs::permissions(folder, fs::perms::all);
    for (const Case& c : {Case{0, 0, team, 06664, "12345:54321 664"},
                          {nobody, team, team, 0666, "65534:54321 666"},
                          {nobody, noTeam, team, 0666, "65534:65534 606"}}) {
        store.replace(pathOf("study"), "old");
        ASSERT_EQ(::chown(pathOf("study").c_str(), owner, c.group), 0);
        ::chmod(pathOf("study").c_str(), c.before);
        ASSERT_EQ(::setgroups(1, &c.groupOfSaver), 0);
        ASSERT_EQ(c.saver == 0 ? 0 : ::setegid(nobody) + ::seteuid(c.saver), 0);
        EXPECT_EQ(writing(pathOf("study")), "done");
        ASSERT_EQ(::seteuid(0) + ::setegid(0), 0);
        struct stat found {};
        ::stat(pathOf("study").c_str(), &found);
        char words[64];
        std::snprintf(words, sizeof words, "%u:%u %o", found.st_uid, found.st_gid, found.st_mode & 07777);
        EXPECT_EQ(words, c.after);
        fs::remove(folder / "study");
    }
}

// What this process has read from files so far.
std::size_t bytesRead() {
    std::ifstream counts("/proc/self/io");
    std::string name;
    std::size_t bytes = 0;
    counts >> name >> bytes;
    return bytes;
}

TEST_F(DiskFileStoreTest, RefusesAHugeFileUnread) {
    std::ofstream(folder / "huge").close();
    fs::resize_file(folder / "huge", std::uintmax_t{5} << 30);
    const std::size_t before = bytesRead();
    EXPECT_EQ(reasonOf([&] { store.read(pathOf("huge"), 1 << 20); }), "it is larger than any study file");
    EXPECT_LT(bytesRead() - before, 10000u);
}

TEST_F(DiskFileStoreTest, AFileBeyondTheLimitOfTheProcessIsAFailedSave) {
    store.replace(pathOf("study"), "old");
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit limit{1000, 1000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const auto save = [&] { store.replace(pathOf("study"), std::string(20000, 'x')); };
        ::_exit(reasonOf(save) == "File too large" ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(contentOf("study"), "old");
    EXPECT_EQ(filesInFolder(), 1u);
}

TEST_F(DiskFileStoreTest, RemovesWhatTheDeadLeftAndNothingElse) {
    const std::string kept[] = {".lorvane-.tmp", ".lorvane-x1.tmp", ".lorvane-12", "lorvane-12.tmp"};
    for (const std::string& name : kept)
        std::ofstream(folder / name) << "kept";
    std::ofstream(folder / ".lorvane-12.tmp") << "left";
    std::ofstream(folder / ".lorvane-999999-3.tmp") << "left";
    fs::create_directory(folder / ".lorvane-7.tmp");
    const int held = ::open(pathOf(".lorvane-13-0.tmp").c_str(), O_WRONLY | O_CREAT, 0600);
    struct flock whole {};
    whole.l_type = F_WRLCK;
    ASSERT_EQ(::fcntl(held, F_OFD_SETLK, &whole), 0);
    store.replace(pathOf("study"), "new");
    EXPECT_TRUE(fs::exists(folder / ".lorvane-13-0.tmp"));
    EXPECT_EQ(filesInFolder(), std::size(kept) + 3);
    ::close(held);
    store.replace(pathOf("study"), "new");
    EXPECT_EQ(filesInFolder(), std::size(kept) + 2);
}

// Every process writes its own letter; whoever reads meanwhile sees one of them, whole.
TEST_F(DiskFileStoreTest, ProcessesThatSaveAtOnceLeaveOneFileWhole) {
    constexpr std::size_t size = 20000;
    const auto saveOften = [&](char letter) {
        const bool done = reasonOf([&] {
                              for (int i = 0; i < 200; ++i)
                                  store.replace(pathOf("study"), std::string(size, letter));
                          }) == "done";
        ::_exit(done ? 0 : 1);
    };
    store.replace(pathOf("study"), std::string(size, 'a'));
    for (const char letter : {'a', 'b', 'c'}) {
        if (::fork() == 0)
            saveOften(letter);
    }
    int status = 0;
    for (int running = 3; running > 0; running -= ::waitpid(-1, &status, WNOHANG) > 0 ? 1 : 0) {
        const std::string content = store.read(pathOf("study"), size);
        ASSERT_EQ(content, std::string(size, content.front()));
        ASSERT_EQ(status, 0);
    }
    EXPECT_EQ(filesInFolder(), 1u);
}

}  // namespace
}  // namespace lorvane
