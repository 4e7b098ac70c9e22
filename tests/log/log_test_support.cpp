#include "log_test_support.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace skelda_test {

void LoggerTest::SetUp() {
    TempDirTest::SetUp();
    Logger::log_level.clear();
}

void LoggerTest::TearDown() {
    Logger::Destroy();
    TempDirTest::TearDown();
}

std::string LoggerTest::StartFileLog(const std::string& name, int rotate_count,
                                     const std::string& debug_file) {
    const std::string file = path(name);
    EXPECT_EQ(Logger::Initialize(Logger::LOGFILE, ustring(file.c_str()),
                                 ustring(debug_file.c_str()), rotate_count),
              0)
        << "Initialize on " << file;
    return file;
}

std::vector<std::string> SplitLines(const std::string& text) {
    std::vector<std::string> lines;
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        end = end == std::string::npos ? text.size() : end + 1;
        lines.push_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

::testing::AssertionResult IsStampedLine(const std::string& line, const std::string& body,
                                         time_t from, time_t to) {
    for (time_t t = from; t <= to; ++t) {
        struct tm local;
        localtime_r(&t, &local);
        char stamp[64];
        size_t len = std::strftime(stamp, sizeof stamp, "%b %d %H:%M:%S ", &local);
        if (line == std::string(stamp, len) + body)
            return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure()
           << "line \"" << line << "\" is not a time stamp followed by \"" << body << "\"";
}

FdCapture::FdCapture(int fd, const std::string& file) : fd_(fd), file_(file) {
    std::fflush(nullptr);
    int out = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    EXPECT_GE(out, 0) << "open " << file;
    saved_ = dup(fd);
    dup2(out, fd);
    close(out);
}

FdCapture::~FdCapture() {
    Finish();
}

std::string FdCapture::Finish() {
    if (saved_ >= 0) {
        std::fflush(nullptr);
        dup2(saved_, fd_);
        close(saved_);
        saved_ = -1;
    }
    return ReadFile(file_);
}

}  // namespace skelda_test
