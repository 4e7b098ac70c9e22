#pragma once
// Helpers for the logger tests: a fixture that leaves the logger as a fresh process has
// it, the expected time stamps of a window of time, and capture of a standard stream.

#include <ctime>
#include <string>
#include <vector>

#include "log/log.h"
#include "temp_dir.h"

namespace skelda_test {

// Per test: a temporary folder, an empty threshold map, and Destroy at the end.
class LoggerTest : public TempDirTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // Initializes a LOGFILE logger on path(name); fails the test on error.
    std::string StartFileLog(const std::string& name, int rotate_count = 50,
                             const std::string& debug_file = "");
};

// Splits after every "\n"; a last piece without one is kept as it is.
std::vector<std::string> SplitLines(const std::string& text);

// Checks that line is a time stamp of a second in [from, to] followed by body.
::testing::AssertionResult IsStampedLine(const std::string& line, const std::string& body,
                                         time_t from, time_t to);

// Redirects a file descriptor (1 or 2) into a file until Finish, which returns its text.
class FdCapture {
public:
    FdCapture(int fd, const std::string& file);
    ~FdCapture();
    std::string Finish();

private:
    int fd_;
    int saved_ = -1;
    std::string file_;
};

}  // namespace skelda_test
