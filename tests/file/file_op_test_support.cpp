#include "file_op_test_support.h"

#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "log/log.h"

namespace skelda_test {

namespace {
const size_t kStampLength = 16;  // "Nov 23 02:10:11 "
const uid_t kNobody = 65534;
}  // namespace

void FileOpTest::SetUp() {
    TempDirTest::SetUp();
    Logger::log_level.clear();
    WriteFile(path("launcher.debug"), "file_op_debug=7\n");
    log_file_ = path("file-op.log");
    ASSERT_EQ(Logger::Initialize(Logger::LOGFILE, ustring(log_file_.c_str()),
                                 ustring(path("launcher.debug").c_str()), 50),
              0);
}

void FileOpTest::TearDown() {
    Logger::Destroy();
    TempDirTest::TearDown();
}

std::vector<std::string> FileOpTest::LogLines() const {
    std::vector<std::string> lines;
    std::string text = ReadFile(log_file_);
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end + 1;
        std::string line = text.substr(start, end - start);
        lines.push_back(line.size() > kStampLength ? line.substr(kStampLength) : line);
        start = end;
    }
    return lines;
}

::testing::AssertionResult FileOpTest::Logged(const std::string& level, const std::string& source,
                                              const std::string& message) const {
    const std::string head = "[" + level + "] " + source + "(";
    const std::vector<std::string> lines = LogLines();
    for (const std::string& line : lines) {
        if (line.compare(0, head.size(), head) != 0)
            continue;
        size_t close = line.find("): ", head.size());
        if (close == std::string::npos || close == head.size())
            continue;
        std::string digits = line.substr(head.size(), close - head.size());
        if (digits.find_first_not_of("0123456789") == std::string::npos &&
            line.substr(close + 3) == message)
            return ::testing::AssertionSuccess();
    }
    auto failure = ::testing::AssertionFailure();
    failure << "no line " << head << "N): " << message << "in the log:\n";
    for (const std::string& line : lines)
        failure << "  " << line;
    return failure;
}

std::string RunAsNobody(const std::function<std::string()>& body) {
    return RunInChild([&]() -> std::string {
        if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)
            return std::string("cannot become nobody: ") + strerror(errno);
        return body();
    });
}

std::string RunInChild(const std::function<std::string()>& body) {
    int fds[2];
    if (pipe(fds) != 0)
        return "pipe failed";
    pid_t pid = fork();
    if (pid < 0)
        return "fork failed";
    if (pid == 0) {
        close(fds[0]);
        std::string out = body();
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
    if (!WIFEXITED(status))
        report += "child did not exit normally";
    return report;
}

std::string MountTmpfs(const std::string& at, const std::string& size) {
    if (unshare(CLONE_NEWNS) != 0)
        return std::string("unshare: ") + strerror(errno);
    if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return std::string("private mounts: ") + strerror(errno);
    MakeDirs(at);
    const std::string options = "size=" + size + ",mode=0755";
    if (mount("tmpfs", at.c_str(), "tmpfs", 0, options.c_str()) != 0)
        return std::string("mount tmpfs: ") + strerror(errno);
    return "";
}

void UnmountTmpfs(const std::string& at) {
    umount2(at.c_str(), MNT_DETACH);
}

}  // namespace skelda_test
