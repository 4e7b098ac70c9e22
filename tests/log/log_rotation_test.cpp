// Size accounting and rotation of the log file set P, P_0 (newest), P_1, ...
#include <ctime>
#include <string>
#include <sys/stat.h>

#include "log_test_support.h"

namespace {

using namespace skelda_test;
using LogRotation = LoggerTest;

long SizeOf(const std::string& file) {
    struct stat st;
    return stat(file.c_str(), &st) == 0 ? static_cast<long>(st.st_size) : -1;
}

std::string Member(const std::string& log, int i) {
    return log + "_" + std::to_string(i);
}

// Makes the next message cross the limit without writing a mebibyte first.
void LogRotating(int i) {
    *Logger::log_size = Logger::kRotateSize - 1;
    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] r(%d): message %d\n", 1, i);
}

TEST_F(LogRotation, MessageReachingTheLimitEndsTheRotatedFile) {
    const std::string body = "[WARNING] r(1): probe N\n";
    const long line = 16 + static_cast<long>(body.size());  // "Nov 16 20:31:40 " + body
    const std::string log = path("launcher.log");
    // The size is taken from the existing file; one line more stops a byte short.
    WriteFile(log, std::string(Logger::kRotateSize - 1 - line, 'x'));
    StartFileLog("launcher.log");
    const time_t from = std::time(nullptr);

    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] r(%d): probe %d\n", 1, 1);
    EXPECT_EQ(SizeOf(log), Logger::kRotateSize - 1);
    EXPECT_FALSE(Exists(Member(log, 0))) << "1,048,576 bytes do not rotate yet";

    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] r(%d): probe %d\n", 1, 2);
    ASSERT_EQ(SizeOf(Member(log, 0)), Logger::kRotateSize - 1 + line);
    const auto rotated = SplitLines(ReadFile(Member(log, 0)));
    EXPECT_TRUE(IsStampedLine(rotated.back(), "[WARNING] r(1): probe 2\n", from,
                              std::time(nullptr)));
    EXPECT_EQ(SizeOf(log), 0) << "a fresh file follows the rotation";
    EXPECT_EQ(*Logger::log_size, 0);

    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] r(%d): probe %d\n", 1, 3);
    const auto fresh = SplitLines(ReadFile(log));
    ASSERT_EQ(fresh.size(), 1u);
    EXPECT_TRUE(IsStampedLine(fresh[0], "[WARNING] r(1): probe 3\n", from, std::time(nullptr)));
    EXPECT_EQ(*Logger::log_size, line);
}

TEST_F(LogRotation, SixtyRotationsKeepP0ToP48) {
    const std::string log = StartFileLog("launcher.log", 50);
    for (int i = 0; i < 60; ++i)
        LogRotating(i);
    for (int k = 0; k <= 48; ++k) {
        const auto lines = SplitLines(ReadFile(Member(log, k)));
        ASSERT_EQ(lines.size(), 1u) << Member(log, k);
        EXPECT_NE(lines[0].find("message " + std::to_string(59 - k) + "\n"), std::string::npos)
            << Member(log, k) << " holds " << lines[0];
    }
    EXPECT_FALSE(Exists(Member(log, 49)));
    EXPECT_EQ(SizeOf(log), 0);
}

TEST_F(LogRotation, SetOfOneKeepsOnlyP0) {
    const std::string log = StartFileLog("launcher.log", 1);
    for (int i = 0; i < 3; ++i)
        LogRotating(i);
    EXPECT_NE(ReadFile(Member(log, 0)).find("message 2\n"), std::string::npos);
    EXPECT_FALSE(Exists(Member(log, 1)));
}

TEST_F(LogRotation, FailedRotationSilencesTheLogger) {
    const std::string log = StartFileLog("launcher.log", 1);
    // A non-empty folder where P_0 belongs can be neither removed nor replaced by P.
    MakeDirs(Member(log, 0) + "/occupied");
    LogRotating(1);
    EXPECT_EQ(*Logger::log_size, 0) << "the counter is reset even when Rotate fails";
    Logger::LogMsg(Logger::ERROR, "launcher_debug", "[ERROR] r(%d): dropped\n", 2);
    const auto lines = SplitLines(ReadFile(log));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_NE(lines[0].find("message 1\n"), std::string::npos);
}

TEST_F(LogRotation, ChangedRotationCounterReopensThePath) {
    const std::string log = StartFileLog("launcher.log");
    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] r(%d): before\n", 1);
    // Another holder of the shared data rotated the file away.
    ASSERT_EQ(std::rename(log.c_str(), path("moved.log").c_str()), 0);
    ++*Logger::log_rotated_count_shared;

    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] r(%d): after\n", 2);
    const auto reopened = SplitLines(ReadFile(log));
    ASSERT_EQ(reopened.size(), 1u);
    EXPECT_NE(reopened[0].find("after"), std::string::npos);
    EXPECT_EQ(SplitLines(ReadFile(path("moved.log"))).size(), 1u);
    EXPECT_EQ(*Logger::log_size, SizeOf(log)) << "size taken again from the reopened file";
    EXPECT_EQ(Logger::log_rotated_count_private, *Logger::log_rotated_count_shared);
}

}  // namespace
