#pragma once
// The file-operation tests' fixture, shared with the Linux-only cases.
#include <unistd.h>

#include <filesystem>

#include "file/file-op.h"
#include "log/log.h"
#include "temp_dir.h"

namespace skelda_test {

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
    void TearDown() override { Logger::Destroy(), TempDirTest::TearDown(); }
    ustring U(const std::string& rel) const { return path(rel).c_str(); }
    std::string R(const std::string& rel) const { return real_ + "/" + rel; }
    // Whether a line "<16-byte time>[level] <source>(<line>): message" was logged.
    bool Logged(const std::string& level, const std::string& message) const {
        const std::string log = "\n" + ReadFile(path("op.log")), tail = "): " + message;
        for (size_t at = log.find(tail); at != std::string::npos; at = log.find(tail, at + 1))
            if (log.compare(log.rfind('\n', at) + 17, level.size() + 3, "[" + level + "] ") == 0)
                return true;
        return false;
    }
    // The record of each path: its stored spelling, type and size (-1: any).
    void ExpectStoredSpellings() const {
        const struct { const char *arg, *stored; int type; int64_t size; } rows[] = {
            {"real/data", "real/data", FT_REG, 5}, {"real/folder/", "real/folder", FT_DIR, -1},
            {"alias/data", "real/data", FT_REG, 5}, {"alias", "alias", FT_LNK, 4},
            {"alias/dangling", "real/dangling", FT_LNK, 14}, {"real/folder/..", "real", FT_DIR, -1}};
        for (const auto& r : rows) {
            _FILE_INFO_tag info;
            EXPECT_TRUE(GetFileInfo(U(r.arg), info) == 0 && info.exists && info.type == r.type &&
                        info.path == ustring(R(r.stored)) && info.name == FSBaseName(r.stored) &&
                        (r.size < 0 || info.size == r.size)) << info.path.c_str();
        }
        ustring real = U("alias/data");
        EXPECT_TRUE(FSGetRealPath(real) == 0 && real == ustring(R("real/data"))) << real.c_str();
    }
    std::string real_;
};

}  // namespace skelda_test
