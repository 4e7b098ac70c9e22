// One launcher per user and per executable path. The first launcher is held busy by an
// upgrade that has to wait for a client ignoring SIGTERM (about 5 s), so that the others
// start while it runs.

#include <gtest/gtest.h>

#include <unistd.h>
#include <csignal>

#include "e2e_fixture.h"

namespace skelda_test {
namespace {

const char kRefused[] = "[DEBUG] app has already launched, return";
const char kRunning[] = "[DEBUG] running";
const char kStopping[] = "[DEBUG] local appdata exist";

class SingleInstanceTest : public LauncherE2ETest {
protected:
    void SetUp() override {
        LauncherE2ETest::SetUp();
        InstallBuild("Old", "1.0.100");
        own_client = StartOwnClient(/*ignore_term=*/true);
        ASSERT_GT(own_client, 0);
        upgrade = MakeBundle("New", "1.0.200");
        ASSERT_FALSE(HasFailure());
    }

    // Starts the upgrade and returns once it is busy stopping the client.
    pid_t StartBusyHolder() {
        const pid_t holder = StartLauncher(upgrade);
        EXPECT_TRUE(WaitForLog(kStopping)) << LogText();
        return holder;
    }

    pid_t own_client = -1;
    std::string upgrade;
};

TEST_F(SingleInstanceTest, SecondInstanceIsRefusedWhileTheFirstRuns) {
    const pid_t holder = StartBusyHolder();

    const LauncherResult second = RunLauncher(upgrade);
    EXPECT_EQ(second.status, 0);
    EXPECT_EQ(second.out, "lib path = '" + upgrade + "/Contents/Frameworks/plugins'\n");
    EXPECT_LT(second.seconds, 4.0) << "the refused instance waited for something";
    EXPECT_EQ(CountLog(kRefused), 1) << LogText();
    EXPECT_NE(LogText().find(std::string("[DEBUG] main.cpp(")), std::string::npos);

    EXPECT_EQ(WaitLauncher(holder).status, 0);
    EXPECT_EQ(CountLog(kRunning), 2) << "the install run and the holder only";
    EXPECT_EQ(ReapOwnClient(own_client), SIGKILL);
    EXPECT_EQ(InstalledBuild(), "200");
}

TEST_F(SingleInstanceTest, TwentyStartedAtOnceGiveExactlyOneRun) {
    std::vector<pid_t> launchers;
    for (int i = 0; i < 20; ++i)
        launchers.push_back(StartLauncher(upgrade));
    for (pid_t pid : launchers)
        EXPECT_EQ(WaitLauncher(pid).status, 0);

    EXPECT_EQ(CountLog(kRunning), 2) << "one run besides the install run\n" << LogText();
    EXPECT_EQ(CountLog(kRefused), 19);
    EXPECT_EQ(ReapOwnClient(own_client), SIGKILL);
    EXPECT_EQ(InstalledBuild(), "200");
}

TEST_F(SingleInstanceTest, AKilledHolderLeavesNoStaleLock) {
    const pid_t holder = StartBusyHolder();
    ASSERT_EQ(kill(holder, SIGKILL), 0);
    EXPECT_EQ(WaitLauncher(holder).status, -1);
    kill(own_client, SIGKILL);
    ReapOwnClient(own_client);
    unlink((user() + "/ui.pid").c_str());

    const LauncherResult next = RunLauncher(upgrade);

    EXPECT_EQ(next.status, 0);
    EXPECT_EQ(CountLog(kRefused), 0) << LogText();
    EXPECT_EQ(CountLog(kRunning), 3);
    EXPECT_EQ(InstalledBuild(), "200");
}

TEST_F(SingleInstanceTest, ACopyAtAnotherPathIsNotCounted) {
    const pid_t holder = StartBusyHolder();

    // Old.app holds the installed build: it runs at once, without an upgrade.
    const LauncherResult other = RunLauncher(path("Old.app"));
    EXPECT_EQ(other.status, 0);
    EXPECT_EQ(CountLog(kRefused), 0) << LogText();
    EXPECT_EQ(CountLog("[DEBUG] no need to upgrade"), 1);
    EXPECT_NE(WaitClientPid(own_client), 0);
    StopLaunchedClient();

    EXPECT_EQ(WaitLauncher(holder).status, 0);
    EXPECT_EQ(CountLog(kRunning), 3);
    EXPECT_EQ(ReapOwnClient(own_client), SIGKILL);
}

}  // namespace
}  // namespace skelda_test
