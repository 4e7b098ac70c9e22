// The exact text of a written line: time stamp, then the caller's format expanded.
#include <cstdarg>
#include <ctime>
#include <string>
#include <unistd.h>

#include "log_test_support.h"

namespace {

using namespace skelda_test;
using LogLineFormat = LoggerTest;

TEST_F(LogLineFormat, MacroAddsLevelSourceNameAndLine) {
    const std::string file = StartFileLog("launcher.log");
    const time_t from = std::time(nullptr);
    SKLOG(WARNING, "launcher_debug", "value %s, %d\n", "x", 5); const int line = __LINE__;
    const time_t to = std::time(nullptr);

    const auto lines = SplitLines(ReadFile(file));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(IsStampedLine(lines[0],
                              "[WARNING] log_line_format_test.cpp(" + std::to_string(line) +
                                  "): value x, 5\n",
                              from, to));
}

TEST_F(LogLineFormat, MacroWithoutArguments) {
    const std::string file = StartFileLog("launcher.log");
    const time_t from = std::time(nullptr);
    SKLOG(ERROR, "service_debug", "source does not exist\n"); const int line = __LINE__;
    const auto lines = SplitLines(ReadFile(file));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(IsStampedLine(lines[0],
                              "[ERROR] log_line_format_test.cpp(" + std::to_string(line) +
                                  "): source does not exist\n",
                              from, std::time(nullptr)));
}

TEST_F(LogLineFormat, FormatIsWrittenUnchangedBehindTheStamp) {
    WriteFile(path("launcher.debug"), "launcher_debug=7\n");
    const std::string file = StartFileLog("launcher.log", 50, path("launcher.debug"));
    const time_t from = std::time(nullptr);
    Logger::LogMsg(Logger::DEBUG, ustring("launcher_debug"),
                   "[DEBUG] main(%d): app has already launched, return\n", 80);
    Logger::LogMsg(Logger::NOTE, "launcher_debug", "no newline added %d", 1);
    const auto lines = SplitLines(ReadFile(file));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(IsStampedLine(lines[0], "[DEBUG] main(80): app has already launched, return\n",
                              from, std::time(nullptr)));
    EXPECT_TRUE(IsStampedLine(lines[1], "no newline added 1", from, std::time(nullptr)));
}

void LogFromC(int level, const char* component, const char* format, ...) {
    va_list args;
    va_start(args, format);
    std::string name = component;
    LogMSG_c(level, name.data(), format, args);
    va_end(args);
}

TEST_F(LogLineFormat, CEntryPassesTheArgumentList) {
    const std::string file = StartFileLog("launcher.log");
    const time_t from = std::time(nullptr);
    LogFromC(3, "extractor_debug", "[ERROR] c(%d): %s\n", 7, "from C");
    LogFromC(5, "extractor_debug", "[NOTE] c(%d): filtered\n", 8);
    const auto lines = SplitLines(ReadFile(file));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(IsStampedLine(lines[0], "[ERROR] c(7): from C\n", from, std::time(nullptr)));
}

TEST_F(LogLineFormat, FailedStatIsReportedIntoTheLog) {
    const std::string file = StartFileLog("launcher.log");
    const std::string missing = path("missing.log");
    const time_t from = std::time(nullptr);
    EXPECT_EQ(Logger::GetFileSize(ustring(missing.c_str())), 0);
    const auto lines = SplitLines(ReadFile(file));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(IsStampedLine(lines[0],
                              "stat(" + missing + "): No such file or directory (2)\n", from,
                              std::time(nullptr)));
}

TEST_F(LogLineFormat, ConsoleKindsWriteStampedLines) {
    for (Logger::Type type : {Logger::STDOUT, Logger::STDERR}) {
        const int fd = type == Logger::STDOUT ? STDOUT_FILENO : STDERR_FILENO;
        ASSERT_EQ(Logger::Initialize(type, ustring(path("unused.log").c_str()), ustring(""), 50),
                  0);
        FdCapture capture(fd, path("captured"));
        const time_t from = std::time(nullptr);
        Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] k(%d): console\n", 1);
        Logger::LogMsg(Logger::INFO, "launcher_debug", "[INFO] k(%d): filtered\n", 2);
        const auto lines = SplitLines(capture.Finish());
        ASSERT_EQ(lines.size(), 1u) << "kind " << type;
        EXPECT_TRUE(IsStampedLine(lines[0], "[WARNING] k(1): console\n", from, std::time(nullptr)));
        EXPECT_FALSE(Exists(path("unused.log"))) << "console kinds open no file";
        EXPECT_EQ(*Logger::log_size, -1) << "console kinds count no size";
    }
}

// Sources in a sub-directory name it in the prefix by redefining the source name.
#undef SKLOG_SOURCE_NAME
#define SKLOG_SOURCE_NAME "mac/mac-service.cpp"

TEST_F(LogLineFormat, SourceNameCanCarryASubDirectory) {
    const std::string file = StartFileLog("launcher.log");
    const time_t from = std::time(nullptr);
    SKLOG(WARNING, "service_debug", "kill %d\n", 12); const int line = __LINE__;
    const auto lines = SplitLines(ReadFile(file));
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_TRUE(IsStampedLine(
        lines[0], "[WARNING] mac/mac-service.cpp(" + std::to_string(line) + "): kill 12\n", from,
        std::time(nullptr)));
}

}  // namespace
