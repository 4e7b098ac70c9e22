// Tests of the upgrade service under a HOME with blanks and non-ASCII characters; the driver
// program runs what needs a root installation. With SKELDA_TIMED_STOP: the slow stop cases.

#include <gtest/gtest.h>

#include <QCoreApplication>

#include <signal.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <regex>
#include <thread>

#include "log/log.h"
#include "mac/mac-service.h"
#include "str-table.h"
#include "temp_dir.h"

using namespace skelda_test;
namespace fs = std::filesystem;
using Kills = std::vector<std::pair<pid_t, int>>;
using Lines = std::vector<std::string>;

namespace {

Kills g_kills;  // every kill() of this process, see kill() at the end

// Byte-identical trees (links as links, folders named "log" left out); differences on stdout.
[[maybe_unused]] bool SameTree(const std::string& a, const std::string& b) {
    return std::system(("diff -r --no-dereference -x log '" + a + "' '" + b + "'").c_str()) == 0;
}

// The service's own log lines of the level as "[LEVEL] message".
Lines LogMessages(const std::string& file, const std::string& level = "[A-Z]+") {
    const std::regex re(".*?(\\[" + level + "\\]) \\S*service\\S*\\(\\d+\\): (.*)");
    Lines messages;
    std::ifstream in(file);
    std::smatch m;
    for (std::string line; std::getline(in, line);)
        if (std::regex_match(line, m, re))
            messages.push_back(m[1].str() + " " + m[2].str());
    return messages;
}

void Put(const std::string& file, const std::string& content) {
    MakeDirs(fs::path(file).parent_path());
    WriteFile(file, content);
}

// A child forked with on_term as its SIGTERM disposition (SIG_DFL, SIG_IGN, EndSlowly). A thread
// collects it the moment it ends, so that probes never see a zombie.
[[maybe_unused]] void EndSlowly(int) {  // 1.5 s after SIGTERM; async-signal-safe
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
        setenv("HOME", home().c_str(), 1);  // TempDirTest restores it
        driver_ = root() + "/Contents/MacOS/skelda-service-driver";
    }
    std::string home() const { return path("Jürgen Ölmann 日本"); }
    std::string user() const { return home() + "/.SkeldaBackup"; }
    std::string app() const { return user() + "/Skelda.app"; }
    std::string backup(int n) const { return app() + "_tmp" + (n ? std::to_string(n) : ""); }
    std::string root() const { return path("Skelda Launcher.app"); }
    std::string package() const { return root() + "/Contents/Resources/package/skelda.vpk"; }
    // A bundle with a payload, the client (not executable) when asked, and an INFO with the
    // build as its only key ("": no INFO).
    void MakeApp(const std::string& dir, const std::string& build, bool client) {
        Put(dir + "/Contents/Resources/payload", "build " + build);
        if (!build.empty())
            Put(dir + "/Contents/Resources/INFO", "[Version]\nbuild_version=" + build);
        if (client)
            Put(dir + "/Contents/MacOS/skelda-backup-ui", "#!/bin/sh\n");
    }
    void MakeRootBundle(const std::string& build) {  // with the driver, service_debug at DEBUG
        MakeApp(root(), build, false);
        Put(root() + "/log/launcher.debug", "service_debug=7\n");
        Put(driver_, ReadFile(SKELDA_SERVICE_DRIVER));
        chmod(driver_.c_str(), 0755);
    }
    std::string RunDriver(const std::string& mode) const {  // its stdout
        FILE* pipe = popen(("HOME='" + home() + "' '" + driver_ + "' " + mode).c_str(), "r");
        std::string out;
        char buf[512];
        while (pipe && std::fgets(buf, sizeof buf, pipe))
            out += buf;
        return pipe && pclose(pipe) >= 0 ? out : "popen failed";
    }
    Lines DriverLog(const std::string& level = "[A-Z]+") const {
        return LogMessages(user() + "/log/launcher.log", level);
    }
    void CaptureLog() {  // this process's service log, at DEBUG
        std::remove(path("log").c_str());
        WriteFile(path("debug"), "service_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::LOGFILE, path("log"), path("debug"), 50), 0);
    }
    Lines LoggedMessages() const { return LogMessages(path("log")); }
    std::string driver_;
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

#ifndef SKELDA_TIMED_STOP

// ---- paths, versions and the upgrade decision ----

TEST_F(ServiceTest, PathsFollowHomeAndTheExecutable) {
    driver_ = path("opt/tools/bin/driver");  // outside a bundle: two folders up all the same
    MakeRootBundle("");
    EXPECT_EQ(RunDriver("paths"), "root=" + path("opt") + "\ndata=" + user() + "/data\n");
}

const char kFortyDigits[] = "1234567890123456789012345678901234567890";
struct Decision {
    const char* name;
    bool client;         // APP/Contents/MacOS/skelda-backup-ui exists
    const char* source;  // the build of APP's INFO; "": no INFO
    const char* target;  // the build of the root bundle's INFO; "": no INFO
    bool need;
};
class ServiceDecision : public ServiceTest, public ::testing::WithParamInterface<Decision> {};

TEST_P(ServiceDecision, Row) {
    MakeRootBundle(GetParam().target);
    MakeApp(app(), GetParam().source, GetParam().client);
    EXPECT_EQ(RunDriver("decide"), GetParam().need ? "need=1\n" : "need=0\n");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ServiceDecision,
    ::testing::Values(Decision{"NoClientOlderTarget", false, "500", "400", true},
                      Decision{"NoSourceFile", true, "", "5", true},
                      Decision{"NewerTarget", true, "399", "400", true},
                      Decision{"EqualBuilds", true, "400", "400", false},
                      Decision{"NeverDowngrades", true, "401", "400", false},
                      Decision{"TrailingLetter", true, "1203x", "1203", false},
                      Decision{"LeadingBlank", true, "\" 42\"", "42", false},
                      Decision{"LettersOnly", true, "abc", "1", true},
                      Decision{"FortyDigitSource", true, kFortyDigits, "2147483647", false},
                      Decision{"FortyDigitTarget", true, "2147483646", kFortyDigits, true},
                      Decision{"NegativeSourceNoTargetFile", true, "-1", "", true}),
    [](const auto& info) { return std::string(info.param.name); });

// ---- copying and launching ----

TEST_F(ServiceTest, CopyPathCopiesATree) {
    MakeApp(path("src"), "5", true);
    ASSERT_EQ(MacService().FSCopyPath(path("src").c_str(), path("dst").c_str()), 0);
    EXPECT_TRUE(SameTree(path("src"), path("dst")));
}

TEST_F(ServiceTest, PostUpgradeStartsTheClientInTheHomeFolder) {
    CaptureLog();
    const std::string marker = path("started"), client = app() + "/Contents/MacOS/skelda-backup-ui";
    Put(client, "#!/bin/sh\npwd > '" + marker + "~' && mv '" + marker + "~' '" + marker + "'\n");
    ASSERT_EQ(chmod(client.c_str(), 0755), 0);
    MacService().PostUpgrade();
    for (int i = 0; i < 500 && !Exists(marker); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(ReadFile(marker), home() + "\n") << "the client did not run";
    EXPECT_TRUE(LoggedMessages().empty());
}

TEST_F(ServiceTest, PostUpgradeWithoutApplicationLogsBothErrors) {
    CaptureLog();
    MacService().PostUpgrade();
    const std::string log = ReadFile(path("log"));
    const std::regex both(R"(\[ERROR\] .*: Cannot unregister bundle, .*/Skelda\.app\s*)"
                          R"(.*\[ERROR\] .*: Failed to launch Skelda UI)");
    EXPECT_TRUE(std::regex_search(log, both)) << log;
}

// ---- stopping the client (the timed cases are in the slow build of this file) ----

TEST_F(ServiceTest, ProcessAlreadyGoneReturnsAtOnceSilently) {
    const pid_t gone = fork();
    if (gone == 0)
        _exit(0);
    ASSERT_EQ(waitpid(gone, nullptr, 0), gone);
    EXPECT_LT(Stop("pid=" + std::to_string(gone) + "\n"), 0.5);
    EXPECT_TRUE(g_kills.empty());
    EXPECT_TRUE(LoggedMessages().empty());
}

// A pid file older than the process with its number (the client crashed or the machine
// restarted, and the number went to another program) names no client.
TEST_F(ServiceTest, ProcessStartedAfterThePidFileIsNeverSignalled) {
    ChildProcess unrelated(SIG_DFL);
    for (const time_t age : {time_t{3600}, time(nullptr)}) {  // an hour ago; before the boot
        EXPECT_LT(Stop("pid=" + std::to_string(unrelated.pid) + "\n", age), 0.5);
        EXPECT_TRUE(g_kills.empty());
        EXPECT_EQ(LoggedMessages(), Lines{"[NOTE] process " + std::to_string(unrelated.pid) +
                                          " started after '" + user() +
                                          "/ui.pid' was written: not the client"});
    }
    EXPECT_FALSE(unrelated.ended);
}

// Pid files naming no process: 0 and negative ids address process groups; 2^32 + INT32_MAX
// would wrap to a pid_t that no process has.
using NamedPidFile = std::pair<const char*, const char*>;
class ServiceNoSignal : public ServiceTest, public ::testing::WithParamInterface<NamedPidFile> {};

TEST_P(ServiceNoSignal, Row) {
    EXPECT_LT(Stop(GetParam().second), 0.5);
    EXPECT_TRUE(g_kills.empty()) << "signal " << g_kills[0].second << " to " << g_kills[0].first;
    EXPECT_TRUE(LoggedMessages().empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ServiceNoSignal,
    ::testing::Values(NamedPidFile{"Empty", ""}, NamedPidFile{"KeyLess", "port=80\n"},
                      NamedPidFile{"Zero", "pid=0\n"}, NamedPidFile{"MinusOne", "pid=-1\n"},
                      NamedPidFile{"Text", "pid=abc\n"}, NamedPidFile{"Wraps", "pid=6442450943\n"}),
    [](const auto& info) { return std::string(info.param.first); });

// ---- the upgrade transaction, run by the driver ----

class ServiceTransaction : public ServiceTest {
protected:
    void SetUp() override {
        ServiceTest::SetUp();
        MakeApp(path("new"), "200", true);
        MakeRootBundle("200");
        Put(package(), "");
        const std::string tar = "bsdtar -czf '" + package() + "' -C '" + path("new") + "' Contents";
        ASSERT_EQ(std::system(tar.c_str()), 0);
    }
    std::string BackupError(int n) const {
        return "[ERROR] failed to backup app from '" + app() + "' -> '" + backup(n) + "'";
    }
};

TEST_F(ServiceTransaction, FirstInstallationRemovesALeftoverBackupAndTheAgedFolder) {
    Put(backup(0) + "/junk/file", "left over");
    Put(user() + "/app/old", "aged");
    EXPECT_EQ(RunDriver("upgrade"), "need=1\nrc=0\n");
    EXPECT_TRUE(SameTree(path("new"), app()));
    EXPECT_FALSE(Exists(backup(0)) || Exists(user() + "/app"));
    EXPECT_EQ(DriverLog(), (Lines{
                               "[INFO] target_version = (, , 200, )",
                               "[INFO] source does not exist",
                               "[DEBUG] Source version: ('', '')",
                               "[DEBUG] Target version: ('200', '')",
                               "[DEBUG] source version = 0, target version = 200",
                               "[INFO] extract package: '" + package() + "' -> '" + app() + "'",
                               "[INFO] user installation is ready, removing backup app",
                               "[INFO] removing aged app folder " + user() + "/app"}));
}

// An old application with or without client, its ui.pid process, a non-empty leftover APP_tmp.
class ServiceReplace : public ServiceTransaction, public ::testing::WithParamInterface<bool> {};

TEST_P(ServiceReplace, ClientIsStoppedOnlyWhenInstalled) {
    MakeApp(app(), "100", GetParam());
    MakeApp(backup(0), "90", false);
    ChildProcess client(SIG_DFL);
    Put(user() + "/ui.pid", "pid=" + std::to_string(client.pid) + "\n");
    EXPECT_EQ(RunDriver("upgrade"), "need=1\nrc=0\n");
    EXPECT_EQ(client.ended, GetParam()) << "stopped only when the client is installed";
    EXPECT_TRUE(SameTree(path("new"), app()));
    EXPECT_FALSE(Exists(backup(0)) || Exists(backup(1)));
    EXPECT_EQ(DriverLog("ERROR"), Lines{BackupError(0)});
}

INSTANTIATE_TEST_SUITE_P(WithClient, ServiceReplace, ::testing::Bool(),
                         ::testing::PrintToStringParamName());

TEST_F(ServiceTransaction, AllTenBackupNamesBlockedLeavesEverythingUntouched) {
    MakeApp(app(), "100", true);
    Lines errors;
    for (int n = 0; n <= 9; ++n) {
        MakeApp(backup(n), "9", false);
        errors.push_back(BackupError(n));
    }
    errors.push_back(BackupError(9) + " at max retries, exiting");
    fs::copy(user(), path("before"), fs::copy_options::recursive);
    Put(user() + "/app/old", "aged");  // removed all the same
    EXPECT_EQ(RunDriver("upgrade"), "need=1\nrc=-1\n");
    EXPECT_EQ(DriverLog("ERROR"), errors);
    EXPECT_TRUE(SameTree(path("before"), user()));
}

#else  // SKELDA_TIMED_STOP

TEST_F(ServiceTest, ClientEndingOneAndAHalfSecondsAfterTermCostsTwoPauses) {
    ChildProcess child(EndSlowly);
    const pid_t p = child.pid;
    const double seconds = Stop("# written by the client\npid = " + std::to_string(p) + "  # up\n");
    EXPECT_GT(seconds, 1.9);
    EXPECT_LT(seconds, 2.9);
    EXPECT_EQ(g_kills, (Kills{{p, SIGTERM}, {p, 0}, {p, 0}, {p, 0}}));
    EXPECT_TRUE(LoggedMessages().empty());
}

TEST_F(ServiceTest, ClientIgnoringTermIsKilledAfterFiveSeconds) {
    ChildProcess child(SIG_IGN);
    const pid_t p = child.pid;
    const double seconds = Stop("pid=" + std::to_string(p) + "\n");
    EXPECT_GT(seconds, 4.9);
    EXPECT_LT(seconds, 6.0);
    EXPECT_EQ(g_kills, (Kills{{p, SIGTERM}, {p, 0}, {p, 0}, {p, 0}, {p, 0}, {p, 0}, {p, SIGKILL}}));
    EXPECT_TRUE(LoggedMessages().empty());
}

#endif

}  // namespace

// The safety net of the stop tests: kill() of the code under test is recorded, and 0 or a
// negative id (a process group, or every process) is never delivered.
extern "C" int kill(pid_t pid, int sig) noexcept {
    g_kills.push_back({pid, sig});
    return pid > 0 ? static_cast<int>(syscall(SYS_kill, pid, sig)) : 0;
}

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);  // the path getters need it
    StrTable::InitStrTable();          // the extractor reads the string table
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
