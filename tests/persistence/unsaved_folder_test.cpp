// Pictures of unsaved studies: one a running program, found again when it is gone.
#include "os/unsaved_folder.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

namespace lorvane {
namespace {

namespace fs = std::filesystem;

class UnsavedFolderTest : public ::testing::Test {
protected:
    UnsavedFolderTest()
        : folder(fs::temp_directory_path() / ("lorvane-unsaved-" + std::to_string(::getpid()))) {}
    ~UnsavedFolderTest() override { fs::remove_all(folder); }
    UnsavedFolder program() const { return UnsavedFolder((folder / "deep").string()); }
    std::ptrdiff_t filesLeft() const {
        return fs::exists(folder / "deep") ? std::distance(fs::directory_iterator(folder / "deep"), {}) : 0;
    }
    // A program that keeps a picture and is killed.
    void crash() const {
        const pid_t child = ::fork();
        if (child == 0) {
            UnsavedFolder own((folder / "deep").string());
            own.keep({"earlier", "and longer than the last", 1});
            own.keep(study);
            ::kill(::getpid(), SIGKILL);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status));
    }

    fs::path folder;
    const UnsavedStudy study{"/home/Größe \"x\"\n.Lorvane", "table\n", 17};
};

TEST_F(UnsavedFolderTest, OnlyWhatADeadProgramKeptIsLeftBehind) {
    auto running = program();
    running.keep({"running", "x", 0});
    auto other = program();
    EXPECT_FALSE(other.takeLeftBehind().has_value());
    crash();
    EXPECT_TRUE(other.takeLeftBehind()->study == study);
    EXPECT_FALSE(program().takeLeftBehind().has_value()) << "it has an owner again";
    other.drop();
    EXPECT_EQ(filesLeft(), 2) << "picture and lock of the running program";
    running.drop();
    EXPECT_EQ(filesLeft(), 0);
}

TEST_F(UnsavedFolderTest, APictureThatWasTakenOverStaysUntilItIsDropped) {
    crash();
    { EXPECT_TRUE(program().takeLeftBehind()->study == study); }
    auto next = program();
    EXPECT_TRUE(next.takeLeftBehind()->study == study) << "the program that asked has crashed too";
    next.keep({"", "newer", 0});
    EXPECT_EQ(filesLeft(), 2);
    next.drop();
    EXPECT_FALSE(program().takeLeftBehind().has_value());
    EXPECT_EQ(filesLeft(), 0);
}

TEST_F(UnsavedFolderTest, APictureIsPrivateAndStaysWhereItIsLeftOrSetAside) {
    fs::create_directories(folder / "deep");
    crash();
    EXPECT_EQ(fs::status(folder / "deep").permissions(), fs::perms::owner_all);
    auto next = program();
    const auto left = next.takeLeftBehind();
    EXPECT_EQ(fs::status(left->place).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    next.leave();
    next.keep({"", "of its own", 0});
    EXPECT_EQ(filesLeft(), 4);
    next.drop();
    fs::remove(fs::path(left->place).replace_extension(".lock"));
    EXPECT_EQ(next.takeLeftBehind()->study.table, study.table) << "without a lock it is nobody's";
    next.setAside();
    EXPECT_FALSE(program().takeLeftBehind().has_value());
    EXPECT_TRUE(fs::exists(left->aside));
}

TEST_F(UnsavedFolderTest, WithoutAFolderThereIsNoPicture) {
    UnsavedFolder nowhere("");
    nowhere.keep(study);
    UnsavedFolder impossible("/proc/lorvane");
    impossible.keep(study);
    impossible.drop();
    EXPECT_FALSE(nowhere.takeLeftBehind() || impossible.takeLeftBehind());
}

}  // namespace
}  // namespace lorvane
