// The real launcher in bundles made by the bundle tool (DEBUG on for every component), with
// HOME in the test's folder. Only the test's children and the processes that run with its HOME
// (the clients that launchers started) are ever signalled. E2E_SLOW selects the upgrades held
// about 5 s by a client that ignores SIGTERM, and the dialog's language on a virtual screen.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <regex>
#include <thread>

#include "temp_dir.h"

namespace skelda_test {

class E2ETest : public TempDirTest {
protected:
    void SetUp() override {
        TempDirTest::SetUp();
        setenv("XDG_RUNTIME_DIR", dir().c_str(), 1);  // the single-instance lock goes there
    }
    void TearDown() override {
        StopClients();
        for (pid_t pid : children_)
            if (waitpid(pid, nullptr, WNOHANG) == 0 && kill(pid, SIGKILL) == 0)
                waitpid(pid, nullptr, 0);
        TempDirTest::TearDown();
    }
    // Ends every process that runs with this HOME and removes the pid file (as at logout).
    void StopClients() {
        const std::string mine = std::string("\0HOME=", 6) + home() + '\0';
        for (const auto& e : std::filesystem::directory_iterator("/proc")) {
            const pid_t pid = std::atoi(e.path().filename().c_str());
            if (pid > 1 && pid != getpid() &&
                ('\0' + ReadFile(e.path().string() + "/environ")).find(mine) != std::string::npos)
                kill(pid, SIGKILL);
        }
        unlink((user() + "/ui.pid").c_str());
    }
    static int Sh(const std::string& command) { return std::system(command.c_str()); }
    static std::string Tools() { return getenv("SKELDA_TOOLS_DIR"); }
    std::string MakeBundle(const std::string& name, const std::string& version) {
        EXPECT_EQ(
            Sh(Tools() + "/make-bundle.sh --debug all --launcher '" + getenv("SKELDA_LAUNCHER") +
               "' --client " + Tools() + "/sample-client/skelda-backup-ui --version " + version +
               " --out '" + path(name + ".app") + "' >/dev/null"),
            0);
        return path(name + ".app");
    }
    // The child's standard output goes to path("out<pid>").
    pid_t Start(const std::string& exe, bool stubborn_client = false) {
        const pid_t pid = fork();
        if (pid == 0) {
            if (stubborn_client)
                setenv("SKELDA_SAMPLE_CLIENT_IGNORE_TERM", "1", 1);
            dup2(open(path("out" + std::to_string(getpid())).c_str(), O_WRONLY | O_CREAT, 0644), 1);
            execl(exe.c_str(), exe.c_str(), nullptr);
            _exit(127);
        }
        children_.push_back(pid);
        return pid;
    }
    pid_t StartLauncher(const std::string& bundle) {
        return Start(bundle + "/Contents/MacOS/skelda-launcher");
    }
    // Exit status (minus the signal, -1 after 120 s), and in `out` what it printed.
    int Wait(pid_t pid, std::string* out = nullptr) {
        int status = 0, i = 0;
        while (waitpid(pid, &status, WNOHANG) == 0 && ++i < 12000)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        if (out)
            *out = ReadFile(path("out" + std::to_string(pid)));
        return i == 12000 ? -1 : WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    int Run(const std::string& bundle, std::string* out = nullptr) {
        return Wait(StartLauncher(bundle), out);
    }
    // The sample client, as if it were running already, ignoring SIGTERM.
    pid_t StartStubbornClient() {
        const pid_t pid = Start(Tools() + "/sample-client/skelda-backup-ui", true);
        EXPECT_EQ(WaitClient(0), pid);
        return pid;
    }
    // The live pid that the client recorded, once it is not `old` (0 after 10 s).
    pid_t WaitClient(pid_t old) {
        for (int i = 0; i < 500; ++i) {
            const std::string text = ReadFile(user() + "/ui.pid");
            const pid_t pid = text.rfind("pid=", 0) == 0 ? std::atoi(text.c_str() + 4) : 0;
            if (pid > 1 && pid != old && kill(pid, 0) == 0)
                return pid;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        return 0;
    }
    void InstallOld() {  // build 100 from Old.app, its client ended
        ASSERT_EQ(Run(MakeBundle("Old", "1.0.100")), 0);
        ASSERT_NE(WaitClient(0), 0);
        StopClients();
    }
    std::string user() const { return home() + "/.SkeldaBackup"; }
    std::string app() const { return user() + "/Skelda.app"; }
    bool Installed(const std::string& build) const {
        return ReadFile(app() + "/Contents/Resources/INFO").find("build_version=" + build + "\n") !=
               std::string::npos;
    }
    // The log as "\n[LEVEL] message\n" lines, without time stamps and source positions.
    std::string Log() const {
        static const std::regex prefix(R"([^\[\n]*(\[[A-Z]+\]) \S+\(\d+\): )");
        return "\n" + std::regex_replace(ReadFile(user() + "/log/launcher.log"), prefix, "$1 ");
    }
    // How often `lines` appear in the log, in this order.
    int Count(const std::vector<std::string>& lines) const {
        const std::string log = Log();
        int n = 0;
        for (size_t at = 0, i = 0; (at = log.find('\n' + lines[i] + '\n', at)) != std::string::npos;
             at += lines[i].size() + 1, i = (i + 1) % lines.size())
            n += i + 1 == lines.size();
        return n;
    }

private:
    std::vector<pid_t> children_;
};

namespace {

#ifndef E2E_SLOW
TEST_F(E2ETest, FirstInstallationThenNoUpgradeWhileTheClientRuns) {
    const std::string bundle = MakeBundle("Skelda Backup", "1.0.100");  // a blank in the path
    std::string out;
    EXPECT_EQ(Run(bundle, &out), 0);
    EXPECT_EQ(out, "lib path = '" + bundle + "/Contents/Frameworks/plugins'\n");
    EXPECT_TRUE(Installed("100"));
    EXPECT_EQ(Count({"[DEBUG] running", "[INFO] source does not exist",
                     "[INFO] extract package: '" + bundle +
                         "/Contents/Resources/package/skelda.vpk' -> '" + app() + "'",
                     "[INFO] user installation is ready, removing backup app",
                     "[INFO] removing aged app folder " + user() + "/app", "[DEBUG] done"}),
              1)
        << Log();
    const pid_t first = WaitClient(0);
    ASSERT_NE(first, 0) << "the client was not started";

    MakeDirs(user() + "/app/old");  // the aged folder goes on every run
    EXPECT_EQ(Run(bundle), 0);      // the running client does not hold the instance lock
    EXPECT_EQ(Count({"[DEBUG] no need to upgrade"}), 1) << Log();
    EXPECT_EQ(Count({"[INFO] user installation is ready, removing backup app"}), 1);
    EXPECT_FALSE(Exists(user() + "/app"));
    EXPECT_NE(WaitClient(first), 0) << "the client was not started again";
}

TEST_F(E2ETest, LogFolderInTheWayStillUpgradesAndLaunches) {
    MakeDirs(user());
    WriteFile(user() + "/log", "in the way");
    EXPECT_EQ(Run(MakeBundle("Skelda", "1.0.100")), 0);
    EXPECT_TRUE(Installed("100"));
    EXPECT_NE(WaitClient(0), 0);
    EXPECT_EQ(ReadFile(user() + "/log"), "in the way");
}

#else
const char kRefused[] = "[DEBUG] app has already launched, return";
double Since(std::chrono::steady_clock::time_point t) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - t).count();
}

class BusyTest : public E2ETest {
protected:
    void SetUp() override {
        E2ETest::SetUp();
        InstallOld();
        own = StartStubbornClient();
        upgrade = MakeBundle("New", "1.0.200");
    }
    pid_t StartHolder() {  // returns once the upgrade is busy stopping the client
        const pid_t pid = StartLauncher(upgrade);
        for (int i = 0; i < 1000 && !Count({"[DEBUG] local appdata exist"}); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        EXPECT_EQ(Count({"[DEBUG] local appdata exist"}), 1) << Log();
        return pid;
    }
    pid_t own = 0;
    std::string upgrade;
};

TEST_F(BusyTest, UpgradeKillsTheStubbornClientAndRefusesASecondInstance) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t holder = StartHolder();
    std::string out;
    EXPECT_EQ(Run(upgrade, &out), 0);
    EXPECT_EQ(out, "lib path = '" + upgrade + "/Contents/Frameworks/plugins'\n");
    EXPECT_EQ(Count({kRefused}), 1) << Log();

    EXPECT_EQ(Wait(holder), 0);
    EXPECT_GE(Since(start), 4.5) << "SIGKILL came before the five probes";
    EXPECT_EQ(Wait(own), -SIGKILL);
    EXPECT_EQ(Count({"[DEBUG] running"}), 2) << "the installation and the holder only";
    EXPECT_TRUE(Installed("200"));
    EXPECT_FALSE(Exists(app() + "_tmp")) << "the backup is removed after success";
    EXPECT_NE(WaitClient(own), 0) << "the new client was not started";
}

TEST_F(BusyTest, TwentyStartedAtOnceGiveExactlyOneRun) {
    std::vector<pid_t> launchers;
    for (int i = 0; i < 20; ++i)
        launchers.push_back(StartLauncher(upgrade));
    for (pid_t pid : launchers)
        EXPECT_EQ(Wait(pid), 0);
    EXPECT_EQ(Count({"[DEBUG] running"}), 2) << "one run besides the installation" << Log();
    EXPECT_EQ(Count({kRefused}), 19);
}

TEST_F(BusyTest, AKilledHolderLeavesNoStaleLock) {
    ASSERT_EQ(kill(StartHolder(), SIGKILL), 0);
    EXPECT_EQ(Run(upgrade), 0);
    EXPECT_EQ(Count({kRefused}), 0) << Log();
    EXPECT_EQ(Count({"[DEBUG] running"}), 3);
}

// Pictures of the dialog differ from English in French and Japanese and equal it in Finnish,
// which has no translation.
TEST_F(E2ETest, FrenchAndJapaneseShowTheirOwnTranslations) {
    if (Sh("command -v xvfb-run >/dev/null && command -v import >/dev/null") != 0)
        GTEST_SKIP() << "needs xvfb-run and ImageMagick";
    InstallOld();
    const std::string exe = MakeBundle("New", "1.0.200") + "/Contents/MacOS/skelda-launcher";
    std::map<std::string, std::string> shot;
    for (const std::string lang : {"C", "fi_FI", "fr_FR", "ja_JP"}) {
        WriteFile(app() + "/Contents/Resources/INFO", "[Version]\nbuild_version=100\n");
        const pid_t own = StartStubbornClient();  // holds the dialog up
        const std::string capture = "LC_ALL=" + lang + ".UTF-8 xvfb-run -a -s '-screen 0 " +
                                    "800x600x24' " + Tools() + "/capture-dialog.sh " + exe +
                                    " " + path(lang) + ".ppm >/dev/null 2>&1";
        // xvfb-run -a can lose the race for a display number to a server still going down.
        EXPECT_TRUE(Sh(capture) == 0 || Sh(capture) == 0) << lang;
        EXPECT_EQ(Wait(own), -SIGKILL);
        StopClients();
        shot[lang] = ReadFile(path(lang) + ".ppm");
    }
    EXPECT_EQ(shot["C"], shot["fi_FI"]);
    EXPECT_NE(shot["C"], shot["fr_FR"]);
    EXPECT_NE(shot["C"], shot["ja_JP"]);
    EXPECT_NE(shot["fr_FR"], shot["ja_JP"]);
}
#endif

}  // namespace
}  // namespace skelda_test
