#pragma once
// End-to-end runs of the real skelda-launcher: a root installation made by the bundle tool
// in the test's temporary folder, HOME pointed at the test's own home folder, DEBUG on for
// every component through the bundle's level file. Each case checks the exit status, the
// log lines and the disk.
//
// The launcher starts the client detached. The fixture ends, at tear-down, every process
// whose environment names this test's own temporary HOME (the clients that its launchers
// started) and every process the test itself started: nothing else is ever signalled.

#include <sys/types.h>

#include <map>
#include <string>
#include <vector>

#include "temp_dir.h"

namespace skelda_test {

struct LauncherResult {
    int status = -1;  // exit status, or -1 when the launcher did not exit normally
    std::string out;
    std::string err;
    double seconds = 0;
};

class LauncherE2ETest : public TempDirTest {
protected:
    void TearDown() override;

    // A bundle DIR/<name>.app with the given version ("1.0.100") around `client` (a file
    // or an application folder; the sample client by default). Returns the bundle folder.
    std::string MakeBundle(const std::string& name, const std::string& version,
                           const std::string& client = SampleClient());
    static std::string SampleClient();
    static std::string ToolsDir();
    static std::string Executable(const std::string& bundle);

    // Starts the bundle's launcher with the extra environment ("NAME=value"); its output goes
    // to files. argv0 and cwd default to the absolute executable path and the test folder.
    pid_t StartLauncher(const std::string& bundle, const std::vector<std::string>& env = {},
                        const std::string& argv0 = "", const std::string& cwd = "");
    LauncherResult WaitLauncher(pid_t pid);
    LauncherResult RunLauncher(const std::string& bundle, const std::vector<std::string>& env = {},
                               const std::string& argv0 = "", const std::string& cwd = "");

    // Runs a command to its end (the test's child) and returns its exit status.
    int RunCommand(const std::vector<std::string>& argv, const std::vector<std::string>& env = {},
                   std::string* out = nullptr);

    // Starts the sample client as the test's own child, as if it were the running client,
    // and waits until it has written the pid file.
    pid_t StartOwnClient(bool ignore_term);
    // Reaps the test's own client; returns the signal that ended it (0 if it exited).
    int ReapOwnClient(pid_t pid);

    // The pid that the running client recorded, once it differs from `not_this` (waits up to
    // 10 s for a client that the launcher started). 0 when none appeared.
    pid_t WaitClientPid(pid_t not_this = 0);
    // Ends the client recorded in the pid file when it belongs to this test (see above).
    void StopLaunchedClient();

    // Installs the given build from a new bundle DIR/<name>.app and ends the client that run
    // started, leaving no pid file (as after a logout). Returns the bundle folder.
    std::string InstallBuild(const std::string& name, const std::string& version,
                             const std::string& client = SampleClient());

    std::string user() const { return home() + "/.SkeldaBackup"; }
    std::string app() const { return user() + "/Skelda.app"; }
    std::string InstalledBuild() const;  // build_version of APP's version file, or ""

    // Log lines without time stamp and source position: "[LEVEL] message".
    std::vector<std::string> LogLines() const;
    int CountLog(const std::string& line) const;
    // Waits up to 20 s until the log holds `line` at least `count` times.
    bool WaitForLog(const std::string& line, int count = 1) const;
    bool HasLog(const std::string& line) const { return CountLog(line) > 0; }
    std::string LogText() const;  // the raw log file, for failure messages

private:
    std::vector<pid_t> children_;
    std::map<pid_t, std::string> launcher_tags_;  // names of each launcher's output files
};

}  // namespace skelda_test
