// The upgrade service in-process under a HOME with blanks and non-ASCII characters: stopping
// the client, launching it, copying trees. The upgrade decision and transaction run through
// the real launcher (tests/e2e).

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <regex>
#include <thread>

#include "installation-lock.h"
#include "log/log.h"
#include "mac/mac-service.h"
#include "temp_dir.h"

using namespace skelda_test;
using Kills = std::vector<std::pair<pid_t, int>>;

namespace {

Kills g_kills;  // every kill() of this process, see kill() at the end
pid_t g_gone_at_term = 0;  // its SIGTERM finds it ended, as if between the check and the signal

void Put(const std::string& file, const std::string& content) {
    MakeDirs(std::filesystem::path(file).parent_path());
    WriteFile(file, content);
}

// A child forked with on_term as its SIGTERM disposition (SIG_DFL, SIG_IGN, EndSlowly). A thread
// collects it the moment it ends, so that probes never see a zombie.
void EndSlowly(int) {  // 1.5 s after SIGTERM; async-signal-safe
    const timespec delay{1, 500000000};
    nanosleep(&delay, nullptr);
    _exit(0);
}
struct ChildProcess {
    explicit ChildProcess(void (*on_term)(int)) {
        const auto saved = signal(SIGTERM, on_term);
        if ((pid = fork()) == 0)
            for (;;)
                pause();
        signal(SIGTERM, saved);
        reaper = std::thread([this] { waitpid(pid, nullptr, 0), ended = true; });
    }
    ~ChildProcess() {
        if (!ended)
            syscall(SYS_kill, pid, SIGKILL);  // the test's own child, by its id
        reaper.join();
    }
    pid_t pid = -1;
    std::thread reaper;
    std::atomic<bool> ended{false};
};

class ServiceTest : public TempDirTest {
protected:
    void SetUp() override {
        TempDirTest::SetUp();
        MakeDirs(home());
        setenv("HOME", home().c_str(), 1);
    }
    void TearDown() override { Logger::Destroy(), TempDirTest::TearDown(); }
    std::string home() const { return path("Jürgen Ölmann 日本"); }
    std::string user() const { return home() + "/.SkeldaBackup"; }
    std::string app() const { return user() + "/Skelda.app"; }
    void CaptureLog() {  // this process's service log, at DEBUG
        std::remove(path("log").c_str());
        WriteFile(path("debug"), "service_debug=7\nlauncher_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::LOGFILE, path("log"), path("debug"), 50), 0);
    }
    std::string Logged() const {  // as "[LEVEL] message" lines
        return std::regex_replace(ReadFile(path("log")), std::regex(R"(.{16}(\[[A-Z]+\]) \S+\(\d+\): )"), "$1 ");
    }
    // StopService with this pid file, written `age` seconds ago, its log and a fresh record of
    // kill(); returns the seconds.
    double Stop(const std::string& pid_file, time_t age = 0) {
        CaptureLog();
        g_kills.clear();
        Put(user() + "/ui.pid", pid_file);
        const timespec written[2] = {{time(nullptr) - age, 0}, {time(nullptr) - age, 0}};
        EXPECT_EQ(age ? utimensat(AT_FDCWD, (user() + "/ui.pid").c_str(), written, 0) : 0, 0);
        const auto start = std::chrono::steady_clock::now();
        MacService().StopService();
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
};

// ---- copying and launching ----

TEST_F(ServiceTest, CopyPathCopiesATreeAndWithoutAPerUserFolderLaunchingAndExtractingFail) {
    Put(path("src/Contents/Resources/INFO"), "[Version]\nbuild_version=5");
    Put(path("src/Contents/MacOS/skelda-backup-ui"), "#!/bin/sh\n");
    ASSERT_EQ(symlink("INFO", path("src/Contents/Resources/link").c_str()), 0);
    ASSERT_EQ(MacService().FSCopyPath(path("src").c_str(), path("dst").c_str()), 0);
    EXPECT_EQ(std::system(("diff -r '" + path("src") + "' '" + path("dst") + "'").c_str()), 0);
    MakeDirs(path("blocked/Contents/Resources/INFO"));  // a folder where the file goes
    const std::pair<const char*, const char*> failing[] = {
        {"none", "x"}, {"src/Contents/Resources/INFO", "none/x"}, {"src", "blocked"}};
    for (const auto& [from, to] : failing)
        EXPECT_EQ(MacService().FSCopyPath(path(from).c_str(), path(to).c_str()), -1) << from << " to " << to;
    CaptureLog();
    Put(user(), "a file where the per-user installation goes");
    MacService().PostUpgrade();
    EXPECT_EQ(MacService().ExtractPackage(), -1);
    const std::string log = ReadFile(path("log"));
    for (const std::string& error : {"Cannot unregister bundle, " + app(), std::string("Failed to launch Skelda UI\n"),
                                     "failed to create folder: '" + app() + "'\n"})
        EXPECT_NE(log.find("): " + error), std::string::npos) << error << " in:\n" << log;
}

// ---- stopping the client ----

// The lock is taken at once when free, whatever errno says; held by another run, it is waited
// for in flock with one INFO line, not polled, and then taken.
TEST_F(ServiceTest, SecondRunWaitsForTheInstallationLockWithoutSpinning) {
    CaptureLog();
    errno = EWOULDBLOCK;  // left by an earlier call
    { const InstallationLock lock(user().c_str()); }
    EXPECT_TRUE(Exists(user() + "/upgrade.lock") && Logged().empty()) << Logged();
    const int first = open((user() + "/upgrade.lock").c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(first, LOCK_EX), 0);
    std::atomic<bool> taken{false};
    std::thread second([&] { const InstallationLock lock(user().c_str()); taken = true; });
    clockid_t cpu;
    timespec used{};
    ASSERT_EQ(pthread_getcpuclockid(second.native_handle(), &cpu), 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    clock_gettime(cpu, &used);
    EXPECT_FALSE(taken);
    EXPECT_LT(used.tv_sec * 1000 + used.tv_nsec / 1000000, 50) << "ms of CPU time while waiting";
    close(first);
    second.join();
    EXPECT_TRUE(taken);
    EXPECT_EQ(Logged(), "[INFO] another run is changing the installation, waiting for '" + user() +
                            "/upgrade.lock'\n") << "then no warning: the lock was taken";
}

// A pid file whose process has ended, or is older than the process with its number (the
// client crashed or the machine restarted, and the number went to another program).
TEST_F(ServiceTest, PidFilesOfNoProcessOrOfOneStartedAfterThemSignalNothing) {
    const pid_t gone = fork();
    if (gone == 0)
        _exit(0);
    ASSERT_EQ(waitpid(gone, nullptr, 0), gone);
    EXPECT_LT(Stop("pid=" + std::to_string(gone) + "\n"), 0.5);
    EXPECT_TRUE(g_kills.empty() && Logged().empty());
    ChildProcess unrelated(SIG_DFL);
    for (const time_t age : {time_t{3600}, time(nullptr)}) {  // an hour ago; before the boot
        EXPECT_LT(Stop("pid=" + std::to_string(unrelated.pid) + "\n", age), 0.5);
        EXPECT_TRUE(g_kills.empty());
        EXPECT_EQ(Logged(), "[NOTE] pid file '" + user() + "/ui.pid' not trusted: process " +
                            std::to_string(unrelated.pid) + " started after it was written\n");
    }
    EXPECT_FALSE(unrelated.ended);
    // Pid files naming no process: 0 and negative ids address process groups; 2^32 + INT32_MAX
    // would wrap to a pid_t that no process has.
    for (const char* file : {"", "port=80\n", "pid=0\n", "pid=-1\n", "pid=abc\n", "pid=6442450943\n"}) {
        EXPECT_LT(Stop(file), 0.5) << file;
        EXPECT_TRUE(g_kills.empty() && Logged().empty()) << file;
    }
    g_gone_at_term = unrelated.pid;
    EXPECT_LT(Stop("pid=" + std::to_string(unrelated.pid) + "\n"), 0.5);
    EXPECT_TRUE(g_kills == (Kills{{unrelated.pid, SIGTERM}}) && Logged().empty());
    for (const auto make : {mkfifo, mkdir}) {  // never read: the descriptor opened is closed
        CaptureLog();
        const std::string pid_file = user() + "/ui.pid";
        RemoveTree(pid_file);
        ASSERT_EQ(make(pid_file.c_str(), 0600), 0);
        g_kills.clear();
        MacService().StopService();
        EXPECT_TRUE(g_kills.empty());
        EXPECT_EQ(Logged(), "[NOTE] pid file '" + pid_file + "' not trusted: not a regular file\n");
    }
}

TEST_F(ServiceTest, ClientEndingOneAndAHalfSecondsAfterTermCostsTwoPauses) {
    ChildProcess child(EndSlowly);
    const pid_t p = child.pid;
    const double seconds = Stop("# written by the client\npid = " + std::to_string(p) + "  # up\n");
    EXPECT_GT(seconds, 1.9);
    EXPECT_LT(seconds, 2.9);
    EXPECT_EQ(g_kills, (Kills{{p, SIGTERM}, {p, 0}, {p, 0}, {p, 0}}));
    EXPECT_TRUE(Logged().empty());
}

TEST_F(ServiceTest, ClientIgnoringTermIsKilledAfterFiveSeconds) {
    ChildProcess child(SIG_IGN);
    const pid_t p = child.pid;
    const double seconds = Stop("pid=" + std::to_string(p) + "\n");
    EXPECT_GT(seconds, 4.9);
    EXPECT_LT(seconds, 6.0);
    EXPECT_EQ(g_kills, (Kills{{p, SIGTERM}, {p, 0}, {p, 0}, {p, 0}, {p, 0}, {p, 0}, {p, SIGKILL}}));
    EXPECT_TRUE(Logged().empty());
}

}  // namespace

// The safety net of the stop tests: kill() of the code under test is recorded, and 0 or a
// negative id (a process group, or every process) is never delivered.
extern "C" int kill(pid_t pid, int sig) noexcept {
    g_kills.push_back({pid, sig});
    if (pid == g_gone_at_term && sig == SIGTERM)
        return errno = ESRCH, -1;
    return pid > 0 ? static_cast<int>(syscall(SYS_kill, pid, sig)) : 0;
}
