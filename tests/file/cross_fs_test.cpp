// Copies and moves onto another file system: a small tmpfs mounted in a private mount
// namespace of the test process (skipped where the machine does not allow the mount).

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "file_op_test_support.h"
#include "fs-platform.h"
#include "tree_snapshot.h"

namespace {

using skelda_test::Exists;
using skelda_test::FileOpTest;
using skelda_test::MakeDirs;
using skelda_test::MountTmpfs;
using skelda_test::ReadFile;
using skelda_test::SnapshotTree;
using skelda_test::UnmountTmpfs;
using skelda_test::WriteFile;

class CrossFs : public FileOpTest {
protected:
    void SetUp() override {
        FileOpTest::SetUp();
        mnt_ = path("mnt");
        std::string why = MountTmpfs(mnt_, "1m");
        if (!why.empty())
            GTEST_SKIP() << "no tmpfs for this test: " << why;
        mounted_ = true;
    }
    void TearDown() override {
        if (mounted_)
            UnmountTmpfs(mnt_);
        FileOpTest::TearDown();
    }
    ustring M(const std::string& rel) const { return (mnt_ + "/" + rel).c_str(); }

    std::string mnt_;
    bool mounted_ = false;
};

TEST_F(CrossFs, CopyOntoAFullFileSystemIsToldApart) {
    WriteFile(path("big"), std::string(2 * 1024 * 1024, 'z'));
    EXPECT_EQ(FSCopy(U("big"), M("big"), true), -2);
    EXPECT_TRUE(Logged("ERROR", "copy-file.cpp",
                       "CopyFile: write: No space left on device (28)\n"));
    EXPECT_TRUE(Exists(path("big"))) << "the source stays when the copy fails";
    EXPECT_TRUE(Exists(mnt_ + "/big")) << "the partial copy is left";
}

TEST_F(CrossFs, CopyWithinAFullFileSystemIsToldApart) {
    // Both files on the tmpfs: the kernel copies, and still reports the full disk.
    WriteFile(mnt_ + "/half", std::string(600 * 1024, 'h'));
    EXPECT_EQ(FSCopy(M("half"), M("again"), false), -2);
    EXPECT_TRUE(Logged("ERROR", "copy-file.cpp",
                       "CopyFile: write: No space left on device (28)\n"));
}

TEST_F(CrossFs, TreeArrivesCompleteAndTheSourceIsGone) {
    MakeDirs(path("src/a/b"));
    MakeDirs(path("src/empty"));
    WriteFile(path("src/top"), "top");
    WriteFile(path("src/a/mid"), std::string(100000, 'm'));
    WriteFile(path("src/a/b/deep"), "");
    auto tree = SnapshotTree(path("src"));

    ASSERT_EQ(FSRename(U("src"), M("dst"), false), 0);
    EXPECT_FALSE(Exists(path("src")));
    EXPECT_EQ(SnapshotTree(mnt_ + "/dst"), tree);
}

TEST_F(CrossFs, LoneSymbolicLinkStaysWhereItWas) {
    ASSERT_EQ(symlink("anywhere", path("link").c_str()), 0);
    EXPECT_EQ(FSRename(U("link"), M("link"), false), 0);
    EXPECT_TRUE(Exists(path("link")));
    EXPECT_FALSE(Exists(mnt_ + "/link"));
}

TEST_F(CrossFs, RegularFileMovesByCopy) {
    WriteFile(path("f"), "payload");
    EXPECT_EQ(FSRename(U("f"), M("f"), false), 0);
    EXPECT_FALSE(Exists(path("f")));
    EXPECT_EQ(ReadFile(mnt_ + "/f"), "payload");
}

TEST_F(CrossFs, TreeThatDoesNotFitStopsWithPartsOnBothSides) {
    MakeDirs(path("src"));
    WriteFile(path("src/a-small"), "s");
    WriteFile(path("src/b-huge"), std::string(2 * 1024 * 1024, 'h'));
    EXPECT_EQ(FSRename(U("src"), M("dst"), false), -3);
    EXPECT_TRUE(Exists(path("src/b-huge")));
    EXPECT_TRUE(Exists(mnt_ + "/dst"));
}

TEST_F(CrossFs, FileSystemTypeNamesFollowTheMount) {
    std::string name;
    ASSERT_EQ(FileSystemTypeName(mnt_.c_str(), name), 0);
    EXPECT_EQ(name, "tmpfs");
    MakeDirs(path("local"));
    ASSERT_EQ(FileSystemTypeName(path("local").c_str(), name), 0);
    EXPECT_NE(name, "tmpfs");
    EXPECT_FALSE(isMountPoint(M("")));
    EXPECT_FALSE(IsMSDOS(M("")));
}

}  // namespace
