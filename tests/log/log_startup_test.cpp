// Before Initialize the logger writes WARNING and worse, time-stamped, to standard error.
// Its own binary: nothing in this process may have touched the logger before.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "log/log.h"

TEST(LogStartup, WarningAndWorseGoToStandardErrorBeforeInitialize) {
    ::testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] s(%d): early\n", 1);
    Logger::LogMsg(Logger::INFO, "launcher_debug", "[INFO] s(%d): early\n", 2);
    Logger::LogMsg(Logger::ERROR, "service_debug", "[ERROR] s(%d): early\n", 3);
    const char* stamp = "[A-Z][a-z][a-z] [0-9][0-9] [0-9][0-9]:[0-9][0-9]:[0-9][0-9] ";
    EXPECT_THAT(::testing::internal::GetCapturedStderr(),
                ::testing::MatchesRegex(std::string(stamp) + "\\[WARNING\\] s\\(1\\): early\n" +
                                        stamp + "\\[ERROR\\] s\\(3\\): early\n"));
}
