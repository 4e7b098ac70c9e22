// An upgrade while the client runs and does not react to SIGTERM: the launcher waits its
// fixed five seconds, kills the client, replaces the application and starts the new one.

#include <gtest/gtest.h>

#include <csignal>

#include "e2e_fixture.h"

namespace skelda_test {
namespace {

using StopClientTest = LauncherE2ETest;

TEST_F(StopClientTest, UpgradeKillsAClientThatIgnoresTermAndStartsTheNewOne) {
    InstallBuild("Old", "1.0.100");
    const pid_t own = StartOwnClient(/*ignore_term=*/true);
    ASSERT_GT(own, 0);

    const LauncherResult r = RunLauncher(MakeBundle("New", "1.0.200"));

    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_EQ(ReapOwnClient(own), SIGKILL) << "the client outlived the stop schedule";
    EXPECT_GE(r.seconds, 4.5) << "SIGKILL came before the five probes";
    EXPECT_EQ(CountLog("[DEBUG] local appdata exist"), 1) << LogText();
    EXPECT_EQ(InstalledBuild(), "200");
    EXPECT_FALSE(Exists(app() + "_tmp")) << "the backup is removed after success";
    EXPECT_NE(WaitClientPid(own), 0) << "the new client was not started";
}

}  // namespace
}  // namespace skelda_test
