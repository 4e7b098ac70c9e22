// The path-string helpers: text only, nothing on disk.

#include <gtest/gtest.h>

#include <string>

#include "file/file-op.h"

namespace {

struct PathRow {
    const char* label;
    const char* op;  // "parent", "base" or "is_parent"
    const char* a;
    const char* b;  // the child for is_parent
    const char* expected;  // "true"/"false" for is_parent
};

class PathHelpers : public ::testing::TestWithParam<PathRow> {};

TEST_P(PathHelpers, GiveTheTableResult) {
    const PathRow& row = GetParam();
    std::string got;
    if (std::string(row.op) == "parent")
        got = FSParentPath(row.a).c_str();
    else if (std::string(row.op) == "base")
        got = FSBaseName(row.a).c_str();
    else
        got = FSIsParentFolder(row.a, row.b) ? "true" : "false";
    EXPECT_EQ(got, row.expected) << row.op << "(" << row.a << (*row.b ? ", " : "") << row.b << ")";
}

INSTANTIATE_TEST_SUITE_P(
    Table, PathHelpers,
    ::testing::Values(
        PathRow{"parent_of_bare_name_is_root", "parent", "abc", "", "/"},
        PathRow{"parent_of_top_level_is_root", "parent", "/abc", "", "/"},
        PathRow{"parent_of_two_levels", "parent", "/a/b", "", "/a"},
        PathRow{"parent_with_trailing_slash_is_the_folder", "parent", "/a/b/", "", "/a/b"},
        PathRow{"parent_of_root_is_root", "parent", "/", "", "/"},
        PathRow{"parent_of_empty_is_root", "parent", "", "", "/"},
        PathRow{"base_of_bare_name", "base", "abc", "", "abc"},
        PathRow{"base_of_two_levels", "base", "/a/b", "", "b"},
        PathRow{"base_with_trailing_slash_is_empty", "base", "/a/b/", "", ""},
        PathRow{"base_of_utf8_name", "base", "/a/\xC3\xA9t\xC3\xA9", "", "\xC3\xA9t\xC3\xA9"},
        PathRow{"folder_is_its_own_parent", "is_parent", "/a", "/a", "true"},
        PathRow{"folder_is_parent_of_child", "is_parent", "/a", "/a/b", "true"},
        PathRow{"prefix_without_boundary_is_not_parent", "is_parent", "/a", "/ab", "false"},
        PathRow{"trailing_slash_never_matches_longer_child", "is_parent", "/a/", "/a/b", "false"},
        PathRow{"child_shorter_than_parent", "is_parent", "/a/b", "/a", "false"},
        PathRow{"same_length_other_text", "is_parent", "/a", "/b", "false"},
        PathRow{"empty_parent_of_absolute_path", "is_parent", "", "/a", "true"},
        PathRow{"empty_parent_of_relative_path", "is_parent", "", "a", "false"}),
    [](const auto& info) { return std::string(info.param.label); });

}  // namespace
