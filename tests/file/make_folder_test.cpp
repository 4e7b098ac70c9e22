// FSMKDirP, FSMKDir and FSMKDirFromRoot.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string>

#include "file_op_test_support.h"

namespace {

using skelda_test::Exists;
using skelda_test::FileOpTest;
using skelda_test::MakeDirs;
using skelda_test::ReadFile;
using skelda_test::RunAsNobody;
using skelda_test::WriteFile;

bool IsFolder(const std::string& p) {
    struct stat st;
    return lstat(p.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

mode_t ModeOf(const std::string& p) {
    struct stat st;
    return stat(p.c_str(), &st) == 0 ? st.st_mode & 07777 : 0;
}

class MakeFolder : public FileOpTest {};

TEST_F(MakeFolder, AllMissingLevelsAreMadeAndStopAtIsTheTrailingSlash) {
    const ustring target = U("a/b/c/");
    char* stop = nullptr;
    ASSERT_EQ(FSMKDirP(target, &stop, false, FS_MKDIR_DEFAULT_MODE), 0);
    EXPECT_TRUE(IsFolder(path("a/b/c")));
    EXPECT_EQ(stop, target.c_str() + target.length() - 1);
    EXPECT_EQ(*stop, '/');
    EXPECT_EQ(FSMKDirP(target, nullptr, false, FS_MKDIR_DEFAULT_MODE), 0) << "again: all there";
}

TEST_F(MakeFolder, RegularFileInTheMiddleStopsTheWalk) {
    MakeDirs(path("a"));
    WriteFile(path("a/f"), "keep");
    const ustring target = U("a/f/b");
    char* stop = nullptr;
    EXPECT_EQ(FSMKDirP(target, &stop, false, FS_MKDIR_DEFAULT_MODE), -1);
    EXPECT_TRUE(Logged("INFO", "make-folder.cpp",
                       "FSMKDirP: path: " + path("a/f") + " is symbolic link pointed to folder\n"));
    EXPECT_EQ(stop, target.c_str() + target.length()) << "the failing component is the last";
    EXPECT_EQ(ReadFile(path("a/f")), "keep");
}

TEST_F(MakeFolder, RegularFileInTheMiddleIsReplacedWhenAsked) {
    MakeDirs(path("a"));
    WriteFile(path("a/f"), "gone");
    EXPECT_EQ(FSMKDirP(U("a/f/b"), nullptr, true, FS_MKDIR_DEFAULT_MODE), 0);
    EXPECT_TRUE(IsFolder(path("a/f")));
    EXPECT_TRUE(IsFolder(path("a/f/b")));
}

TEST_F(MakeFolder, RegularFileAtTheEndIsRefusedWithEexist) {
    WriteFile(path("f"), "");
    errno = 0;
    EXPECT_EQ(FSMKDirP(U("f"), nullptr, false, FS_MKDIR_DEFAULT_MODE), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_TRUE(Logged("INFO", "make-folder.cpp",
                       "FSMKDirP: path: " + path("f") +
                           " is existing file or symbolic link pointed to file\n"));
}

TEST_F(MakeFolder, LinkToAFolderCountsAsAFolder) {
    MakeDirs(path("real"));
    ASSERT_EQ(symlink("real", path("alias").c_str()), 0);
    EXPECT_EQ(FSMKDirP(U("alias/x"), nullptr, false, FS_MKDIR_DEFAULT_MODE), 0);
    EXPECT_TRUE(IsFolder(path("real/x")));
}

TEST_F(MakeFolder, ExplicitModeIsExactAndTheUmaskStays) {
    mode_t old = umask(022);
    EXPECT_EQ(FSMKDirP(U("m/n"), nullptr, false, 0777), 0);
    EXPECT_EQ(FSMKDirP(U("p"), nullptr, false, 0750), 0);
    EXPECT_EQ(FSMKDirP(U("q"), nullptr, false, FS_MKDIR_DEFAULT_MODE), 0);
    mode_t during = umask(old);
    EXPECT_EQ(during, 022u);
    EXPECT_EQ(ModeOf(path("m")), 0777u);
    EXPECT_EQ(ModeOf(path("m/n")), 0777u);
    EXPECT_EQ(ModeOf(path("p")), 0750u);
    EXPECT_EQ(ModeOf(path("q")), 0755u);
}

TEST_F(MakeFolder, EmptyPathIsRefused) {
    EXPECT_EQ(FSMKDirP("", nullptr, false, FS_MKDIR_DEFAULT_MODE), -1);
    EXPECT_EQ(FSMKDir("", true), -1);
}

TEST_F(MakeFolder, MkdirAcceptsAFolderAndRefusesEverythingElse) {
    MakeDirs(path("d"));
    WriteFile(path("f"), "");
    ASSERT_EQ(symlink("d", path("l").c_str()), 0);
    EXPECT_EQ(FSMKDir(U("d"), false), 0);
    EXPECT_EQ(FSMKDir(U("f"), true), -1);
    EXPECT_TRUE(Logged("ERROR", "make-folder.cpp",
                       "FSMKDir: Create a folder but local file system is not directory '" +
                           path("f") + "' (1)\n"));
    EXPECT_EQ(FSMKDir(U("l"), true), -1);
    EXPECT_TRUE(Logged("ERROR", "make-folder.cpp",
                       "FSMKDir: Create a folder but local file system is not directory '" +
                           path("l") + "' (3)\n"));
}

TEST_F(MakeFolder, MkdirWithoutRecursionNeedsTheParent) {
    EXPECT_EQ(FSMKDir(U("x/y"), false), -2);
    EXPECT_TRUE(Logged("ERROR", "make-folder.cpp",
                       "path = " + path("x/y") + " errno : No such file or directory\n"));
    EXPECT_FALSE(Exists(path("x")));
    EXPECT_EQ(FSMKDir(U("x/y"), true), 0);
    EXPECT_TRUE(IsFolder(path("x/y")));
}

TEST_F(MakeFolder, MkdirInAFolderOfAnotherUserFails) {
    chmod(dir().c_str(), 0755);
    const ustring target = U("sub");
    std::string report = RunAsNobody([&]() -> std::string {
        int rc = FSMKDir(target, true);
        return rc == -2 ? "" : "FSMKDir gave " + std::to_string(rc);
    });
    EXPECT_EQ(report, "");
    EXPECT_TRUE(Logged("ERROR", "make-folder.cpp",
                       "path = " + path("sub") + " errno : Permission denied\n"));
}

TEST_F(MakeFolder, FromRootCreatesEachLevelBelowTheRoot) {
    const ustring root = U("root");
    MakeDirs(path("root"));
    EXPECT_EQ(FSMKDirFromRoot(U("root/a/b"), root), 0);
    EXPECT_TRUE(IsFolder(path("root/a/b")));
    EXPECT_TRUE(Logged("DEBUG", "make-folder.cpp", "FSMKDirFromRoot: create /a\n"));
    EXPECT_TRUE(Logged("DEBUG", "make-folder.cpp", "FSMKDirFromRoot: create /a/b\n"));
}

TEST_F(MakeFolder, FromRootEqualToTargetCreatesNothing) {
    EXPECT_EQ(FSMKDirFromRoot(U("nothing"), U("nothing")), 0);
    EXPECT_FALSE(Exists(path("nothing")));
}

TEST_F(MakeFolder, FromRootRefusesRootsThatAreNotParents) {
    EXPECT_EQ(FSMKDirFromRoot(U("a"), U("a/b")), -1);
    EXPECT_TRUE(Logged("ERROR", "make-folder.cpp",
                       "Giving a root '" + path("a/b") + "' whose length is larger then target's '" +
                           path("a") + "'.\n"));
    EXPECT_EQ(FSMKDirFromRoot(U("ab/c"), U("a")), -1);
    EXPECT_TRUE(Logged("ERROR", "make-folder.cpp",
                       "root '" + path("a") + "' is not a parent folder of target '" +
                           path("ab/c") + "'\n"));
    EXPECT_EQ(FSMKDirFromRoot(U("a/c"), U("a/")), -1) << "a root ending in / never matches";
    EXPECT_FALSE(Exists(path("a")));
}

TEST_F(MakeFolder, FromRootStopsAtTheFirstLevelThatFails) {
    MakeDirs(path("root"));
    WriteFile(path("root/file"), "");
    EXPECT_EQ(FSMKDirFromRoot(U("root/file/x"), U("root")), -1);
    EXPECT_FALSE(Exists(path("root/file/x")));
}

}  // namespace
