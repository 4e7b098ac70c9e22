// Linux only: private mount namespaces and tmpfs, which macOS does not have.
#include <sched.h>
#include <sys/mount.h>

#include <cerrno>
#include <cstring>

#include "file_op_fixture.h"

namespace skelda_test {

// Onto a small tmpfs: a full file system, and moves between two file systems.
TEST_F(FileOp, AcrossFileSystemsTreesArriveCompleteLinksStayAndAFullDiskIsToldApart) {
    MakeDirs(path("mnt"));
    if (unshare(CLONE_NEWNS) != 0 || mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", path("mnt").c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "no tmpfs here: " << strerror(errno);
    // Without /proc the stored spelling comes from realpath: the same, whatever the buffers
    // that /proc filled before hold.
    ExpectStoredSpellings();
    ASSERT_EQ(mount("tmpfs", "/proc", "tmpfs", 0, "size=1m"), 0) << strerror(errno);
    ExpectStoredSpellings();
    umount2("/proc", MNT_DETACH);
    MakeDirs(path("tree"));
    WriteFile(path("tree/big"), std::string(2 * 1024 * 1024, 'z'));
    EXPECT_EQ(FSCopy(U("tree/big"), U("mnt/big"), true), -2);
    EXPECT_TRUE(Logged("ERROR", "CopyFile: write: No space left on device (28)\n"));
    EXPECT_TRUE(Exists(path("tree/big")) && Exists(path("mnt/big"))) << "source and partial copy";
    ASSERT_EQ(unlink(path("mnt/big").c_str()), 0);
    EXPECT_EQ(FSRename(U("tree"), U("mnt/tree"), false), -3) << "a child that does not fit";
    RemoveTree(path("mnt/tree"));
    MakeDirs(path("real/folder/deep"));
    WriteFile(path("real/folder/mid"), std::string(100000, 'm'));
    ASSERT_EQ(unlink(path("real/dangling").c_str()), 0);  // links are not moved across
    ASSERT_EQ(FSRename(U("real"), U("mnt/dst"), false), 0);
    EXPECT_TRUE(!Exists(path("real")) && std::filesystem::is_directory(path("mnt/dst/folder/deep")));
    EXPECT_TRUE(ReadFile(path("mnt/dst/data")) == "12345" &&
                ReadFile(path("mnt/dst/folder/mid")) == std::string(100000, 'm'));
    EXPECT_EQ(FSRename(U("alias"), U("mnt/link"), false), 0);
    EXPECT_TRUE(Exists(path("alias")) && !Exists(path("mnt/link")));
    EXPECT_FALSE(isMountPoint(U("mnt")));
    umount2(path("mnt").c_str(), MNT_DETACH);
}

}  // namespace skelda_test
