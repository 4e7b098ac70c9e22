// Path strings, records, existence, listings, links, folders, copying, moving and removing.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <map>

#include "file_op_fixture.h"

namespace {

using namespace skelda_test;

TEST(FilePath, HelpersGiveTheTableResult) {
    // op: 'p' FSParentPath(a), 'b' FSBaseName(a), 'i' FSIsParentFolder(a, b).
    const struct { char op; const char *a, *b, *expected; } rows[] = {
        {'p', "abc", "", "/"}, {'p', "/abc", "", "/"}, {'p', "/a/b", "", "/a"}, {'p', "/a/b/", "", "/a/b"},
        {'p', "", "", "/"}, {'b', "abc", "", "abc"}, {'b', "/a/b", "", "b"}, {'b', "/a/b/", "", ""},
        {'i', "/a", "/a", "true"}, {'i', "/a", "/a/b", "true"}, {'i', "/a", "/ab", "false"},
        {'i', "/a/", "/a/b", "false"}, {'i', "/a/b", "/a", "false"}, {'i', "/a", "/b", "false"},
        {'i', "", "/a", "true"}, {'i', "", "a", "false"}};
    for (const auto& r : rows) {
        const std::string got = r.op == 'p'   ? FSParentPath(r.a).c_str()
                                : r.op == 'b' ? FSBaseName(r.a).c_str()
                                              : (FSIsParentFolder(r.a, r.b) ? "true" : "false");
        EXPECT_EQ(got, r.expected) << r.op << "(" << r.a << ", " << r.b << ")";
    }
}

// name -> (type, size); "end" -> {the last FSReadDir result (-2: FSOpenDir failed), 0}.
using Entry = std::pair<int, int64_t>;
std::map<std::string, Entry> List(const ustring& folder, int flags) {
    std::map<std::string, Entry> out;
    DIR_HANDLE handle;
    DIR_ENTRY e;
    int rc = FSOpenDir(folder, flags, handle) == 0 ? 1 : -2;
    while (rc == 1 && (rc = FSReadDir(handle, e)) == 1) {
        out[e.name.c_str()] = {e.type, e.size};
        EXPECT_TRUE(flags & DIR_WITH_INFO || e.mtime == 0) << "a time only with the information";
    }
    out["end"] = {rc, 0};
    return rc == -2 ? out : (FSCloseDir(handle), out);
}

TEST_F(FileOp, RecordsExistenceAndListingsGiveTheStoredSpellingTypesAndSizes) {
    ExpectStoredSpellings();
    EXPECT_TRUE(Logged("DEBUG", "Input file path = [" + path("alias/data") + "].\n") &&
                Logged("DEBUG", "FSRefMakePath outTargetPath path = [" + R("real/data") + "].\n"));
    _FILE_INFO_tag info;
    info.uid = 7, info.dev = 8;  // a missing path clears the record
    ASSERT_EQ(GetFileInfo(U("none/here"), info), 0);
    EXPECT_TRUE(!info.exists && !info.uid && !info.dev && info.name == "here" && info.path == U("none/here"));
    info.name = "kept";
    EXPECT_EQ(GetFileInfo(U("real/data/below"), info), -1);
    info.exists = true;
    EXPECT_EQ(FSStat(U("none"), info, false), 0);
    EXPECT_TRUE(!info.exists && info.name == "kept") << "only exists is set, the rest untouched";
    // Path, then whether it exists with case_sensitive true and false.
    const struct { std::string path; bool sensitive, insensitive; } exist[] = {
        {R("real/data"), true, true}, {R("real/Data"), false, false}, {R("alias/data"), false, true},
        {R("real/"), false, true}, {R("real/dangling"), true, true}, {"real/data", false, true},
        {"", false, false}};
    ASSERT_EQ(chdir(real_.c_str()), 0);
    for (const auto& r : exist)
        EXPECT_TRUE(IsFileExist(r.path.c_str(), true) == r.sensitive &&
                    IsFileExist(r.path.c_str(), false) == r.insensitive) << r.path;
    // Listings: types and sizes only with the information, links read up to 1023 bytes.
    const std::map<std::string, Entry> empty{{".", {FT_DIR, 0}}, {"..", {FT_DIR, 0}}, {"end", {}}};
    EXPECT_TRUE(List(R("real/folder"), 0) == empty && List(R("real/folder"), DIR_WITH_INFO) == empty);
    ASSERT_EQ(mkfifo(path("real/fifo").c_str(), 0600), 0);
    auto plain = List(R("real"), 0), full = List(R("real"), DIR_WITH_INFO);
    EXPECT_TRUE(plain["data"] == Entry(FT_REG, 0) && full["data"] == Entry(FT_REG, 5));
    EXPECT_TRUE(full["dangling"] == Entry(FT_LNK, 14) && full["fifo"].first == FT_FIFO &&
                full["folder"].first == FT_DIR) << "the link, not its target";
    EXPECT_EQ(List(U("missing"), 0)["end"].first, -2);
    EXPECT_TRUE(Logged("ERROR", "FSOpenDir: Failed to open directory '" + path("missing") +
                                    "'. No such file or directory\n"));
    const std::string t1023 = "/" + std::string(1022, 'a'), t1024 = "/" + std::string(1023, 'b');
    ASSERT_EQ(FSCreateSymbolicLink(t1023.c_str(), U("l1023")), 0);
    ASSERT_EQ(FSCreateSymbolicLink(t1024.c_str(), U("l1024")), 0);
    ustring target;
    EXPECT_TRUE(FSReadSymbolicLink(U("l1023"), target) == 0 && target == ustring(t1023));
    EXPECT_TRUE(FSReadSymbolicLink(U("l1024"), target) == -1 &&
                Logged("ERROR", "FSReadSymbolicLink: path of '" + path("l1024") + "' is more than 1024\n"));
}

TEST_F(FileOp, FoldersAreMadeLevelByLevelUnlessSomethingElseIsInTheWay) {
    ustring target = U("a/b/c/");
    char* stop = nullptr;
    mode_t old = umask(022);
    ASSERT_EQ(FSMKDirP(target, &stop, false, FS_MKDIR_DEFAULT_MODE), 0);
    EXPECT_EQ(stop, target.c_str() + target.length() - 1) << "stops at the trailing slash";
    EXPECT_EQ(FSMKDirP(U("alias/x/y"), nullptr, false, 0777), 0) << "a link to a folder";
    EXPECT_EQ(umask(old), 022u);
    struct stat a, x;
    EXPECT_TRUE(stat(path("a/b/c").c_str(), &a) == 0 && stat(path("real/x/y").c_str(), &x) == 0);
    EXPECT_TRUE((a.st_mode & 0777) == 0755 && (x.st_mode & 0777) == 0777);
    // The empty path is refused before anything is tried or logged.
    const std::string log = ReadFile(path("op.log"));
    _FILE_INFO_tag info;
    const int empty[] = {FSMKDirP("", nullptr, true, FS_MKDIR_DEFAULT_MODE), FSMKDir("", true), FSMKDir("", false),
                         FSStat("", info, false), FSRemove("", false), FSRename(U("real"), "", false),
                         FSRename("", U("x"), false)};
    for (size_t i = 0; i < std::size(empty); ++i)
        EXPECT_EQ(empty[i], -1) << i;
    EXPECT_EQ(ReadFile(path("op.log")), log);
    EXPECT_TRUE(FSMKDir(U("real/data/x"), true) == -1 &&
                Logged("ERROR", "FSMKDir: Failed to to file info '" + path("real/data/x") + "'\n"));
    target = U("real/data/b");
    EXPECT_EQ(FSMKDirP(target, &stop, false, FS_MKDIR_DEFAULT_MODE), -1);
    EXPECT_EQ(stop, target.c_str() + target.length());
    EXPECT_EQ(FSMKDirP(target, nullptr, false, 0700), -1) << "with an exact mode too";
    EXPECT_TRUE(Logged("INFO", "FSMKDirP: path: " + path("real/data") +
                                   " is symbolic link pointed to folder\n"));
    errno = 0;
    EXPECT_EQ(FSMKDirP(U("real/data"), nullptr, false, FS_MKDIR_DEFAULT_MODE), -1);
    EXPECT_TRUE(errno == EEXIST && ReadFile(path("real/data")) == "12345");
    EXPECT_EQ(FSMKDirP(target, nullptr, true, FS_MKDIR_DEFAULT_MODE), 0);
    EXPECT_TRUE(std::filesystem::is_directory(path("real/data/b")));
    EXPECT_EQ(FSMKDir(U("alias"), true), -1) << "a link to a folder";
    EXPECT_TRUE(Logged("ERROR", "FSMKDir: Create a folder but local file system is not directory '"
                                    + path("alias") + "' (3)\n"));
    EXPECT_EQ(FSMKDir(U("x/y"), false), -2);
    EXPECT_TRUE(Logged("ERROR", "path = " + path("x/y") + " errno : No such file or directory\n"));
    EXPECT_TRUE(FSMKDir(U("x/y"), true) == 0 && FSMKDirFromRoot(U("x/y/a/b"), U("x/y")) == 0);
    EXPECT_TRUE(Exists(path("x/y/a/b")) && Logged("DEBUG", "FSMKDirFromRoot: create /a/b\n"));
    EXPECT_EQ(FSMKDirFromRoot(U("xx/c"), U("x")), -1) << "not a parent";
    EXPECT_EQ(FSMKDirFromRoot(U("real/dangling/x"), U("real")), -1) << "a link in the way";
}

TEST_F(FileOp, WrappersSetTimesMakeTemporaryFilesReadableByAllAndSeeNoNetworkShare) {
    ustring made;
    struct stat st;
    EXPECT_TRUE(FSUTime(U("real/data"), 1000, 2000) == 0 && FSUTime(U("none"), 1, 2) == -1);
    EXPECT_TRUE(FSChown(U("alias"), 0, 0) == 0 && FSChown(U("none"), 0, 0) == -1 && FSTimeEqual(7, 7) && !FSTimeEqual(7, 8));
    EXPECT_TRUE(stat(path("real/data").c_str(), &st) == 0 && st.st_atime == 1000 && st.st_mtime == 2000);
    ASSERT_EQ(FSMktemp(U("real"), made), 0);
    EXPECT_TRUE(FSParentPath(made) == U("real") && FSBaseName(made).length() == 6 && !Exists(path("real/XXXXXX")));
    EXPECT_TRUE(stat(made.c_str(), &st) == 0 && (st.st_mode & 07777) == 0644 && st.st_size == 0) << made.c_str();
    EXPECT_TRUE(FSMktemp(U("none"), made) == -1 &&
                Logged("ERROR", "mkstemp(" + path("none") + "/XXXXXX): No such file or directory\n"));
    EXPECT_TRUE(isFileLocked(U("real/data"), X_OK) && hasFilePermission(U("real/data"), R_OK | W_OK));
    EXPECT_FALSE(isMountPoint(U("real")) || IsMSDOS(U("real")));
    EXPECT_EQ(ReadFile(path("op.log")).find("Failed to get file system info"), std::string::npos);
    EXPECT_FALSE(isMountPoint(U("none")));
    EXPECT_TRUE(Logged("ERROR", "isMountPoint: Failed to get file system info '" + path("none") +
                                    "'. No such file or directory\n"));
}

TEST_F(FileOp, CopyCarriesEveryByteAndTellsReadFromWriteErrors) {
    WriteFile(path("empty"), "");
    ASSERT_TRUE(FSCopy(U("empty"), U("copy"), false) == 0 && FSCopy(U("empty"), U("moved"), true) == 0);
    EXPECT_TRUE(Exists(path("copy")) && Exists(path("moved")) && !Exists(path("empty"))) << "source removed";
    const std::string data = std::string(3 << 20, 'a') + "end";
    WriteFile(path("src"), data);
    WriteFile(path("dst"), std::string(5 * 1024 * 1024, 'x'));
    ASSERT_EQ(FSCopy(U("src"), U("dst"), false), 0);
    EXPECT_TRUE(ReadFile(path("dst")) == data) << "truncated and equal";
    EXPECT_EQ(FSCopy(U("src"), U("no/dst"), true), -1);
    EXPECT_TRUE(Exists(path("src")) &&
                Logged("ERROR", "CopyFile: open(" + path("no/dst") + "): No such file or directory (2)\n"));
    EXPECT_EQ(FSCopy(U("real/folder"), U("dst"), true), -1);
    EXPECT_TRUE(Logged("ERROR", "CopyFile: read: Is a directory (21)\n"));
    EXPECT_TRUE(Exists(path("real/folder")) && ReadFile(path("dst")).empty());
}

TEST_F(FileOp, RenameAndRemoveTellFailuresApartAndNeverFollowLinks) {
    EXPECT_EQ(FSRename(U("missing"), U("real/data"), false), -2);
    EXPECT_TRUE(!Exists(path("missing")) && ReadFile(path("real/data")) == "12345");
    EXPECT_EQ(FSRename(U("alias/data"), U("g"), true), -2) << "case-sensitive: stored spelling";
    EXPECT_EQ(FSRename(U("real"), U(std::string(300, 'n')), false), -100);
    MakeDirs(path("other/x"));
    EXPECT_EQ(FSRename(U("other"), U("real"), false), -3) << "onto a folder that is not empty";
    EXPECT_TRUE(FSRemove(U("alias"), false) == 0 && !Exists(path("alias")) && Exists(path("real/data")));
    EXPECT_TRUE(Logged("DEBUG", "Input file path = [" + path("alias") + "].\n"));
    ASSERT_EQ(symlink("/", path("real/folder/root").c_str()), 0);
    ASSERT_EQ(FSRename(U("real"), U("dst"), false), 0);
    EXPECT_TRUE(ReadFile(path("dst/data")) == "12345" && !Exists(path("real")));
    EXPECT_TRUE(FSRemove(U("dst"), false) == 0 && !Exists(path("dst")));
    EXPECT_TRUE(FSRemove(U("dst"), false) == 0) << "nothing there";
}

TEST_F(FileOp, FlushesReachFilesAndFoldersAndSayWhyTheyFail) {
    EXPECT_TRUE(FSSyncNewFile(U("real/data")) == 0 && FSSyncVolume(U("real")) == 0 &&
                FSSyncPath(U("real/data")) == 0 && FSSyncPath(U("real")) == 0);
    ASSERT_EQ(mkfifo(path("fifo").c_str(), 0600), 0);
    EXPECT_EQ(FSSyncPath(U("fifo")), -1) << "a FIFO has nothing to flush, and opening it must not block";
    EXPECT_TRUE(Logged("ERROR", "FSSyncPath: Failed to flush '" + path("fifo") + "'. Invalid argument\n"));
    EXPECT_EQ(FSSyncVolume(U("none")), -1);
    EXPECT_TRUE(Logged("ERROR", "FSSyncVolume: Failed to flush '" + path("none") + "'. No such file or directory\n"));
}

}  // namespace
