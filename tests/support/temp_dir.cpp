#include "temp_dir.h"

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace skelda_test {

void TempDirTest::SetUp() {
    const char* base = std::getenv("TMPDIR");
    std::string tmpl = std::string(base && *base ? base : "/tmp") + "/skelda-test-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl.data()), nullptr) << "mkdtemp " << tmpl;
    dir_ = tmpl;
    MakeDirs(home_ = dir_ + "/home");
    setenv("HOME", home_.c_str(), 1);  // never the real one, for the rest of the process
}

void TempDirTest::TearDown() {
    if (HasFailure())
        std::cerr << "test folder kept for inspection: " << dir_ << "\n";
    else
        RemoveTree(dir_);
}

void WriteFile(const std::string& path, const std::string& content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    ASSERT_TRUE(out.good()) << "cannot write " << path;
    out << content;
}

std::string ReadFile(const std::string& path) {
    std::ostringstream ss;
    ss << std::ifstream(path, std::ios::binary).rdbuf();
    return ss.str();
}

void MakeDirs(const std::string& path) {
    std::error_code ec;
    std::filesystem::create_directories(path, ec);
    ASSERT_FALSE(ec) << "mkdir -p " << path << ": " << ec.message();
}

bool Exists(const std::string& path) {
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

void RemoveTree(const std::string& path) {
    std::error_code ec;  // a failure leaves the rest in place
    std::filesystem::remove_all(path, ec);
}

}  // namespace skelda_test
