// Path strings, records, existence, listings, links, folders, copying, moving and removing.

#include <grp.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include "file/file-op.h"
#include "log/log.h"
#include "temp_dir.h"

namespace {

using namespace skelda_test;

// Whether body, in a forked child free to change its ids or mounts, reported "" (else: stderr).
bool InChild(const std::function<std::string()>& body, bool as_nobody = false) {
    pid_t pid = fork();
    if (pid == 0) {
        std::string report = "cannot become nobody";
        if (!as_nobody || (setgroups(0, nullptr) == 0 && setgid(65534) == 0 && setuid(65534) == 0))
            report = body();
        std::fputs(report.c_str(), stderr);
        _exit(report.empty() ? 0 : 1);
    }
    int status = 0;
    return waitpid(pid, &status, 0) == pid && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

bool PrivateMounts() {
    return unshare(CLONE_NEWNS) == 0 &&
           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// Relative path -> "dir", "link:<target>" or "file:<content>".
std::map<std::string, std::string> Tree(const std::string& root) {
    std::map<std::string, std::string> out;
    for (auto& e : std::filesystem::recursive_directory_iterator(root))
        out[e.path().string().substr(root.size())] =
            e.is_symlink() ? "link:" + std::filesystem::read_symlink(e).string()
                           : e.is_directory() ? "dir" : "file:" + ReadFile(e.path());
    return out;
}

// op: 'p' FSParentPath(a), 'b' FSBaseName(a), 'i' FSIsParentFolder(a, b).
struct PathRow { const char* label; char op; const char *a, *b, *expected; };
class PathHelpers : public ::testing::TestWithParam<PathRow> {};

TEST_P(PathHelpers, GiveTheTableResult) {
    const PathRow& r = GetParam();
    const std::string got = r.op == 'p'   ? FSParentPath(r.a).c_str()
                            : r.op == 'b' ? FSBaseName(r.a).c_str()
                                          : (FSIsParentFolder(r.a, r.b) ? "true" : "false");
    EXPECT_EQ(got, r.expected) << r.op << "(" << r.a << ", " << r.b << ")";
}

INSTANTIATE_TEST_SUITE_P(
    Table, PathHelpers,
    ::testing::Values(PathRow{"parent_of_bare_name_is_root", 'p', "abc", "", "/"},
                      PathRow{"parent_of_top_level_is_root", 'p', "/abc", "", "/"},
                      PathRow{"parent_of_two_levels", 'p', "/a/b", "", "/a"},
                      PathRow{"parent_with_trailing_slash_is_the_folder", 'p', "/a/b/", "", "/a/b"},
                      PathRow{"parent_of_empty_is_root", 'p', "", "", "/"},
                      PathRow{"base_of_bare_name", 'b', "abc", "", "abc"},
                      PathRow{"base_of_two_levels", 'b', "/a/b", "", "b"},
                      PathRow{"base_with_trailing_slash_is_empty", 'b', "/a/b/", "", ""},
                      PathRow{"folder_is_its_own_parent", 'i', "/a", "/a", "true"},
                      PathRow{"folder_is_parent_of_child", 'i', "/a", "/a/b", "true"},
                      PathRow{"prefix_without_boundary", 'i', "/a", "/ab", "false"},
                      PathRow{"trailing_slash_never_matches_longer", 'i', "/a/", "/a/b", "false"},
                      PathRow{"child_shorter_than_parent", 'i', "/a/b", "/a", "false"},
                      PathRow{"same_length_other_text", 'i', "/a", "/b", "false"},
                      PathRow{"empty_parent_of_absolute", 'i', "", "/a", "true"},
                      PathRow{"empty_parent_of_relative", 'i', "", "a", "false"}),
    [](const auto& info) { return std::string(info.param.label); });

// real/{data (5 bytes), folder, dangling link}, alias -> real; file_op_debug logs into op.log.
class FileOp : public TempDirTest {
protected:
    void SetUp() override {
        TempDirTest::SetUp();
        Logger::log_level.clear();
        WriteFile(path("launcher.debug"), "file_op_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::LOGFILE, U("op.log"), U("launcher.debug"), 50), 0);
        real_ = std::filesystem::canonical(dir());  // any link in TMPDIR resolved
        MakeDirs(path("real/folder"));
        WriteFile(path("real/data"), "12345");
        ASSERT_EQ(symlink("real", path("alias").c_str()), 0);
        ASSERT_EQ(symlink("no-such-target", path("real/dangling").c_str()), 0);
    }
    void TearDown() override {
        Logger::Destroy();
        TempDirTest::TearDown();
    }
    ustring U(const std::string& rel) const { return path(rel).c_str(); }
    ustring R(const std::string& rel) const { return (real_ + "/" + rel).c_str(); }
    // Whether a line "<16-byte time>[level] <source>(<line>): message" was logged.
    bool Logged(const std::string& level, const std::string& message) const {
        const std::string log = "\n" + ReadFile(path("op.log")), tail = "): " + message;
        for (size_t at = log.find(tail); at != std::string::npos; at = log.find(tail, at + 1))
            if (log.compare(log.rfind('\n', at) + 17, level.size() + 3, "[" + level + "] ") == 0)
                return true;
        return false;
    }
    std::string real_;
};

struct SpellingRow { const char *label, *arg, *stored; int type; int64_t size; };  // size -1: any
class Spelling : public FileOp, public ::testing::WithParamInterface<SpellingRow> {};

TEST_P(Spelling, IsTheStoredOneWithAndWithoutProc) {
    const SpellingRow& r = GetParam();
    auto check = [&]() -> std::string {
        _FILE_INFO_tag info;
        if (GetFileInfo(U(r.arg), info) != 0 || !info.exists || info.type != r.type ||
            info.path != R(r.stored) || info.name != FSBaseName(r.stored) ||
            (r.size >= 0 && info.size != r.size))
            return std::string("wrong record: ") + info.path.c_str() + "\n";
        return "";
    };
    EXPECT_EQ(check(), "");
    EXPECT_TRUE(Logged("DEBUG", "Input file path = [" + path(r.arg) + "].\n"));
    EXPECT_TRUE(Logged("DEBUG", "FSRefMakePath outTargetPath path = [" + real_ + "/" + r.stored +
                                    "].\n"));
    EXPECT_TRUE(InChild([&] {  // without /proc the parents are resolved another way
        return PrivateMounts() && umount2("/proc", MNT_DETACH) == 0 ? check() : "";
    }));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Spelling,
    ::testing::Values(SpellingRow{"regular_file", "real/data", "real/data", FT_REG, 5},
                      SpellingRow{"trailing_slash", "real/folder/", "real/folder", FT_DIR, -1},
                      SpellingRow{"linked_parent_resolved", "alias/data", "real/data", FT_REG, 5},
                      SpellingRow{"leaf_link_described", "alias", "alias", FT_LNK, 4},
                      SpellingRow{"dangling_link", "alias/dangling", "real/dangling", FT_LNK, 14}),
    [](const auto& info) { return std::string(info.param.label); });

TEST_F(FileOp, MissingPathIsSuccessAndAPathBelowAFileFails) {
    _FILE_INFO_tag info;
    info.uid = 7;
    ASSERT_EQ(GetFileInfo(U("none/here"), info), 0);
    EXPECT_TRUE(!info.exists && !info.uid && info.name == "here" && info.path == U("none/here"));
    info.name = "kept";
    EXPECT_EQ(GetFileInfo(U("real/data/below"), info), -1);
    EXPECT_EQ(FSStat("", info, false), -1);
    info.exists = true;
    EXPECT_EQ(FSStat(U("none"), info, false), 0);
    EXPECT_TRUE(!info.exists && info.name == "kept") << "only exists is set, the rest untouched";
}

TEST_F(FileOp, CaseSensitiveExistenceWantsTheStoredSpelling) {
    EXPECT_TRUE(IsFileExist(R("real/data"), true));
    EXPECT_FALSE(IsFileExist(R("real/Data"), true));
    EXPECT_FALSE(IsFileExist(R("alias/data"), true)) << "through a linked parent";
    EXPECT_TRUE(IsFileExist(R("alias/data"), false));
    EXPECT_FALSE(IsFileExist(R("real/"), true)) << "trailing slash";
    EXPECT_TRUE(IsFileExist(R("real/"), false));
    EXPECT_TRUE(IsFileExist(R("real/dangling"), true) && IsFileExist(R("real/dangling"), false));
    ASSERT_EQ(chdir(real_.c_str()), 0);
    EXPECT_FALSE(IsFileExist("real/data", true)) << "relative path";
    EXPECT_TRUE(IsFileExist("real/data", false));
    EXPECT_FALSE(IsFileExist("", false));
}

using Entry = std::pair<int, int64_t>;  // type, size
// name -> entry; "end" -> {the last FSReadDir result (-2: FSOpenDir failed), 0}.
std::map<std::string, Entry> List(const ustring& folder, int flags) {
    std::map<std::string, Entry> out;
    DIR_HANDLE handle;
    DIR_ENTRY e;
    int rc = FSOpenDir(folder, flags, handle) == 0 ? 1 : -2;
    while (rc == 1 && (rc = FSReadDir(handle, e)) == 1)
        out[e.name.c_str()] = {e.type, e.size};
    out["end"] = {rc, 0};
    return rc == -2 ? out : (FSCloseDir(handle), out);
}

TEST_F(FileOp, ListingsGiveTypesAndSizesOnlyWithInfo) {
    const std::map<std::string, Entry> empty{{".", {FT_DIR, 0}}, {"..", {FT_DIR, 0}}, {"end", {}}};
    EXPECT_EQ(List(R("real/folder"), 0), empty);
    EXPECT_EQ(List(R("real/folder"), DIR_WITH_INFO), empty);
    ASSERT_EQ(mkfifo(path("real/fifo").c_str(), 0600), 0);
    auto plain = List(R("real"), 0), info = List(R("real"), DIR_WITH_INFO);
    EXPECT_EQ(plain["data"], Entry(FT_REG, 0));
    EXPECT_EQ(info["data"], Entry(FT_REG, 5));
    EXPECT_EQ(info["dangling"], Entry(FT_LNK, 14)) << "the link, not its target";
    EXPECT_TRUE(info["fifo"].first == FT_FIFO && info["folder"].first == FT_DIR);
    EXPECT_EQ(List(U("missing"), 0)["end"].first, -2);
    EXPECT_TRUE(Logged("ERROR", "FSOpenDir: Failed to open directory '" + path("missing") +
                                    "'. No such file or directory\n"));
}

TEST_F(FileOp, LinkTargetsOf1023BytesAreReadBut1024AreNot) {
    const std::string t1023 = "/" + std::string(1022, 'a'), t1024 = "/" + std::string(1023, 'b');
    ASSERT_EQ(FSCreateSymbolicLink(t1023.c_str(), U("l1023")), 0);
    ASSERT_EQ(FSCreateSymbolicLink(t1024.c_str(), U("l1024")), 0);
    ustring target;
    ASSERT_EQ(FSReadSymbolicLink(U("l1023"), target), 0);
    EXPECT_EQ(std::string(target.c_str()), t1023);
    EXPECT_EQ(FSReadSymbolicLink(U("l1024"), target), -1);
    EXPECT_TRUE(
        Logged("ERROR", "FSReadSymbolicLink: path of '" + path("l1024") + "' is more than 1024\n"));
}

TEST_F(FileOp, MkdirPMakesEveryLevelStoppingAtATrailingSlash) {
    const ustring target = U("a/b/c/");
    char* stop = nullptr;
    mode_t old = umask(022);
    ASSERT_EQ(FSMKDirP(target, &stop, false, FS_MKDIR_DEFAULT_MODE), 0);
    EXPECT_EQ(stop, target.c_str() + target.length() - 1);
    EXPECT_EQ(FSMKDirP(U("alias/x/y"), nullptr, false, 0777), 0) << "a link to a folder";
    EXPECT_EQ(umask(old), 022u);
    struct stat st;
    EXPECT_TRUE(stat(path("a/b/c").c_str(), &st) == 0 && (st.st_mode & 0777) == 0755);
    EXPECT_TRUE(stat(path("real/x/y").c_str(), &st) == 0 && (st.st_mode & 0777) == 0777);
    EXPECT_EQ(FSMKDirP("", nullptr, false, FS_MKDIR_DEFAULT_MODE), -1);
}

TEST_F(FileOp, MkdirPThroughARegularFileStopsUnlessFilesAreReplaced) {
    const ustring target = U("real/data/b");
    char* stop = nullptr;
    EXPECT_EQ(FSMKDirP(target, &stop, false, FS_MKDIR_DEFAULT_MODE), -1);
    EXPECT_EQ(stop, target.c_str() + target.length());
    EXPECT_TRUE(Logged("INFO", "FSMKDirP: path: " + path("real/data") +
                                   " is symbolic link pointed to folder\n"));
    errno = 0;
    EXPECT_EQ(FSMKDirP(U("real/data"), nullptr, false, FS_MKDIR_DEFAULT_MODE), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(ReadFile(path("real/data")), "12345");
    EXPECT_EQ(FSMKDirP(target, nullptr, true, FS_MKDIR_DEFAULT_MODE), 0);
    EXPECT_TRUE(std::filesystem::is_directory(path("real/data/b")));
}

TEST_F(FileOp, MkdirWantsAFolderOrItsParent) {
    EXPECT_EQ(FSMKDir(U("alias"), true), -1) << "a link to a folder";
    EXPECT_TRUE(Logged("ERROR", "FSMKDir: Create a folder but local file system is not directory '"
                                    + path("alias") + "' (3)\n"));
    EXPECT_EQ(FSMKDir(U("x/y"), false), -2);
    EXPECT_TRUE(Logged("ERROR", "path = " + path("x/y") + " errno : No such file or directory\n"));
    EXPECT_EQ(FSMKDir(U("x/y"), true), 0);
    EXPECT_EQ(FSMKDirFromRoot(U("x/y/a/b"), U("x/y")), 0);
    EXPECT_TRUE(Exists(path("x/y/a/b")) && Logged("DEBUG", "FSMKDirFromRoot: create /a/b\n"));
    EXPECT_EQ(FSMKDirFromRoot(U("xx/c"), U("x")), -1) << "not a parent";
}

TEST_F(FileOp, CopyCarriesEveryByte) {
    WriteFile(path("empty"), "");
    ASSERT_EQ(FSCopy(U("empty"), U("copy"), false), 0);
    EXPECT_TRUE(Exists(path("copy")) && ReadFile(path("copy")).empty());
    ASSERT_EQ(FSCopy(U("empty"), U("moved"), true), 0);
    EXPECT_TRUE(Exists(path("moved")) && !Exists(path("empty"))) << "source removed";
    const std::string data = std::string(3 << 20, 'a') + "end";
    WriteFile(path("src"), data);
    WriteFile(path("dst"), std::string(5 * 1024 * 1024, 'x'));
    ASSERT_EQ(FSCopy(U("src"), U("dst"), false), 0);
    EXPECT_TRUE(ReadFile(path("dst")) == data) << "truncated and equal";
    EXPECT_EQ(FSCopy(U("src"), U("no/dst"), true), -1);
    EXPECT_TRUE(Exists(path("src")));
}

TEST_F(FileOp, RenameOfAMissingSourceTouchesNothing) {
    const auto before = Tree(dir());
    EXPECT_EQ(FSRename(U("missing"), U("real/data"), false), -2);
    EXPECT_EQ(FSRename(U("missing"), U("new"), false), -2);
    EXPECT_EQ(Tree(dir()), before);
}

TEST_F(FileOp, RenameMovesTreesAndTellsFailuresApart) {
    EXPECT_EQ(FSRename(U("alias/data"), U("g"), true), -2) << "case-sensitive: stored spelling";
    EXPECT_EQ(FSRename(U("real"), "", false), -1);
    EXPECT_EQ(FSRename(U("real"), U(std::string(300, 'n')), false), -100);
    ASSERT_EQ(FSRename(U("real"), U("dst"), false), 0);
    EXPECT_TRUE(ReadFile(path("dst/data")) == "12345" && !Exists(path("real")));
    MakeDirs(path("other"));
    EXPECT_EQ(FSRename(U("other"), U("dst"), false), -3) << "onto a folder that is not empty";
}

TEST_F(FileOp, RemoveTakesTreesAndLinksButNeverTheirTargets) {
    EXPECT_EQ(FSRemove(U("alias"), false), 0);
    EXPECT_TRUE(!Exists(path("alias")) && Exists(path("real/data")));
    ASSERT_EQ(symlink("/", path("real/folder/root").c_str()), 0);
    EXPECT_EQ(FSRemove(U("real"), false), 0);
    EXPECT_FALSE(Exists(path("real")));
    EXPECT_EQ(FSRemove(U("real"), false), 0) << "nothing there is done";
    EXPECT_EQ(FSRemove("", false), -1);
}

TEST_F(FileOp, AnotherUserIsRefusedWhereThePermissionsSaySo) {
    chmod(dir().c_str(), 0755);
    chmod(path("real").c_str(), 0777);
    chmod(path("real/folder").c_str(), 0755);
    WriteFile(path("real/folder/f"), "");
    const ustring data = U("real/data");
    EXPECT_TRUE(InChild([&] {
        std::string bad = hasFilePermission(data, W_OK) || !isFileLocked(data, W_OK) ? "W; " : "";
        bad += hasFilePermission(data, R_OK) && !isFileLocked(data, R_OK) ? "" : "R; ";
        bad += FSMKDir(U("sub"), true) == -2 ? "" : "FSMKDir; ";
        return bad + (FSRemove(U("real"), false) == -3 ? "" : "FSRemove; ");
    }, true));
    EXPECT_TRUE(Logged("ERROR", "path = " + path("sub") + " errno : Permission denied\n"));
    EXPECT_TRUE(Exists(path("real/folder/f")));
}

class CrossFs : public FileOp {
protected:
    void SetUp() override {
        FileOp::SetUp();
        MakeDirs(path("mnt"));
        if (!PrivateMounts() || mount("tmpfs", path("mnt").c_str(), "tmpfs", 0, "size=1m") != 0)
            GTEST_SKIP() << "no tmpfs here: " << strerror(errno);
    }
    void TearDown() override {
        umount2(path("mnt").c_str(), MNT_DETACH);
        FileOp::TearDown();
    }
};

TEST_F(CrossFs, CopyOntoAFullFileSystemIsToldApart) {
    WriteFile(path("big"), std::string(2 * 1024 * 1024, 'z'));
    EXPECT_EQ(FSCopy(U("big"), U("mnt/big"), true), -2);
    EXPECT_TRUE(Logged("ERROR", "CopyFile: write: No space left on device (28)\n"));
    EXPECT_TRUE(Exists(path("big")) && Exists(path("mnt/big"))) << "source and partial copy";
    EXPECT_EQ(FSCopy(U("mnt/big"), U("mnt/again"), false), -2) << "copied inside the kernel";
}

TEST_F(CrossFs, TreeArrivesCompleteAndALoneLinkStays) {
    MakeDirs(path("real/folder/deep"));
    WriteFile(path("real/folder/mid"), std::string(100000, 'm'));
    ASSERT_EQ(unlink(path("real/dangling").c_str()), 0);  // links are not moved across
    const auto tree = Tree(path("real"));
    ASSERT_EQ(FSRename(U("real"), U("mnt/dst"), false), 0);
    EXPECT_FALSE(Exists(path("real")));
    EXPECT_EQ(Tree(path("mnt/dst")), tree);
    EXPECT_EQ(FSRename(U("alias"), U("mnt/link"), false), 0);
    EXPECT_TRUE(Exists(path("alias")) && !Exists(path("mnt/link")));
}

}  // namespace
