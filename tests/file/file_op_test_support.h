#pragma once
// Helpers for the file-operation tests: a fixture whose logger writes every file_op_debug
// message into the test's folder, a child process running as "nobody", and a small tmpfs
// mounted in a private mount namespace.

#include <functional>
#include <string>
#include <vector>

#include "file/file-op.h"
#include "temp_dir.h"

namespace skelda_test {

class FileOpTest : public TempDirTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // The logged lines without their time stamps, e.g. "[ERROR] dir-list.cpp(40): ...\n".
    std::vector<std::string> LogLines() const;
    // Whether a line "[level] source(<line>): message" was logged; message ends in "\n".
    ::testing::AssertionResult Logged(const std::string& level, const std::string& source,
                                      const std::string& message) const;

    ustring U(const std::string& rel) const { return ustring(path(rel).c_str()); }

private:
    std::string log_file_;
};

// Runs body in a forked child and returns what body returned ("" for success); a crash is
// reported as text. The child can change its ids or mounts without touching the test.
std::string RunInChild(const std::function<std::string()>& body);
// The same with the user and group ids of nobody.
std::string RunAsNobody(const std::function<std::string()>& body);

// Makes the test process's mounts private and mounts a tmpfs of `size` (e.g. "1m") at
// `at`. Returns "" or why the machine refused; the test then skips.
std::string MountTmpfs(const std::string& at, const std::string& size);
void UnmountTmpfs(const std::string& at);

}  // namespace skelda_test
