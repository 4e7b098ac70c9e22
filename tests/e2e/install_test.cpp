// Runs of the real launcher that install, keep, repair or refuse to replace the per-user
// application: first installation, nothing to do, a damaged package, every backup name
// taken, and a log folder that cannot be created.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include "e2e_fixture.h"

namespace skelda_test {
namespace {

using InstallTest = LauncherE2ETest;

// `lines` holds `expected` as a subsequence, in this order.
void ExpectInOrder(const std::vector<std::string>& lines, const std::vector<std::string>& expected,
                   const std::string& log) {
    size_t at = 0;
    for (const std::string& line : lines) {
        if (at < expected.size() && line == expected[at])
            ++at;
    }
    EXPECT_EQ(at, expected.size())
        << "missing or out of order: " << (at < expected.size() ? expected[at] : "") << "\nlog:\n"
        << log;
}

// Build 100 installed from the bundle Old.app, its client ended.
class InstalledTest : public InstallTest {
protected:
    void SetUp() override {
        InstallTest::SetUp();
        InstallBuild("Old", "1.0.100", Client());
        ASSERT_FALSE(HasFailure());
    }

    // The sample client plus a payload big enough for a cut package to fail mid-way.
    std::string Client() {
        const std::string client = path("client");
        MakeDirs(client + "/Contents/MacOS");
        MakeDirs(client + "/Contents/Resources");
        WriteFile(client + "/Contents/MacOS/skelda-backup-ui", ReadFile(SampleClient()));
        chmod((client + "/Contents/MacOS/skelda-backup-ui").c_str(), 0755);
        std::string payload(256 * 1024, '\0');
        unsigned x = 12345;
        for (char& c : payload) {
            x = x * 1103515245u + 12345u;  // incompressible enough to keep the archive big
            c = static_cast<char>(x >> 24);
        }
        WriteFile(client + "/Contents/Resources/payload.bin", payload);
        return client;
    }
};

TEST_F(InstallTest, FirstInstallationExtractsThePackageAndStartsTheClient) {
    const std::string bundle = MakeBundle("Skelda Backup", "1.0.100");  // a blank in the path
    const LauncherResult r = RunLauncher(bundle);

    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "lib path = '" + bundle + "/Contents/Frameworks/plugins'\n");
    EXPECT_EQ(InstalledBuild(), "100");
    EXPECT_EQ(access((app() + "/Contents/MacOS/skelda-backup-ui").c_str(), X_OK), 0);
    EXPECT_FALSE(Exists(app() + "_tmp"));
    ExpectInOrder(LogLines(),
                  {"[DEBUG] running", "[INFO] source does not exist",
                   "[INFO] extract package: '" + bundle +
                       "/Contents/Resources/package/skelda.vpk' -> '" + app() + "'",
                   "[INFO] user installation is ready, removing backup app",
                   "[INFO] removing aged app folder " + user() + "/app", "[DEBUG] done"},
                  LogText());
    EXPECT_EQ(CountLog("[ERROR] Failed to upgrade package"), 0);
    EXPECT_NE(WaitClientPid(), 0) << "the per-user client was not started";
}

TEST_F(InstallTest, TheClientStartedByARunDoesNotHoldTheInstanceLock) {
    const std::string bundle = MakeBundle("Skelda", "1.0.100");
    ASSERT_EQ(RunLauncher(bundle).status, 0);
    const pid_t first_client = WaitClientPid();
    ASSERT_NE(first_client, 0);

    // The first client still runs: the next launch must not take it for a launcher.
    const LauncherResult r = RunLauncher(bundle);
    EXPECT_EQ(r.status, 0);
    EXPECT_EQ(CountLog("[DEBUG] app has already launched, return"), 0) << LogText();
    EXPECT_EQ(CountLog("[DEBUG] no need to upgrade"), 1);
    StopLaunchedClient();
}

TEST_F(InstalledTest, CurrentInstallationIsLaunchedWithoutUpgrade) {
    MakeDirs(user() + "/app/old");  // the aged folder goes on every run
    const LauncherResult r =
        RunLauncher(path("Old.app"), {}, "Old.app/Contents/MacOS/skelda-launcher");

    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(r.out, "lib path = 'Old.app/Contents/Frameworks/plugins'\n")
        << "a relative executable path gives a relative plug-in folder";
    EXPECT_EQ(CountLog("[DEBUG] no need to upgrade"), 1) << LogText();
    EXPECT_EQ(CountLog("[DEBUG] running"), 2);
    EXPECT_EQ(CountLog("[INFO] user installation is ready, removing backup app"), 1)
        << "only the installation extracted anything";
    EXPECT_FALSE(Exists(user() + "/app"));
    EXPECT_EQ(InstalledBuild(), "100");
    EXPECT_NE(WaitClientPid(), 0);
}

TEST_F(InstalledTest, DamagedPackageIsRolledBackAndTheOldClientStarted) {
    const std::string bundle = MakeBundle("New", "1.0.200", Client());
    const std::string package = bundle + "/Contents/Resources/package/skelda.vpk";
    struct stat st;
    ASSERT_EQ(stat(package.c_str(), &st), 0);
    ASSERT_EQ(truncate(package.c_str(), st.st_size / 2), 0);

    const LauncherResult r = RunLauncher(bundle);

    EXPECT_EQ(r.status, 0) << "a failed upgrade does not change the exit status";
    ExpectInOrder(LogLines(),
                  {"[ERROR] Failed to extract package, rollback to old installation",
                   "[ERROR] Failed to upgrade package", "[DEBUG] done"},
                  LogText());
    EXPECT_EQ(InstalledBuild(), "100") << "the old application is back";
    EXPECT_TRUE(Exists(app() + "/Contents/Resources/payload.bin"));
    EXPECT_FALSE(Exists(app() + "_tmp"));
    EXPECT_NE(WaitClientPid(), 0) << "the old client is started after the rollback";
}

TEST_F(InstalledTest, AllTenBackupNamesBlockedLeaveTheOldApplication) {
    std::vector<std::string> expected;
    for (int n = 0; n <= 9; ++n) {
        const std::string backup = app() + "_tmp" + (n ? std::to_string(n) : "");
        MakeDirs(backup + "/leftover");
        expected.push_back("[ERROR] failed to backup app from '" + app() + "' -> '" + backup + "'");
    }
    expected.push_back("[ERROR] failed to backup app from '" + app() + "' -> '" + app() +
                       "_tmp9' at max retries, exiting");
    expected.push_back("[ERROR] Failed to upgrade package");

    const LauncherResult r = RunLauncher(MakeBundle("New", "1.0.200", Client()));

    EXPECT_EQ(r.status, 0);
    ExpectInOrder(LogLines(), expected, LogText());
    EXPECT_EQ(InstalledBuild(), "100");
    EXPECT_TRUE(Exists(app() + "_tmp5/leftover")) << "leftovers are not touched";
    EXPECT_NE(WaitClientPid(), 0);
}

TEST_F(InstallTest, LogFolderInTheWayStillUpgradesAndLaunches) {
    MakeDirs(user());
    WriteFile(user() + "/log", "a file where the log folder should be");

    const LauncherResult r = RunLauncher(MakeBundle("Skelda", "1.0.100"));

    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(InstalledBuild(), "100");
    EXPECT_NE(WaitClientPid(), 0);
    EXPECT_EQ(ReadFile(user() + "/log"), "a file where the log folder should be");
    // The logger keeps its start-up state: WARNING and worse only, on standard error.
    EXPECT_EQ(r.err.find("[DEBUG]"), std::string::npos) << r.err;
    EXPECT_EQ(r.err.find("[INFO]"), std::string::npos) << r.err;
}

}  // namespace
}  // namespace skelda_test
