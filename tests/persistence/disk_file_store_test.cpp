#include "os/disk_file_store.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

namespace lorvane {
namespace {

namespace fs = std::filesystem;

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
    EXPECT_EQ(fs::status(folder / "real").permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(DiskFileStoreTest, TellsWhatCannotBeDone) {
    fs::create_directory(folder / "sub");
    EXPECT_THROW(store.read(pathOf("missing"), 10), FileProblem);
    EXPECT_THROW(store.read(pathOf("sub"), 10), FileProblem);
    EXPECT_THROW(store.read("/dev/zero", 10), FileProblem);
    EXPECT_THROW(store.replace(pathOf("sub"), "x"), FileProblem);
    EXPECT_THROW(store.replace(pathOf("no/such/folder"), "x"), FileProblem);
    EXPECT_THROW(store.replace(pathOf(std::string(256, 'n')), "x"), FileProblem);
    EXPECT_THROW(store.replace("", "x"), FileProblem);
    store.replace(pathOf("large"), std::string(100000, 'x'));
    EXPECT_THROW(store.read(pathOf("large"), 1000), FileProblem);
    EXPECT_EQ(filesInFolder(), 2u);
}

}  // namespace
}  // namespace lorvane
