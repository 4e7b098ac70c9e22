// Before Initialize the logger writes WARNING and worse, time-stamped, to standard error.
// Its own binary: nothing in this process may have touched the logger before.
#include <ctime>
#include <unistd.h>

#include "log_test_support.h"

namespace {

using namespace skelda_test;
using LogStartup = TempDirTest;

TEST_F(LogStartup, WarningGoesToStandardErrorBeforeInitialize) {
    FdCapture capture(STDERR_FILENO, path("stderr"));
    const time_t from = std::time(nullptr);
    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] s(%d): early\n", 1);
    Logger::LogMsg(Logger::INFO, "launcher_debug", "[INFO] s(%d): early\n", 2);
    Logger::LogMsg(Logger::ERROR, "service_debug", "[ERROR] s(%d): early\n", 3);
    const auto lines = SplitLines(capture.Finish());
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(IsStampedLine(lines[0], "[WARNING] s(1): early\n", from, std::time(nullptr)));
    EXPECT_TRUE(IsStampedLine(lines[1], "[ERROR] s(3): early\n", from, std::time(nullptr)));
}

}  // namespace
