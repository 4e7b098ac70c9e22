// The single-call wrappers: links, times, owner, access, file-system type, temporary files.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <string>

#include "file_op_test_support.h"

namespace {

using skelda_test::Exists;
using skelda_test::FileOpTest;
using skelda_test::MakeDirs;
using skelda_test::RunAsNobody;
using skelda_test::WriteFile;

const char kAlphabet[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

class Wrappers : public FileOpTest {};

TEST_F(Wrappers, ReadsALinkTargetOf1023BytesButNot1024) {
    const std::string t1023 = "/" + std::string(1022, 'a');
    const std::string t1024 = "/" + std::string(1023, 'b');
    ASSERT_EQ(FSCreateSymbolicLink(t1023.c_str(), U("l1023")), 0);
    ASSERT_EQ(FSCreateSymbolicLink(t1024.c_str(), U("l1024")), 0);

    ustring target;
    ASSERT_EQ(FSReadSymbolicLink(U("l1023"), target), 0);
    EXPECT_EQ(std::string(target.c_str()), t1023);

    target = "unchanged";
    EXPECT_EQ(FSReadSymbolicLink(U("l1024"), target), -1);
    EXPECT_STREQ(target.c_str(), "unchanged");
    EXPECT_TRUE(Logged("ERROR", "file-wrappers.cpp",
                       "FSReadSymbolicLink: path of '" + path("l1024") + "' is more than 1024\n"));
}

TEST_F(Wrappers, LinkFailuresNameTheCause) {
    WriteFile(path("plain"), "");
    ustring target;
    EXPECT_EQ(FSReadSymbolicLink(U("plain"), target), -1);
    EXPECT_TRUE(Logged("ERROR", "file-wrappers.cpp",
                       "FSReadSymbolicLink: Failed to read symbolic link '" + path("plain") +
                           "' (code: 22, msg: Invalid argument)\n"));
    EXPECT_EQ(FSCreateSymbolicLink("anything", U("plain")), -1);
    EXPECT_TRUE(Logged("ERROR", "file-wrappers.cpp",
                       "FSCreateSymbolicLink: Failed to create symbolic link 'anything' -> '" +
                           path("plain") + "' (code: 17, msg: File exists)\n"));
}

TEST_F(Wrappers, TimesAndOwnerChangeTheLinkItself) {
    WriteFile(path("target"), "");
    ASSERT_EQ(symlink("target", path("link").c_str()), 0);
    struct stat before;
    ASSERT_EQ(stat(path("target").c_str(), &before), 0);

    ASSERT_EQ(FSUTime(U("link"), 1000000000, 1234567890), 0);
    ASSERT_EQ(FSChown(U("link"), 65534, 65534), 0);

    struct stat link_st, target_st;
    ASSERT_EQ(lstat(path("link").c_str(), &link_st), 0);
    ASSERT_EQ(stat(path("target").c_str(), &target_st), 0);
    EXPECT_EQ(link_st.st_mtime, 1234567890);
    EXPECT_EQ(link_st.st_atime, 1000000000);
    EXPECT_EQ(link_st.st_uid, 65534u);
    EXPECT_EQ(target_st.st_mtime, before.st_mtime);
    EXPECT_EQ(target_st.st_uid, before.st_uid);

    EXPECT_EQ(FSUTime(U("missing"), 1, 2), -1);
    EXPECT_EQ(FSChown(U("missing"), 0, 0), -1);
    EXPECT_TRUE(Logged("ERROR", "file-wrappers.cpp",
                       "FSChown: Failed to chown '" + path("missing") +
                           "' (code: 2, msg: No such file or directory)\n"));
}

TEST_F(Wrappers, MissingFileIsPermittedAndNotLocked) {
    EXPECT_TRUE(hasFilePermission(U("missing"), W_OK));
    EXPECT_FALSE(isFileLocked(U("missing"), W_OK));
}

TEST_F(Wrappers, AccessDeniedToAnotherUserIsLockedAndNotPermitted) {
    chmod(dir().c_str(), 0755);  // let nobody reach the files
    WriteFile(path("private"), "secret");
    chmod(path("private").c_str(), 0600);
    WriteFile(path("public"), "hello");
    chmod(path("public").c_str(), 0644);
    const ustring priv = U("private");
    const ustring pub = U("public");

    std::string report = RunAsNobody([&]() -> std::string {
        std::string bad;
        if (hasFilePermission(priv, R_OK)) bad += "private readable; ";
        if (!isFileLocked(priv, R_OK)) bad += "private not locked; ";
        if (!hasFilePermission(pub, R_OK)) bad += "public not readable; ";
        if (isFileLocked(pub, R_OK)) bad += "public locked; ";
        if (hasFilePermission(pub, W_OK)) bad += "public writable; ";
        return bad;
    });
    EXPECT_EQ(report, "");
}

TEST_F(Wrappers, LocalFoldersAreNeitherNetworkNorMsdos) {
    MakeDirs(path("d"));
    EXPECT_FALSE(isMountPoint(U("d")));
    EXPECT_FALSE(IsMSDOS(U("d")));
    EXPECT_FALSE(isMountPoint(U("missing")));
    EXPECT_TRUE(Logged("ERROR", "file-wrappers.cpp",
                       "isMountPoint: Failed to get file system info '" + path("missing") +
                           "'. No such file or directory\n"));
    EXPECT_FALSE(IsMSDOS(U("missing")));
    EXPECT_TRUE(Logged("ERROR", "file-wrappers.cpp",
                       "IsSupportLargeFile: Failed to get file system info '" + path("missing") +
                           "'. No such file or directory\n"));
}

TEST_F(Wrappers, MktempCreatesAReadableFileInTheFolder) {
    ustring made;
    ASSERT_EQ(FSMktemp(dir().c_str(), made), 0);
    std::string p = made.c_str();
    ASSERT_EQ(p.size(), dir().size() + 7) << p;
    EXPECT_EQ(p.substr(0, dir().size() + 1), dir() + "/");
    struct stat st;
    ASSERT_EQ(stat(p.c_str(), &st), 0);
    EXPECT_TRUE(S_ISREG(st.st_mode));
    EXPECT_EQ(st.st_mode & 07777, 0644u);

    ustring none = "kept";
    EXPECT_EQ(FSMktemp(U("missing"), none), -1);
    EXPECT_STREQ(none.c_str(), "kept");
    EXPECT_TRUE(Logged("ERROR", "file-wrappers.cpp",
                       "mkstemp(" + path("missing") + "/XXXXXX): No such file or directory\n"));
}

TEST_F(Wrappers, TempPathIsAFreshNameAndCreatesNothing) {
    ustring a, b;
    ASSERT_EQ(FSCreateTempPath(dir().c_str(), a), 0);
    ASSERT_EQ(FSCreateTempPath(dir().c_str(), b), 0);
    std::string pa = a.c_str();
    ASSERT_EQ(pa.size(), dir().size() + 9);
    EXPECT_EQ(pa.find_first_not_of(kAlphabet, dir().size() + 1), std::string::npos) << pa;
    EXPECT_NE(pa, std::string(b.c_str()));
    EXPECT_FALSE(Exists(pa));
}

}  // namespace
