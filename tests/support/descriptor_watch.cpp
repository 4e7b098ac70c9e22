// Fails the test that leaves a descriptor open: the targets in /proc/self/fd before and after.
// Sockets and anonymous inodes are left out: Qt opens them lazily for the life of a thread or of
// the process (the event dispatcher's eventfd, inotify, display and D-Bus connections), while
// the code under test opens only files, folders and pipes.
#include <dirent.h>
#include <unistd.h>

#include <map>

#include "temp_dir.h"

namespace skelda_test {
namespace {

std::map<int, std::string> OpenDescriptors() {
    std::map<int, std::string> open;
    DIR* dir = opendir("/proc/self/fd");
    for (dirent* e; dir && (e = readdir(dir));) {
        char target[4096];
        const int fd = atoi(e->d_name);
        const ssize_t n = readlinkat(dirfd(dir), e->d_name, target, sizeof target);
        if (e->d_name[0] != '.' && fd != dirfd(dir) && n >= 0)
            open[fd] = std::string(target, size_t(n));
    }
    if (dir)
        closedir(dir);
    return open;
}

class DescriptorWatch : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override { before_ = OpenDescriptors(); }
    // End events reach the listeners in reverse order: this one before the printer.
    void OnTestEnd(const ::testing::TestInfo&) override {
        for (const auto& [fd, target] : OpenDescriptors()) {
            const auto was = before_.find(fd);
            const bool qt = target.rfind("socket:", 0) == 0 || target.rfind("anon_inode:", 0) == 0;
            if (!qt && (was == before_.end() || was->second != target))
                ADD_FAILURE() << "descriptor " << fd << " (" << target << ") left open by the test";
        }
    }
    std::map<int, std::string> before_;
};

}  // namespace

void WatchDescriptors() {
    ::testing::UnitTest::GetInstance()->listeners().Append(new DescriptorWatch);
}

}  // namespace skelda_test
