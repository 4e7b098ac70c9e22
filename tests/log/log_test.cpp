// The logger: line format, thresholds, rotation, failed Initialize and two threads at once.
#include <algorithm>
#include <cstdio>
#include <ctime>
#include <string>
#include <thread>
#include <vector>

#include "log/log.h"
#include "temp_dir.h"

namespace {

using namespace skelda_test;

std::vector<std::string> Lines(const std::string& file) {
    const std::string text = ReadFile(file);
    std::vector<std::string> lines;
    for (size_t start = 0, end; start < text.size(); start = end) {
        end = std::min(text.find('\n', start), text.size() - 1) + 1;
        lines.push_back(text.substr(start, end - start));
    }
    return lines;
}

// A time stamp of a second in [from, now], then body.
::testing::AssertionResult Stamped(const std::string& line, const std::string& body, time_t from) {
    for (time_t t = from; t <= std::time(nullptr); ++t) {
        struct tm local;
        char stamp[64];
        localtime_r(&t, &local);
        if (line == std::string(stamp, std::strftime(stamp, 64, "%b %d %H:%M:%S ", &local)) + body)
            return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "\"" << line << "\" is not a stamp, then " << body;
}

class Log : public TempDirTest {
protected:
    void SetUp() override {
        TempDirTest::SetUp();
        Logger::log_level.clear();
    }
    void TearDown() override {
        Logger::Destroy();
        TempDirTest::TearDown();
    }
    std::string Start(const std::string& name, int rotate = 50, const std::string& levels = "") {
        EXPECT_EQ(Logger::Initialize(Logger::LOGFILE, ustring(path(name)), ustring(levels), rotate),
                  0);
        return path(name);
    }
    const time_t from = std::time(nullptr);
};

TEST_F(Log, SklogLineIsStampLevelSourceLineThenText) {
    const std::string log = Start("launcher.log");
    SKLOG(WARNING, "launcher_debug", "value %s, %d\n", "x", 5); const int line = __LINE__;
    SKLOG(ERROR, "service_debug", "no arguments\n");
    SKLOG(NOTE, "service_debug", "filtered\n");
    const auto lines = Lines(log);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(Stamped(lines[0], "[WARNING] log_test.cpp(" + std::to_string(line) +
                                      "): value x, 5\n", from));
    EXPECT_TRUE(Stamped(lines[1], "[ERROR] log_test.cpp(" + std::to_string(line + 1) +
                                      "): no arguments\n", from));
}

struct LevelRow { const char* name; const char* levels; const char* component; Logger::Level level;
                  bool written; };
class LogLevels : public Log, public testing::WithParamInterface<LevelRow> {};

TEST_P(LogLevels, DecideWhatIsWritten) {
    const LevelRow& row = GetParam();
    if (row.levels)
        WriteFile(path("launcher.debug"), row.levels);
    const std::string log = Start("launcher.log", 50, row.levels ? path("launcher.debug") : "");
    Logger::LogMsg(row.level, ustring(row.component), "probe\n");
    EXPECT_EQ(!ReadFile(log).empty(), row.written) << row.component << " at " << row.level;
}

const char kFileOp7[] = "file_op_debug=7\n";
const char kMalformed[] = "file_op_debug=7\nservice_debug=0\nnot a line\n";

INSTANTIATE_TEST_SUITE_P(Rows, LogLevels, ::testing::Values(
    LevelRow{"DefaultPassesWarning", nullptr, "service_debug", Logger::WARNING, true},
    LevelRow{"DefaultFiltersNote", nullptr, "unknown", Logger::NOTE, false},
    LevelRow{"RaisedPassesDebug", kFileOp7, "file_op_debug", Logger::DEBUG, true},
    LevelRow{"OthersStayAtWarning", kFileOp7, "service_debug", Logger::NOTE, false},
    LevelRow{"ZeroSilencesError", "service_debug=0\n", "service_debug", Logger::ERROR, false},
    LevelRow{"NonNumberSilencesError", "service_debug=x\n", "service_debug", Logger::ERROR, false},
    LevelRow{"LoweredFiltersWarning", "file_op_debug=3\n", "file_op_debug", Logger::WARNING, false},
    LevelRow{"CommentsAndBlanks", "# l\n\nextractor_debug = 6 # i\n", "extractor_debug",
             Logger::INFO, true},
    LevelRow{"NamesAreCaseSensitive", "File_op_debug=7\n", "file_op_debug", Logger::DEBUG, false},
    LevelRow{"MalformedFileRaisesNothing", kMalformed, "file_op_debug", Logger::DEBUG, false},
    LevelRow{"MalformedFileSilencesNothing", kMalformed, "service_debug", Logger::ERROR, true}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Log, MessageReachingTheLimitEndsTheRotatedFile) {
    const std::string log = path("launcher.log");
    const size_t line = 16 + std::string("probe N\n").size();  // "Nov 16 20:31:40 probe N\n"
    WriteFile(log, std::string(Logger::kRotateSize - line - 1, 'x') + "\n");  // size taken from it
    Start("launcher.log");
    for (int i = 1; i <= 3; ++i)
        Logger::LogMsg(Logger::WARNING, "launcher_debug", "probe %d\n", i);
    EXPECT_EQ(ReadFile(log + "_0").size(), size_t(Logger::kRotateSize));
    EXPECT_TRUE(Stamped(Lines(log + "_0").back(), "probe 1\n", from));
    ASSERT_EQ(Lines(log).size(), 2u);
    EXPECT_TRUE(Stamped(Lines(log)[1], "probe 3\n", from));
    EXPECT_EQ(size_t(*Logger::log_size), 2 * line);
}

TEST_F(Log, SixtyRotationsKeepP0ToP48) {
    const std::string log = Start("launcher.log", 50);
    for (int i = 0; i < 60; ++i) {
        *Logger::log_size = Logger::kRotateSize - 1;  // the next message crosses the limit
        Logger::LogMsg(Logger::WARNING, "launcher_debug", "message %d\n", i);
    }
    for (int k = 0; k <= 48; ++k) {
        const auto lines = Lines(log + "_" + std::to_string(k));
        ASSERT_EQ(lines.size(), 1u) << "P_" << k;
        EXPECT_TRUE(Stamped(lines[0], "message " + std::to_string(59 - k) + "\n", from));
    }
    EXPECT_FALSE(Exists(log + "_49"));
    EXPECT_EQ(ReadFile(log), "");
}

TEST_F(Log, ChangedRotationCounterReopensThePath) {
    const std::string log = Start("launcher.log");
    Logger::LogMsg(Logger::WARNING, "launcher_debug", "before\n");
    ASSERT_EQ(std::rename(log.c_str(), path("moved.log").c_str()), 0);
    ++*Logger::log_rotated_count_shared;  // as another holder of the shared data does
    Logger::LogMsg(Logger::WARNING, "launcher_debug", "after\n");
    ASSERT_EQ(Lines(log).size(), 1u);
    EXPECT_TRUE(Stamped(Lines(log)[0], "after\n", from));
    EXPECT_EQ(Lines(path("moved.log")).size(), 1u);
    EXPECT_EQ(size_t(*Logger::log_size), ReadFile(log).size()) << "size taken from the file";
}

TEST_F(Log, FailedFileInitializeKeepsThePreviousFileWithoutRotation) {
    const std::string first = Start("first.log");
    MakeDirs(path("folder.log"));
    for (const std::string& bad : {std::string(), path("no/such/x.log"), path("folder.log")}) {
        EXPECT_EQ(Logger::Initialize(Logger::LOGFILE, ustring(bad), ustring(""), 50), -1) << bad;
        EXPECT_EQ(*Logger::log_size, -1) << "no size accounting after a failed Initialize";
    }
    Logger::LogMsg(Logger::ERROR, "c", "%s\n", std::string(Logger::kRotateSize, 'b').c_str());
    Logger::LogMsg(Logger::ERROR, "c", "still here\n");
    ASSERT_EQ(Lines(first).size(), 2u);
    EXPECT_TRUE(Stamped(Lines(first)[1], "still here\n", from));
    EXPECT_FALSE(Exists(first + "_0") || Exists(path("folder.log_0"))) << "nothing rotated";
    Logger::Destroy();
    Logger::LogMsg(Logger::ERROR, "c", "dropped until the next Initialize\n");
    EXPECT_EQ(Lines(first).size(), 2u);
}

TEST_F(Log, TwoThreadsAcrossARotationTearOrLoseNoLine) {
    const std::string log = Start("launcher.log");
    const int per_thread = 3000;  // enough to cross the rotation size once
    const std::string pad(180, 'p');
    auto writer = [&](char name) {
        for (int i = 0; i < per_thread; ++i)
            Logger::LogMsg(Logger::WARNING, "c", "%c %d %s\n", name, i, pad.c_str());
    };
    std::thread a(writer, 'A'), b(writer, 'B');
    a.join();
    b.join();
    ASSERT_TRUE(Exists(log + "_0")) << "the run was meant to rotate once";
    int next[2] = {0, 0};
    for (const std::string& file : {log + "_0", log}) {
        for (const std::string& line : Lines(file)) {
            char name = 0;
            int number = -1;
            std::sscanf(line.c_str() + std::min<size_t>(16, line.size()), "%c %d", &name, &number);
            ASSERT_TRUE(name == 'A' || name == 'B') << "torn line: " << line;
            const std::string body = name + (" " + std::to_string(number)) + " " + pad + "\n";
            ASSERT_TRUE(Stamped(line, body, from));
            ASSERT_EQ(number, next[name - 'A']++) << "lost or reordered line";
        }
    }
    EXPECT_EQ(next[0], per_thread);
    EXPECT_EQ(next[1], per_thread);
    EXPECT_EQ(size_t(*Logger::log_size), ReadFile(log).size()) << "every byte counted once";
}

}  // namespace
