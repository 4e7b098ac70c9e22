// FSCopy, FSRename and FSRemove on one file system.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "file_op_test_support.h"
#include "tree_snapshot.h"

namespace {

using skelda_test::Exists;
using skelda_test::FileOpTest;
using skelda_test::MakeDirs;
using skelda_test::ReadFile;
using skelda_test::RunAsNobody;
using skelda_test::SnapshotTree;
using skelda_test::WriteFile;

class CopyMoveRemove : public FileOpTest {};

std::string Pattern(size_t n) {
    std::string s(n, '\0');
    for (size_t i = 0; i < n; ++i)
        s[i] = static_cast<char>((i * 131 + i / 977) & 0xFF);
    return s;
}

TEST_F(CopyMoveRemove, EmptyFileCopiesToAnEmptyFile) {
    WriteFile(path("empty"), "");
    ASSERT_EQ(FSCopy(U("empty"), U("copy"), false), 0);
    ASSERT_TRUE(Exists(path("copy")));
    EXPECT_EQ(ReadFile(path("copy")), "");
    EXPECT_TRUE(Exists(path("empty")));

    ASSERT_EQ(FSCopy(U("empty"), U("moved"), true), 0);
    EXPECT_TRUE(Exists(path("moved")));
    EXPECT_FALSE(Exists(path("empty"))) << "source removed after the copy";
}

TEST_F(CopyMoveRemove, CopyCarriesEveryByteAndTruncatesTheDestination) {
    const std::string data = Pattern(3 * 1024 * 1024 + 17);
    WriteFile(path("src"), data);
    WriteFile(path("dst"), std::string(5 * 1024 * 1024, 'x'));
    chmod(path("src").c_str(), 0600);
    ASSERT_EQ(FSCopy(U("src"), U("dst"), false), 0);
    EXPECT_TRUE(ReadFile(path("dst")) == data);
}

TEST_F(CopyMoveRemove, CopyOfAMissingSourceNamesIt) {
    EXPECT_EQ(FSCopy(U("missing"), U("dst"), false), -1);
    EXPECT_TRUE(Logged("ERROR", "copy-file.cpp",
                       "CopyFile: open(" + path("missing") + "): No such file or directory (2)\n"));
    EXPECT_FALSE(Exists(path("dst")));
}

TEST_F(CopyMoveRemove, CopyIntoAMissingFolderKeepsTheSource) {
    WriteFile(path("src"), "abc");
    EXPECT_EQ(FSCopy(U("src"), U("none/dst"), true), -1);
    EXPECT_TRUE(Logged("ERROR", "copy-file.cpp",
                       "CopyFile: open(" + path("none/dst") + "): No such file or directory (2)\n"));
    EXPECT_EQ(ReadFile(path("src")), "abc");
}

TEST_F(CopyMoveRemove, RenameOfAMissingSourceTouchesNothing) {
    MakeDirs(path("d"));
    WriteFile(path("d/f"), "1");
    auto before = SnapshotTree(dir());
    EXPECT_EQ(FSRename(U("missing"), U("d/f"), false), -2);
    EXPECT_EQ(FSRename(U("missing"), U("new"), false), -2);
    EXPECT_EQ(SnapshotTree(dir()), before);
}

TEST_F(CopyMoveRemove, RenameRefusesEmptyArguments) {
    WriteFile(path("f"), "");
    EXPECT_EQ(FSRename("", U("x"), false), -1);
    EXPECT_EQ(FSRename(U("f"), "", false), -1);
}

TEST_F(CopyMoveRemove, RenameMovesATreeAndRefusesANonEmptyTarget) {
    MakeDirs(path("src/sub"));
    WriteFile(path("src/sub/f"), "data");
    auto tree = SnapshotTree(path("src"));
    ASSERT_EQ(FSRename(U("src"), U("dst"), false), 0);
    EXPECT_FALSE(Exists(path("src")));
    EXPECT_EQ(SnapshotTree(path("dst")), tree);

    MakeDirs(path("other/x"));
    EXPECT_EQ(FSRename(U("other"), U("dst"), false), -3);
    EXPECT_TRUE(Exists(path("other/x")));
}

TEST_F(CopyMoveRemove, RenameToATooLongNameIsTold) {
    WriteFile(path("f"), "");
    EXPECT_EQ(FSRename(U("f"), U(std::string(300, 'n')), false), -100);
    EXPECT_TRUE(Exists(path("f")));
}

TEST_F(CopyMoveRemove, CaseSensitiveRenameWantsTheStoredSpelling) {
    MakeDirs(path("real"));
    WriteFile(path("real/f"), "");
    ASSERT_EQ(symlink("real", path("alias").c_str()), 0);
    EXPECT_EQ(FSRename(U("alias/f"), U("g"), true), -2);
    EXPECT_TRUE(Exists(path("real/f")));
}

TEST_F(CopyMoveRemove, RemoveOfALinkToAFolderLeavesTheFolder) {
    MakeDirs(path("folder"));
    WriteFile(path("folder/inside"), "stays");
    ASSERT_EQ(symlink("folder", path("link").c_str()), 0);
    EXPECT_EQ(FSRemove(U("link"), false), 0);
    EXPECT_FALSE(Exists(path("link")));
    EXPECT_EQ(ReadFile(path("folder/inside")), "stays");
}

TEST_F(CopyMoveRemove, RemoveTakesAWholeTreeAndAMissingPathIsDone) {
    MakeDirs(path("t/a/b/c"));
    WriteFile(path("t/a/f"), "1");
    WriteFile(path("t/a/b/c/g"), "2");
    ASSERT_EQ(symlink("/", path("t/a/root-link").c_str()), 0);
    ASSERT_EQ(mkfifo(path("t/fifo").c_str(), 0600), 0);
    EXPECT_EQ(FSRemove(U("t"), true), 0);
    EXPECT_FALSE(Exists(path("t")));
    EXPECT_EQ(FSRemove(U("t"), false), 0);
    EXPECT_EQ(FSRemove("", false), -1);
}

TEST_F(CopyMoveRemove, RemoveThatIsRefusedStopsAndLeavesTheRest) {
    chmod(dir().c_str(), 0755);
    MakeDirs(path("t/locked"));
    WriteFile(path("t/locked/f"), "");
    chmod(path("t").c_str(), 0777);
    const ustring tree = U("t");
    std::string report = RunAsNobody([&]() -> std::string {
        int rc = FSRemove(tree, false);
        return rc == -3 ? "" : "FSRemove gave " + std::to_string(rc);
    });
    EXPECT_EQ(report, "");
    EXPECT_TRUE(Exists(path("t/locked/f")));
}

}  // namespace
