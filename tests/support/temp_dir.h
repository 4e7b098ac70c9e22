#pragma once
// A fresh folder per test, with HOME pointed into it so that nothing touches the real home
// folder; removed when the test passes, kept (its path printed) for a look when it fails.

#include <gtest/gtest.h>

#include <string>

namespace skelda_test {

class TempDirTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;
    // The test's own folder and the HOME it was given (a sub-folder "home").
    const std::string& dir() const { return dir_; }
    const std::string& home() const { return home_; }
    std::string path(const std::string& rel) const { return dir_ + "/" + rel; }

private:
    std::string dir_, home_;
};

// Small file helpers for arranging a test's disk; each one fails the test on error.
void WriteFile(const std::string& path, const std::string& content);
std::string ReadFile(const std::string& path);
void MakeDirs(const std::string& path);
bool Exists(const std::string& path);  // lstat: a dangling link exists
void RemoveTree(const std::string& path);
// Fails every test that ends with a descriptor open that it did not find (both main()s call it).
void WatchDescriptors();

}  // namespace skelda_test
