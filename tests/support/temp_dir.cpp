#include "temp_dir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace skelda_test {

void TempDirTest::SetUp() {
    const char* base = std::getenv("TMPDIR");
    std::string tmpl = std::string(base && *base ? base : "/tmp") + "/skelda-test-XXXXXX";
    ASSERT_NE(mkdtemp(tmpl.data()), nullptr) << "mkdtemp " << tmpl;
    dir_ = tmpl;
    home_ = dir_ + "/home";
    MakeDirs(home_);
    const char* h = std::getenv("HOME");
    had_home_ = h != nullptr;
    if (h)
        saved_home_ = h;
    setenv("HOME", home_.c_str(), 1);
}

void TempDirTest::TearDown() {
    if (had_home_)
        setenv("HOME", saved_home_.c_str(), 1);
    else
        unsetenv("HOME");
    if (HasFailure()) {
        std::cerr << "test folder kept for inspection: " << dir_ << "\n";
        return;
    }
    // Tests may leave read-only folders behind; make them writable first.
    std::error_code ec;
    for (auto it = fs::recursive_directory_iterator(dir_, fs::directory_options::skip_permission_denied, ec);
         !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
        if (it->is_directory(ec) && !it->is_symlink(ec))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
    }
    RemoveTree(dir_);
}

void WriteFile(const std::string& path, const std::string& content) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    ASSERT_TRUE(out.good()) << "cannot write " << path;
    out << content;
}

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

void MakeDirs(const std::string& path) {
    std::error_code ec;
    fs::create_directories(path, ec);
    ASSERT_FALSE(ec) << "mkdir -p " << path << ": " << ec.message();
}

bool Exists(const std::string& path) {
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

void RemoveTree(const std::string& path) {
    std::error_code ec;
    fs::remove_all(path, ec);
}

}  // namespace skelda_test
