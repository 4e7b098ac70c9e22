// Initialize failures, Destroy, and two threads logging at once.
#include <cstdio>
#include <ctime>
#include <string>
#include <thread>
#include <vector>

#include "log_test_support.h"

namespace {

using namespace skelda_test;
using LogLifecycle = LoggerTest;

TEST_F(LogLifecycle, FailedFileInitializeKeepsThePreviousFileWithoutRotation) {
    const std::string first = StartFileLog("first.log");
    MakeDirs(path("folder.log"));
    for (const std::string& bad : {std::string(), path("no/such/folder/x.log"),
                                  path("folder.log")}) {
        EXPECT_EQ(Logger::Initialize(Logger::LOGFILE, ustring(bad.c_str()), ustring(""), 50),
                  -1)
            << "path \"" << bad << "\"";
        EXPECT_EQ(*Logger::log_size, -1) << "no size accounting after a failed Initialize";
    }
    // Well past the rotation size, yet nothing is rotated: there is no new file to count.
    const std::string big(Logger::kRotateSize, 'b');
    Logger::LogMsg(Logger::ERROR, "launcher_debug", "[ERROR] l(%d): %s\n", 1, big.c_str());
    Logger::LogMsg(Logger::ERROR, "launcher_debug", "[ERROR] l(%d): still here\n", 2);
    const auto lines = SplitLines(ReadFile(first));
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NE(lines[1].find("still here"), std::string::npos);
    EXPECT_FALSE(Exists(first + "_0"));
    EXPECT_FALSE(Exists(path("folder.log_0")));
}

TEST_F(LogLifecycle, DestroyDropsEverythingUntilTheNextInitialize) {
    const std::string first = StartFileLog("first.log");
    Logger::Destroy();
    EXPECT_EQ(Logger::log_fp, stdout);
    EXPECT_TRUE(Logger::log_path.empty());
    Logger::LogMsg(Logger::ERROR, "launcher_debug", "[ERROR] l(%d): dropped\n", 1);
    EXPECT_EQ(ReadFile(first), "");

    const std::string second = StartFileLog("second.log");
    Logger::LogMsg(Logger::ERROR, "launcher_debug", "[ERROR] l(%d): written\n", 2);
    EXPECT_EQ(SplitLines(ReadFile(second)).size(), 1u);
}

// Enough text to cross the rotation size once while both threads write.
TEST_F(LogLifecycle, TwoThreadsNeverTearALine) {
    const std::string log = StartFileLog("launcher.log");
    const int per_thread = 3000;
    const std::string padding(180, 'p');
    auto writer = [&](char name) {
        for (int i = 0; i < per_thread; ++i)
            Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] t(%d): %c %d %s\n", 1,
                           name, i, padding.c_str());
    };
    const time_t from = std::time(nullptr);
    std::thread a(writer, 'A');
    std::thread b(writer, 'B');
    a.join();
    b.join();
    const time_t to = std::time(nullptr);

    ASSERT_TRUE(Exists(log + "_0")) << "the run was meant to rotate once";
    int next[2] = {0, 0};
    for (const std::string& file : {log + "_0", log}) {
        for (const std::string& line : SplitLines(ReadFile(file))) {
            // A whole line: one stamp, one message of one thread, its padding, one newline.
            char name = 0;
            int number = -1;
            int consumed = 0;
            const std::string body = line.size() > 16 ? line.substr(16) : "";
            std::sscanf(body.c_str(), "[WARNING] t(1): %c %d %n", &name, &number, &consumed);
            ASSERT_TRUE(name == 'A' || name == 'B') << "torn line in " << file << ": " << line;
            ASSERT_EQ(body.substr(consumed), padding + "\n") << "torn line: " << line;
            ASSERT_TRUE(IsStampedLine(line, body, from, to));
            int& expected = next[name - 'A'];
            ASSERT_EQ(number, expected) << "lost or reordered line";
            ++expected;
        }
    }
    EXPECT_EQ(static_cast<size_t>(*Logger::log_size), ReadFile(log).size())
        << "every byte of the current file counted once";
    EXPECT_EQ(next[0], per_thread);
    EXPECT_EQ(next[1], per_thread);
}

}  // namespace
