// FSOpenDir / FSReadDir / FSCloseDir with and without DIR_WITH_INFO.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <map>
#include <string>

#include "file_op_test_support.h"

namespace {

using skelda_test::FileOpTest;
using skelda_test::MakeDirs;
using skelda_test::WriteFile;

struct Listed {
    int type;
    int32_t mtime;
    int64_t size;
};

// Lists `folder` to the end; the map is keyed by name.
std::map<std::string, Listed> ListAll(const ustring& folder, int flags) {
    std::map<std::string, Listed> out;
    DIR_HANDLE handle;
    EXPECT_EQ(FSOpenDir(folder, flags, handle), 0);
    EXPECT_STREQ(handle.path.c_str(), folder.c_str());
    EXPECT_EQ(handle.flags, flags);
    DIR_ENTRY entry;
    int rc;
    while ((rc = FSReadDir(handle, entry)) == 1)
        out[entry.name.c_str()] = Listed{entry.type, entry.mtime, entry.size};
    EXPECT_EQ(rc, 0) << "end of the listing";
    FSCloseDir(handle);
    EXPECT_EQ(handle.dir, nullptr);
    EXPECT_TRUE(handle.path.empty());
    return out;
}

class DirList : public FileOpTest {
protected:
    void SetUp() override {
        FileOpTest::SetUp();
        char buf[PATH_MAX];
        ASSERT_NE(realpath(dir().c_str(), buf), nullptr);
        real_ = buf;
    }
    ustring Real(const std::string& rel) const { return (real_ + "/" + rel).c_str(); }
    std::string real_;
};

TEST_F(DirList, EmptyFolderGivesDotAndDotDotThenTheEnd) {
    MakeDirs(path("empty"));
    auto entries = ListAll(U("empty"), 0);
    ASSERT_EQ(entries.size(), 2u);
    EXPECT_EQ(entries["."].type, FT_DIR);
    EXPECT_EQ(entries[".."].type, FT_DIR);
}

TEST_F(DirList, TypesComeFromTheEntriesAndSizesOnlyWithInfo) {
    MakeDirs(path("d/sub"));
    WriteFile(path("d/file"), "hello");
    ASSERT_EQ(symlink("file", path("d/link").c_str()), 0);
    ASSERT_EQ(mkfifo(path("d/fifo").c_str(), 0600), 0);
    int sock = socket(AF_UNIX, SOCK_STREAM, 0);
    struct sockaddr_un addr = {};
    addr.sun_family = AF_UNIX;
    std::string sock_path = path("d/sock");
    ASSERT_LT(sock_path.size(), sizeof(addr.sun_path));
    std::copy(sock_path.begin(), sock_path.end(), addr.sun_path);
    ASSERT_EQ(bind(sock, reinterpret_cast<sockaddr*>(&addr), sizeof(addr)), 0);
    close(sock);

    auto plain = ListAll(Real("d"), 0);
    EXPECT_EQ(plain["sub"].type, FT_DIR);
    EXPECT_EQ(plain["file"].type, FT_REG);
    EXPECT_EQ(plain["link"].type, FT_LNK);
    EXPECT_EQ(plain["fifo"].type, FT_FIFO);
    EXPECT_EQ(plain["sock"].type, FT_SOCK);
    EXPECT_EQ(plain["file"].size, 0);
    EXPECT_EQ(plain["file"].mtime, 0);

    struct stat st;
    ASSERT_EQ(stat(path("d/file").c_str(), &st), 0);
    auto with_info = ListAll(Real("d"), DIR_WITH_INFO);
    EXPECT_EQ(with_info.size(), 7u);
    EXPECT_EQ(with_info["file"].size, 5);
    EXPECT_EQ(with_info["file"].mtime, static_cast<int32_t>(st.st_mtime));
    EXPECT_EQ(with_info["link"].size, 4) << "the link itself, not its target";
}

TEST_F(DirList, InfoOfAFolderNamedThroughALinkIsZero) {
    // The entries' paths are not the stored spelling, so the case-sensitive lookup misses.
    MakeDirs(path("real"));
    WriteFile(path("real/file"), "hello");
    ASSERT_EQ(symlink("real", path("alias").c_str()), 0);
    auto entries = ListAll(Real("alias"), DIR_WITH_INFO);
    EXPECT_EQ(entries["file"].type, FT_REG);
    EXPECT_EQ(entries["file"].size, 0);
}

TEST_F(DirList, MissingFolderFailsWithTheSystemsReason) {
    DIR_HANDLE handle;
    EXPECT_EQ(FSOpenDir(U("missing"), 0, handle), -1);
    EXPECT_EQ(handle.dir, nullptr);
    EXPECT_TRUE(Logged("ERROR", "dir-list.cpp",
                       "FSOpenDir: Failed to open directory '" + path("missing") +
                           "'. No such file or directory\n"));
}

}  // namespace
