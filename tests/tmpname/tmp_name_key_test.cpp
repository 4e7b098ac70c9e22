// The key when /dev/urandom cannot be read. A child process hides the device behind a bind
// mount in a mount namespace of its own, so the machine's device is never touched.

#include <gtest/gtest.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include "temp_dir.h"
#include "tmp_name_gen/tmp_name_gen.h"

namespace {

using skelda_test::TempDirTest;
using skelda_test::WriteFile;

class TmpNameKey : public TempDirTest {
protected:
    // Runs body in a child whose /dev/urandom is replaced by `stand_in`; the child writes
    // its findings into a pipe; "skip: ..." means the machine does not allow the mount.
    std::string RunWithUrandom(const std::string& stand_in, std::string (*body)()) {
        int fds[2];
        if (pipe(fds) != 0)
            return "pipe failed";
        pid_t pid = fork();
        if (pid == 0) {
            close(fds[0]);
            std::string out;
            if (unshare(CLONE_NEWNS) != 0 ||
                mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
                mount(stand_in.c_str(), "/dev/urandom", nullptr, MS_BIND, nullptr) != 0)
                out = std::string("skip: ") + strerror(errno);
            else
                out = body();
            ssize_t ignored = write(fds[1], out.data(), out.size());
            (void)ignored;
            _exit(0);
        }
        close(fds[1]);
        std::string report;
        char buf[512];
        ssize_t n;
        while ((n = read(fds[0], buf, sizeof(buf))) > 0)
            report.append(buf, static_cast<size_t>(n));
        close(fds[0]);
        int status = 0;
        waitpid(pid, &status, 0);
        EXPECT_TRUE(WIFEXITED(status)) << "child crashed";
        return report;
    }
};

// Checks a key made from an unreadable device: "<sec>-<usec>" (at most 6 digits), its 0 byte, then `fill`
// up to `fill_end` and zeros behind. Returns "" or what was wrong.
std::string CheckTimeKey(char fill, size_t fill_end) {
    struct timeval before;
    gettimeofday(&before, nullptr);
    unsigned char key[256] = {};
    TmpNameGen::get_key(key, sizeof(key));
    std::string text(reinterpret_cast<char*>(key));
    size_t dash = text.find('-');
    if (dash == std::string::npos || dash == 0 || dash + 1 == text.size() ||
        dash + 7 < text.size() ||
        text.find_first_not_of("0123456789-") != std::string::npos ||
        text.find('-', dash + 1) != std::string::npos)
        return "key is not the time text: " + text;
    long sec = std::stol(text.substr(0, dash));
    if (sec < before.tv_sec || sec > before.tv_sec + 5)
        return "seconds far from now: " + text;
    for (size_t i = text.size() + 1; i < sizeof(key); ++i) {
        unsigned char want = i < fill_end ? static_cast<unsigned char>(fill) : 0;
        if (key[i] != want)
            return "byte " + std::to_string(i) + " behind the text was changed";
    }
    // The generator keyed this way still makes names.
    std::string name = TmpNameGen::getInstance()->getTmpName().c_str();
    if (name.size() != 8)
        return "bad name " + name;
    return "";
}

TEST_F(TmpNameKey, EmptyDeviceFallsBackToTheTimeOfDay) {
    std::string report = RunWithUrandom("/dev/null", [] { return CheckTimeKey(0, 0); });
    if (report.rfind("skip: ", 0) == 0)
        GTEST_SKIP() << "cannot bind-mount over /dev/urandom: " << report;
    EXPECT_EQ(report, "");
}

TEST_F(TmpNameKey, ShortReadKeepsTheBytesBehindTheTimeText) {
    WriteFile(path("short"), std::string(100, 'A'));
    std::string report = RunWithUrandom(path("short"), [] { return CheckTimeKey('A', 100); });
    if (report.rfind("skip: ", 0) == 0)
        GTEST_SKIP() << "cannot bind-mount over /dev/urandom: " << report;
    EXPECT_EQ(report, "");
}

TEST(TmpNameKeyDevice, FullReadFillsAllOfTheKeyFromTheDevice) {
    unsigned char a[256] = {};
    unsigned char b[256] = {};
    TmpNameGen::get_key(a, sizeof(a));
    TmpNameGen::get_key(b, sizeof(b));
    EXPECT_NE(0, std::memcmp(a, b, 256));
    // A time text would leave at least 200 zero bytes behind it.
    int zeros = 0;
    for (unsigned char c : a)
        zeros += c == 0;
    EXPECT_LT(zeros, 30);
}

}  // namespace
