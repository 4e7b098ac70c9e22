// Fails the test that leaves a descriptor open: /proc/self/fd before and after each test.
// Sockets and anonymous inodes are left out: Qt opens them lazily for the life of a thread or of
// the process (the event dispatcher's eventfd, inotify, display and D-Bus connections), while
// the code under test opens only files, folders and pipes.
#include <dirent.h>
#include <unistd.h>

#include <map>

#include "temp_dir.h"

namespace skelda_test {
namespace {

std::map<int, std::string> OpenFiles() {  // descriptor -> what it is open on
    std::map<int, std::string> open;
    DIR* dir = opendir("/proc/self/fd");
    char target[4096];
    for (dirent* e; dir && (e = readdir(dir));) {
        const ssize_t n = readlinkat(dirfd(dir), e->d_name, target, sizeof target);
        const std::string what(target, n > 0 ? size_t(n) : 0);
        if (n > 0 && atoi(e->d_name) != dirfd(dir) && what.rfind("socket:", 0) && what.rfind("anon_inode:", 0))
            open[atoi(e->d_name)] = what;
    }
    if (dir)
        closedir(dir);
    return open;
}

class DescriptorWatch : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override { before_ = OpenFiles(); }
    // End events reach the listeners in reverse order: this one before the printer.
    void OnTestEnd(const ::testing::TestInfo&) override {
        for (const auto& [fd, what] : OpenFiles())
            if (before_[fd] != what)
                ADD_FAILURE() << "descriptor " << fd << " (" << what << ") left open by the test";
    }
    std::map<int, std::string> before_;
};

}  // namespace

void WatchDescriptors() {
    ::testing::UnitTest::GetInstance()->listeners().Append(new DescriptorWatch);
}

}  // namespace skelda_test
