// The logger: start-up default, line format, thresholds, rotation, two threads.
#include <fcntl.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <ctime>
#include <sstream>
#include <thread>

#include "log/log.h"
#include "temp_dir.h"

namespace {

using namespace skelda_test;

std::vector<std::string> Lines(const std::string& file) {  // each with its "\n"
    std::vector<std::string> lines;
    std::istringstream in(ReadFile(file));
    for (std::string line; std::getline(in, line);)
        lines.push_back(line + "\n");
    return lines;
}

// A time stamp of a second in [from, now] in the current locale, then body.
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
    void TearDown() override { Logger::Destroy(), TempDirTest::TearDown(); }
    std::string Start(const std::string& name, const std::string& levels = "") {
        Logger::log_level.clear();
        EXPECT_EQ(Logger::Initialize(Logger::LOGFILE, ustring(path(name)), ustring(levels), 50), 0);
        return path(name);
    }
    void Warn(const char* text) { Logger::LogMsg(Logger::WARNING, "launcher_debug", "%s\n", text); }
    const time_t from = std::time(nullptr);
    // The client, started while the log is open, must not inherit it.
    static bool CloseOnExec() { return fcntl(fileno(Logger::log_fp), F_GETFD) & FD_CLOEXEC; }
};

// Before Initialize the logger writes WARNING and worse, time-stamped, to standard error. CTest
// runs each case in a process of its own, so nothing touched it yet.
TEST_F(Log, BeforeInitializeWarningsGoToStandardErrorAndSklogLinesAreStampLevelSourceLineText) {
    ::testing::internal::CaptureStderr();
    Logger::LogMsg(Logger::WARNING, "launcher_debug", "[WARNING] s(%d): early\n", 1);
    Logger::LogMsg(Logger::INFO, "launcher_debug", "[INFO] s(%d): early\n", 2);
    Logger::LogMsg(Logger::ERROR, "service_debug", "[ERROR] s(%d): early\n", 3);
    const std::string stamp = "[A-Z][a-z][a-z] [0-9][0-9] [0-9][0-9]:[0-9][0-9]:[0-9][0-9] ";
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), ::testing::MatchesRegex(
        stamp + "\\[WARNING\\] s\\(1\\): early\n" + stamp + "\\[ERROR\\] s\\(3\\): early\n"));
    const std::string log = Start("launcher.log");
    SKLOG(WARNING, "launcher_debug", "value %s, %d\n", "x", 5); const int line = __LINE__;
    SKLOG(ERROR, "service_debug", "no arguments\n");
    const auto lines = Lines(log);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_TRUE(Stamped(lines[0], "[WARNING] log_test.cpp(" + std::to_string(line) + "): value x, 5\n", from));
    EXPECT_TRUE(Stamped(lines[1], "[ERROR] log_test.cpp(" + std::to_string(line + 1) + "): no arguments\n", from));
}

TEST_F(Log, LevelsFileDecidesWhatIsWritten) {
    const char *file_op7 = "file_op_debug=7\n", *bad = "file_op_debug=7\nservice_debug=0\nnot a line\n";
    using L = Logger;
    const struct { const char *levels, *component; Logger::Level level; bool written; } rows[] = {
        {"", "service_debug", L::WARNING, true}, {"", "unknown", L::NOTE, false},
        {file_op7, "file_op_debug", L::DEBUG, true}, {file_op7, "service_debug", L::NOTE, false},
        {"service_debug=0\n", "service_debug", L::ERROR, false},
        {"service_debug=x\n", "service_debug", L::ERROR, false},
        {"File_op_debug=3\nfile_op_debug=3\n", "file_op_debug", L::WARNING, false},
        {"# l\n\nextractor_debug = 6 # i\n", "extractor_debug", L::INFO, true},
        {bad, "file_op_debug", L::DEBUG, false}, {bad, "service_debug", L::ERROR, true}};
    int i = 0;
    for (const auto& r : rows) {  // "" stands for no file at all
        WriteFile(path("launcher.debug"), r.levels);
        const std::string log = Start(std::to_string(++i), *r.levels ? path("launcher.debug") : "");
        Logger::LogMsg(r.level, ustring(r.component), "probe\n");
        EXPECT_EQ(!ReadFile(log).empty(), r.written) << r.component << " at " << r.level << " by " << r.levels;
    }
}

TEST_F(Log, MessageReachingTheLimitEndsTheRotatedFile) {
    const std::string log = path("launcher.log");
    const size_t line = 16 + std::string("probe N\n").size();  // "Nov 16 20:31:40 probe N\n"
    WriteFile(log, std::string(Logger::kRotateSize - line - 1, 'x') + "\n");  // size taken from it
    WriteFile(log + "_0", "zero"), WriteFile(log + "_48", "oldest");  // of 50: all move up, one goes
    Start("launcher.log");
    EXPECT_TRUE(CloseOnExec()) << "at the first opening";
    Warn("probe 1"), Warn("probe 2"), Warn("probe 3");  // the file rotated away is closed
    EXPECT_TRUE(CloseOnExec()) << "after the rotation";
    EXPECT_EQ(ReadFile(log + "_0").size(), size_t(Logger::kRotateSize));
    EXPECT_TRUE(Stamped(Lines(log + "_0").back(), "probe 1\n", from));
    EXPECT_TRUE(ReadFile(log + "_1") == "zero" && !Exists(log + "_48") && !Exists(log + "_49"));
    EXPECT_TRUE(Lines(log).size() == 2 && Stamped(Lines(log)[1], "probe 3\n", from));
    EXPECT_EQ(size_t(*Logger::log_size), 2 * line);
    ASSERT_EQ(std::rename(log.c_str(), (log + "_moved").c_str()), 0);  // by someone else
    Logger::ReloadLogFile();
    EXPECT_TRUE(CloseOnExec()) << "after the reopening";
    Warn("probe 4");
    EXPECT_TRUE(Lines(log).size() == 1 && size_t(*Logger::log_size) == line) << "a new file at the path";
}

TEST_F(Log, TwoThreadsAcrossARotationTearOrLoseNoLine) {
    const std::string log = Start("launcher.log"), pad(40, 'p');
    auto writer = [&](char name) {
        for (int i = 0; i < 20000; ++i)  // together they cross the rotation size twice
            Logger::LogMsg(Logger::WARNING, "c", "%c %d %s\n", name, i, pad.c_str());
    };
    Logger::Lock();
    std::thread a(writer, 'A'), b(writer, 'B');
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_TRUE(ReadFile(log).empty()) << "the writers wait for the logger's lock";
    Logger::Unlock();
    a.join(), b.join();
    int next[2] = {0, 0};  // each thread's lines whole and in order, none lost
    for (const std::string& file : {log + "_1", log + "_0", log})
        for (const std::string& line : Lines(file)) {
            const int who = line.size() > 16 ? line[16] - 'A' : -1;
            ASSERT_TRUE((who == 0 || who == 1) && Stamped(line, line.substr(16, 2) + std::to_string(next[who]++) +
                                                                    " " + pad + "\n", from));
        }
    EXPECT_TRUE(next[0] == 20000 && next[1] == 20000 && !Exists(log + "_2"));
    EXPECT_EQ(size_t(*Logger::log_size), ReadFile(log).size()) << "every byte counted once";
}

}  // namespace
