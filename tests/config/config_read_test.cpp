// read() as a whole: files that cannot be read, the 8192-byte line buffer, and parse()
// cutting key and value in place.
#include <cstring>
#include <string>

#include "config/config.h"
#include "temp_dir.h"

namespace {

using ConfigRead = skelda_test::TempDirTest;

TEST_F(ConfigRead, UnreadableSourcesFailWithoutTouchingTheMap) {
    Config config;
    config[ustring("x")] = ustring("1");
    EXPECT_EQ(config.read(ustring("")), -1);
    EXPECT_EQ(config.read(ustring(path("missing.conf").c_str())), -1);
    ASSERT_EQ(config.size(), 1u);
    EXPECT_STREQ(config[ustring("x")].c_str(), "1");
}

TEST_F(ConfigRead, EmptyFileGivesNoEntries) {
    skelda_test::WriteFile(path("empty"), "");
    Config config;
    EXPECT_EQ(config.read(ustring(path("empty").c_str())), 0);
    EXPECT_TRUE(config.empty());
}

// fgets into 8192 bytes takes 8191 of a longer line; the rest is a line of its own.
TEST_F(ConfigRead, OverlongLineIsSplitAtTheBuffer) {
    const std::string value(8189, 'x');  // "a=" + value fills the 8191 bytes exactly
    skelda_test::WriteFile(path("long"), "a=" + value + "b=2\nc=3\n");
    Config config;
    ASSERT_EQ(config.read(ustring(path("long").c_str())), 0);
    ASSERT_EQ(config.size(), 3u);
    EXPECT_EQ(std::string(config[ustring("a")].c_str()), value);
    EXPECT_STREQ(config[ustring("b")].c_str(), "2");
    EXPECT_STREQ(config[ustring("c")].c_str(), "3");
}

TEST_F(ConfigRead, LineFillingTheBufferLeavesItsNewlineAsABlankLine) {
    const std::string value(8189, 'y');
    skelda_test::WriteFile(path("full"), "a=" + value + "\nb=1\n");
    Config config;
    ASSERT_EQ(config.read(ustring(path("full").c_str())), 0);
    EXPECT_EQ(std::string(config[ustring("a")].c_str()), value);
    EXPECT_STREQ(config[ustring("b")].c_str(), "1");
}

TEST(ConfigParse, CutsKeyAndValueWithNulBytesInPlace) {
    char line[] = "  ab = 'c d'  # note\n";
    ustring key, value;
    Config config;
    ASSERT_EQ(config.parse(line, static_cast<int>(std::strlen(line)), key, value), 0);
    EXPECT_STREQ(key.c_str(), "ab");
    EXPECT_STREQ(value.c_str(), "c d");
    EXPECT_EQ(line[4], '\0') << "end of the key";
    EXPECT_EQ(line[11], '\0') << "end of the value, where the closing quote was";
    EXPECT_TRUE(config.empty()) << "parse stores nothing in the map";
}

}  // namespace
