#include "e2e_fixture.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>
#include <thread>

extern char** environ;

namespace skelda_test {
namespace {

using Clock = std::chrono::steady_clock;

// A path the build compiled in, unless the environment names another one.
std::string PathSetting(const char* env_name, const char* built_in) {
    const char* v = std::getenv(env_name);
    return v && *v ? v : built_in;
}

// The current environment with `extra` entries added or replacing those of the same name.
std::vector<std::string> MergedEnv(const std::vector<std::string>& extra) {
    std::map<std::string, std::string> vars;
    for (char** e = environ; *e; ++e) {
        const std::string kv = *e;
        vars[kv.substr(0, kv.find('='))] = kv;
    }
    for (const std::string& kv : extra)
        vars[kv.substr(0, kv.find('='))] = kv;
    std::vector<std::string> out;
    for (auto& [name, kv] : vars)
        out.push_back(kv);
    return out;
}

std::vector<char*> CStrings(std::vector<std::string>& v) {
    std::vector<char*> out;
    for (std::string& s : v)
        out.push_back(s.data());
    out.push_back(nullptr);
    return out;
}

// posix_spawnp (PATH is searched) with stdout and stderr sent to files (or left alone).
pid_t Spawn(std::vector<std::string> argv, const std::vector<std::string>& env_extra,
            const std::string& out_file, const std::string& err_file, const std::string& cwd) {
    std::vector<std::string> env = MergedEnv(env_extra);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (!out_file.empty())
        posix_spawn_file_actions_addopen(&actions, 1, out_file.c_str(),
                                         O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (!err_file.empty())
        posix_spawn_file_actions_addopen(&actions, 2, err_file.c_str(),
                                         O_WRONLY | O_CREAT | O_TRUNC, 0644);
    std::string program = argv[0];
    if (!cwd.empty()) {
        // posix_spawn has no portable chdir action: go through the shell.
        argv.insert(argv.begin(), {"/bin/sh", "-c", "cd \"$0\" && exec \"$@\"", cwd});
        program = "/bin/sh";
    }
    std::vector<char*> cargv = CStrings(argv);
    std::vector<char*> cenv = CStrings(env);
    pid_t pid = -1;
    const int rc =
        posix_spawnp(&pid, program.c_str(), &actions, nullptr, cargv.data(), cenv.data());
    posix_spawn_file_actions_destroy(&actions);
    EXPECT_EQ(rc, 0) << "cannot start " << program << ": " << strerror(rc);
    return rc == 0 ? pid : -1;
}

// waitpid with a limit, so that a hung launcher fails the test instead of blocking it.
bool WaitFor(pid_t pid, int* status, std::chrono::seconds limit) {
    const auto end = Clock::now() + limit;
    while (Clock::now() < end) {
        const pid_t r = waitpid(pid, status, WNOHANG);
        if (r == pid)
            return true;
        if (r < 0)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

// True when the process runs with exactly this HOME in its environment.
bool HasHome(pid_t pid, const std::string& home) {
    const std::string env = ReadFile("/proc/" + std::to_string(pid) + "/environ");
    std::istringstream in(env);
    std::string entry;
    while (std::getline(in, entry, '\0')) {
        if (entry == "HOME=" + home)
            return true;
    }
    return false;
}

pid_t PidInFile(const std::string& file) {
    const std::string text = ReadFile(file);
    if (text.rfind("pid=", 0) != 0)
        return 0;
    return static_cast<pid_t>(std::atol(text.c_str() + 4));
}

}  // namespace

void LauncherE2ETest::TearDown() {
    // Clients start detached and may not have written the pid file yet: look for every
    // process that runs with this test's (unique, temporary) HOME instead.
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") != std::string::npos)
            continue;
        const pid_t pid = static_cast<pid_t>(std::stol(name));
        if (pid > 1 && pid != getpid() && HasHome(pid, home()))
            kill(pid, SIGKILL);
    }
    for (pid_t pid : children_) {
        int status;
        if (waitpid(pid, &status, WNOHANG) == 0) {
            kill(pid, SIGKILL);
            waitpid(pid, &status, 0);
        }
    }
    TempDirTest::TearDown();
}

std::string LauncherE2ETest::ToolsDir() {
    return PathSetting("SKELDA_TOOLS_DIR", SKELDA_TOOLS_SOURCE_DIR);
}

std::string LauncherE2ETest::SampleClient() {
    return ToolsDir() + "/sample-client/skelda-backup-ui";
}

std::string LauncherE2ETest::Executable(const std::string& bundle) {
    return bundle + "/Contents/MacOS/skelda-launcher";
}

std::string LauncherE2ETest::MakeBundle(const std::string& name, const std::string& version,
                                        const std::string& client) {
    const std::string bundle = path(name + ".app");
    const std::string launcher = PathSetting("SKELDA_LAUNCHER", SKELDA_LAUNCHER_FILE);
    std::vector<std::string> argv = {ToolsDir() + "/make-bundle.sh",
                                     "--launcher",
                                     launcher,
                                     "--client",
                                     client,
                                     "--version",
                                     version,
                                     "--out",
                                     bundle,
                                     "--debug",
                                     "all"};
    std::string out;
    EXPECT_EQ(RunCommand(argv, {}, &out), 0) << "make-bundle.sh failed:\n" << out;
    return bundle;
}

int LauncherE2ETest::RunCommand(const std::vector<std::string>& argv,
                                const std::vector<std::string>& env, std::string* out) {
    static int serial = 0;
    const std::string out_file = path("command-" + std::to_string(++serial) + ".txt");
    const pid_t pid = Spawn(argv, env, out_file, out_file, "");
    int status = 0;
    if (pid < 0 || !WaitFor(pid, &status, std::chrono::seconds(120)))
        return -1;
    if (out)
        *out = ReadFile(out_file);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

pid_t LauncherE2ETest::StartLauncher(const std::string& bundle, const std::vector<std::string>& env,
                                     const std::string& argv0, const std::string& cwd) {
    static int serial = 0;
    const std::string tag = "launcher-" + std::to_string(++serial);
    std::vector<std::string> argv = {argv0.empty() ? Executable(bundle) : argv0};
    // Headless by default; the runtime folder (which holds the single-instance lock) is the
    // test's own, so that nothing is left behind in /tmp.
    const std::string runtime = path("runtime");
    mkdir(runtime.c_str(), 0700);
    std::vector<std::string> full_env = {"QT_QPA_PLATFORM=offscreen", "XDG_RUNTIME_DIR=" + runtime};
    full_env.insert(full_env.end(), env.begin(), env.end());
    const pid_t pid =
        Spawn(argv, full_env, path(tag + ".out"), path(tag + ".err"), cwd.empty() ? dir() : cwd);
    if (pid > 0) {
        children_.push_back(pid);
        launcher_tags_[pid] = tag;
    }
    return pid;
}

LauncherResult LauncherE2ETest::WaitLauncher(pid_t pid) {
    LauncherResult result;
    const auto start = Clock::now();
    int status = 0;
    if (pid > 0 && WaitFor(pid, &status, std::chrono::seconds(120)) && WIFEXITED(status))
        result.status = WEXITSTATUS(status);
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    const std::string& tag = launcher_tags_[pid];
    result.out = ReadFile(path(tag + ".out"));
    result.err = ReadFile(path(tag + ".err"));
    return result;
}

LauncherResult LauncherE2ETest::RunLauncher(const std::string& bundle,
                                            const std::vector<std::string>& env,
                                            const std::string& argv0, const std::string& cwd) {
    const auto start = Clock::now();
    LauncherResult result = WaitLauncher(StartLauncher(bundle, env, argv0, cwd));
    result.seconds = std::chrono::duration<double>(Clock::now() - start).count();
    return result;
}

pid_t LauncherE2ETest::StartOwnClient(bool ignore_term) {
    std::vector<std::string> env;
    if (ignore_term)
        env.push_back("SKELDA_SAMPLE_CLIENT_IGNORE_TERM=1");
    const pid_t pid = Spawn({SampleClient()}, env, "", "", "");
    if (pid <= 0)
        return -1;
    children_.push_back(pid);
    const auto end = Clock::now() + std::chrono::seconds(10);
    while (PidInFile(user() + "/ui.pid") != pid && Clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(PidInFile(user() + "/ui.pid"), pid) << "the client did not record its pid";
    return pid;
}

int LauncherE2ETest::ReapOwnClient(pid_t pid) {
    int status = 0;
    if (!WaitFor(pid, &status, std::chrono::seconds(30)))
        return -1;
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

pid_t LauncherE2ETest::WaitClientPid(pid_t not_this) {
    const auto end = Clock::now() + std::chrono::seconds(10);
    while (Clock::now() < end) {
        const pid_t pid = PidInFile(user() + "/ui.pid");
        if (pid > 1 && pid != not_this && HasHome(pid, home()))
            return pid;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return 0;
}

void LauncherE2ETest::StopLaunchedClient() {
    const pid_t pid = PidInFile(user() + "/ui.pid");
    if (pid > 1 && HasHome(pid, home()))
        kill(pid, SIGKILL);
}

std::string LauncherE2ETest::InstallBuild(const std::string& name, const std::string& version,
                                          const std::string& client) {
    const std::string bundle = MakeBundle(name, version, client);
    const LauncherResult r = RunLauncher(bundle);
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(InstalledBuild(), version.substr(version.rfind('.') + 1));
    EXPECT_NE(WaitClientPid(), 0) << "the installed client did not start";
    StopLaunchedClient();
    unlink((user() + "/ui.pid").c_str());
    return bundle;
}

std::string LauncherE2ETest::InstalledBuild() const {
    static const std::regex build_line(R"(^build_version=(.*)$)");
    std::istringstream in(ReadFile(app() + "/Contents/Resources/INFO"));
    std::string line;
    std::smatch m;
    while (std::getline(in, line)) {
        if (std::regex_match(line, m, build_line))
            return m[1];
    }
    return "";
}

std::string LauncherE2ETest::LogText() const {
    return ReadFile(user() + "/log/launcher.log");
}

std::vector<std::string> LauncherE2ETest::LogLines() const {
    // "<time stamp> [LEVEL] source.cpp(123): message"; the time stamp follows the locale.
    static const std::regex entry(R"(^[^\[]*(\[[A-Z]+\]) \S+\(\d+\): (.*)$)");
    std::vector<std::string> lines;
    std::istringstream in(LogText());
    std::string line;
    std::smatch m;
    while (std::getline(in, line)) {
        if (std::regex_match(line, m, entry))
            lines.push_back(m[1].str() + " " + m[2].str());
    }
    return lines;
}

int LauncherE2ETest::CountLog(const std::string& line) const {
    int n = 0;
    for (const std::string& l : LogLines())
        n += l == line;
    return n;
}

bool LauncherE2ETest::WaitForLog(const std::string& line, int count) const {
    const auto end = Clock::now() + std::chrono::seconds(20);
    while (Clock::now() < end) {
        if (CountLog(line) >= count)
            return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return false;
}

}  // namespace skelda_test
