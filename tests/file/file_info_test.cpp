// GetFileInfo, IsFileExist, FSStat, FSGetRealPath and the record's equality.

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <string>

#include "file_op_test_support.h"

namespace {

using skelda_test::FileOpTest;
using skelda_test::MakeDirs;
using skelda_test::RunInChild;
using skelda_test::WriteFile;

std::string RealPath(const std::string& p) {
    char buf[PATH_MAX];
    return realpath(p.c_str(), buf) ? buf : "";
}

class FileInfo : public FileOpTest {
protected:
    void SetUp() override {
        FileOpTest::SetUp();
        real_ = RealPath(dir());
    }
    std::string real_;  // the test folder with any link of TMPDIR resolved
};

TEST_F(FileInfo, MissingPathIsSuccessWithNothingFilledIn) {
    _FILE_INFO_tag info;
    info.uid = 77;
    info.size = 9;
    ASSERT_EQ(GetFileInfo(U("nothing/here"), info), 0);
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(info.type, FT_NONE);
    EXPECT_EQ(info.size, 0);
    EXPECT_EQ(info.uid, 0u);
    EXPECT_STREQ(info.name.c_str(), "here");
    EXPECT_STREQ(info.path.c_str(), path("nothing/here").c_str());
}

TEST_F(FileInfo, PathBelowARegularFileFailsAndLeavesTheRecordAlone) {
    WriteFile(path("file"), "x");
    _FILE_INFO_tag info;
    info.name = "kept";
    EXPECT_EQ(GetFileInfo(U("file/below"), info), -1);  // ENOTDIR, not ENOENT
    EXPECT_STREQ(info.name.c_str(), "kept");
}

TEST_F(FileInfo, RegularFileIsDescribedAndItsSpellingLogged) {
    WriteFile(path("data.bin"), "12345");
    chmod(path("data.bin").c_str(), 0640);
    struct stat st;
    ASSERT_EQ(lstat(path("data.bin").c_str(), &st), 0);

    _FILE_INFO_tag info;
    ASSERT_EQ(GetFileInfo(U("data.bin"), info), 0);
    EXPECT_TRUE(info.exists);
    EXPECT_EQ(info.type, FT_REG);
    EXPECT_EQ(info.size, 5);
    EXPECT_EQ(info.mode, static_cast<uint32_t>(S_IFREG | 0640));
    EXPECT_EQ(info.mtime, static_cast<int32_t>(st.st_mtime));
    EXPECT_EQ(info.dev, static_cast<int64_t>(st.st_dev));
    EXPECT_STREQ(info.path.c_str(), (real_ + "/data.bin").c_str());
    EXPECT_STREQ(info.name.c_str(), "data.bin");
    EXPECT_TRUE(Logged("DEBUG", "file-info.cpp", "Input file path = [" + path("data.bin") + "].\n"));
    EXPECT_TRUE(Logged("DEBUG", "file-info.cpp",
                       "FSRefMakePath outTargetPath path = [" + real_ + "/data.bin].\n"));
}

TEST_F(FileInfo, FolderWithTrailingSlashComesBackWithoutIt) {
    MakeDirs(path("folder"));
    _FILE_INFO_tag info;
    ASSERT_EQ(GetFileInfo(U("folder/"), info), 0);
    EXPECT_EQ(info.type, FT_DIR);
    EXPECT_STREQ(info.path.c_str(), (real_ + "/folder").c_str());
    EXPECT_STREQ(info.name.c_str(), "folder");
}

TEST_F(FileInfo, ParentLinksAreResolvedAndTheLeafLinkIsDescribed) {
    MakeDirs(path("real"));
    WriteFile(path("real/f"), "x");
    ASSERT_EQ(symlink("real", path("alias").c_str()), 0);

    _FILE_INFO_tag info;
    ASSERT_EQ(GetFileInfo(U("alias/f"), info), 0);
    EXPECT_STREQ(info.path.c_str(), (real_ + "/real/f").c_str());

    ASSERT_EQ(GetFileInfo(U("alias"), info), 0);
    EXPECT_EQ(info.type, FT_LNK);
    EXPECT_STREQ(info.path.c_str(), (real_ + "/alias").c_str());
}

TEST_F(FileInfo, SpellingIsTheSameWithoutProc) {
    // /proc is the quick way to the stored spelling; without it the parents are resolved one
    // by one. A child hides /proc in a mount namespace of its own.
    MakeDirs(path("real/sub"));
    WriteFile(path("real/sub/f"), "x");
    ASSERT_EQ(symlink("real", path("alias").c_str()), 0);
    ASSERT_EQ(symlink("sub/f", path("real/leaf").c_str()), 0);
    const std::string real = real_;
    const std::string base = dir();
    std::string report = RunInChild([&]() -> std::string {
        if (unshare(CLONE_NEWNS) != 0 ||
            mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            umount2("/proc", MNT_DETACH) != 0 || access("/proc/self/fd", F_OK) == 0)
            return "skip";
        std::string bad;
        _FILE_INFO_tag info;
        if (GetFileInfo((base + "/alias/sub/f").c_str(), info) != 0 ||
            std::string(info.path.c_str()) != real + "/real/sub/f")
            bad += "parent link: " + std::string(info.path.c_str()) + "; ";
        if (GetFileInfo((base + "/alias/leaf").c_str(), info) != 0 ||
            std::string(info.path.c_str()) != real + "/real/leaf" || info.type != FT_LNK)
            bad += "leaf link: " + std::string(info.path.c_str()) + "; ";
        if (GetFileInfo((base + "/alias/sub/").c_str(), info) != 0 ||
            std::string(info.path.c_str()) != real + "/real/sub")
            bad += "trailing slash: " + std::string(info.path.c_str()) + "; ";
        ustring full = (base + "/alias/leaf").c_str();
        if (FSGetRealPath(full) != 0 || std::string(full.c_str()) != real + "/real/sub/f")
            bad += "real path: " + std::string(full.c_str()) + "; ";
        return bad;
    });
    if (report == "skip")
        GTEST_SKIP() << "cannot hide /proc here";
    EXPECT_EQ(report, "");
}

TEST_F(FileInfo, RecordCanBeRefreshedFromItsOwnPath) {
    WriteFile(path("f"), "abc");
    _FILE_INFO_tag info;
    info.path = U("f");
    ASSERT_EQ(GetFileInfo(info.path, info), 0);
    EXPECT_EQ(info.size, 3);
    EXPECT_STREQ(info.path.c_str(), (real_ + "/f").c_str());
}

TEST_F(FileInfo, DanglingLinkExistsInBothModes) {
    ASSERT_EQ(symlink("no-such-target", path("dangling").c_str()), 0);
    const ustring link((real_ + "/dangling").c_str());
    EXPECT_TRUE(IsFileExist(link, false));
    EXPECT_TRUE(IsFileExist(link, true));
    _FILE_INFO_tag info;
    ASSERT_EQ(GetFileInfo(link, info), 0);
    EXPECT_EQ(info.type, FT_LNK);
    EXPECT_EQ(info.size, static_cast<int64_t>(std::string("no-such-target").size()));
}

TEST_F(FileInfo, CaseSensitiveExistenceWantsTheStoredSpelling) {
    MakeDirs(path("real"));
    WriteFile(path("real/foo"), "");
    ASSERT_EQ(symlink("real", path("alias").c_str()), 0);
    const std::string stored = real_ + "/real/foo";

    EXPECT_TRUE(IsFileExist(stored.c_str(), true));
    EXPECT_FALSE(IsFileExist((real_ + "/real/Foo").c_str(), true));
    EXPECT_FALSE(IsFileExist((real_ + "/alias/foo").c_str(), true)) << "through a linked parent";
    EXPECT_TRUE(IsFileExist((real_ + "/alias/foo").c_str(), false));
    EXPECT_FALSE(IsFileExist((real_ + "/real/").c_str(), true)) << "trailing slash";
    EXPECT_TRUE(IsFileExist((real_ + "/real/").c_str(), false));
    char cwd[PATH_MAX];
    ASSERT_NE(getcwd(cwd, sizeof(cwd)), nullptr);
    ASSERT_EQ(chdir(real_.c_str()), 0);
    EXPECT_FALSE(IsFileExist("real/foo", true)) << "relative path";
    EXPECT_TRUE(IsFileExist("real/foo", false));
    ASSERT_EQ(chdir(cwd), 0);
    EXPECT_FALSE(IsFileExist("", false));
}

TEST_F(FileInfo, CaseSensitiveExistenceAcceptsADecomposedStoredName) {
    const std::string decomposed = real_ + "/cafe\xCC\x81";  // e + U+0301
    WriteFile(decomposed, "");
    EXPECT_TRUE(IsFileExist(decomposed.c_str(), true));
}

TEST_F(FileInfo, FSStatReportsMissingEmptyAndExisting) {
    _FILE_INFO_tag info;
    EXPECT_EQ(FSStat("", info, false), -1);

    info.exists = true;
    info.size = 42;
    EXPECT_EQ(FSStat(U("missing"), info, false), 0);
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(info.size, 42) << "only exists is set for a missing path";

    WriteFile(path("there"), "1234");
    EXPECT_EQ(FSStat((real_ + "/there").c_str(), info, true), 0);
    EXPECT_TRUE(info.exists);
    EXPECT_EQ(info.size, 4);

    EXPECT_EQ(FSStat((real_ + "/there/").c_str(), info, true), 0);
    EXPECT_FALSE(info.exists) << "a trailing slash is not the stored spelling";
}

TEST_F(FileInfo, EqualityIgnoresOwnerModeAndDevice) {
    WriteFile(path("a"), "x");
    _FILE_INFO_tag one, two;
    ASSERT_EQ(GetFileInfo(U("a"), one), 0);
    two = one;
    two.uid += 1;
    two.gid += 1;
    two.mode ^= 0777;
    two.dev += 1;
    EXPECT_TRUE(one == two);
    EXPECT_FALSE(one != two);
    two.name = "b";
    EXPECT_TRUE(one != two);
    two = one;
    two.mtime += 1;
    EXPECT_FALSE(one == two);
    EXPECT_TRUE(_FILE_INFO_tag() == _FILE_INFO_tag());
}

TEST_F(FileInfo, RealPathFollowsEveryLinkAndLogsBothSpellings) {
    MakeDirs(path("real"));
    WriteFile(path("real/target"), "");
    ASSERT_EQ(symlink("real", path("alias").c_str()), 0);
    ASSERT_EQ(symlink("target", path("real/leaf").c_str()), 0);

    ustring p = U("alias/leaf");
    ASSERT_EQ(FSGetRealPath(p), 0);
    EXPECT_STREQ(p.c_str(), (real_ + "/real/target").c_str());
    EXPECT_TRUE(Logged("DEBUG", "file-info.cpp", " org path [" + path("alias/leaf") + "]\n"));
    EXPECT_TRUE(Logged("DEBUG", "file-info.cpp", " get full path [" + real_ + "/real/target]\n"));

    ustring missing = U("missing");
    EXPECT_EQ(FSGetRealPath(missing), -1);
    EXPECT_STREQ(missing.c_str(), path("missing").c_str());
}

}  // namespace
