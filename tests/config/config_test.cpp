// The key=value reader: one table row per line shape, read from a real file.
#include <climits>

#include "config/config.h"
#include "temp_dir.h"

namespace {

using Pairs = std::map<std::string, std::string>;
const std::string k8189(8189, 'x');  // "a=" and these fill fgets' 8191 bytes exactly

using ConfigRead = skelda_test::TempDirTest;

TEST_F(ConfigRead, ReadsEachLineShapeAsTheTableSaysAndGetIntTakesTheLeadingDecimal) {
    // pairs: the map after read besides "old", which only a failed read removes.
    const struct { std::string file; bool keep_quotes; int result; Pairs pairs; } rows[] = {
        {"a=1\n", false, 0, {{"a", "1"}}}, {"  b = 2  \n", false, 0, {{"b", "2"}}},
        {"c='x y'\n", false, 0, {{"c", "x y"}}}, {"d=\"q\"   # note\n", false, 0, {{"d", "q"}}},
        {"v=1 # c\ne=v#w\n", false, 0, {{"v", "1"}, {"e", "v#w"}}}, {"k=v\r\n", false, 0, {{"k", "v"}}},
        {"=5\n", false, 0, {{"", "5"}}}, {"A.z_0-9=x\n", false, 0, {{"A.z_0-9", "x"}}},
        {"u=caf\xc3\xa9\n", false, 0, {{"u", "caf\xc3\xa9"}}}, {"h=\"\"\n", false, 0, {{"h", ""}}},
        {"# a=1\n   # b=2\n\n \t \v\f\r\n", false, 0, {}}, {"", false, 0, {}}, {"j#c\nj", false, 0, {}},
        {"k='v'\nl=w\n", true, 0, {{"k", "'v'"}, {"l", "w"}}},
        {"a=1\nb=2\na=3\n", false, 0, {{"a", "3"}, {"b", "2"}}},
        {"a=" + k8189 + "b=2\n", false, 0, {{"a", k8189}, {"b", "2"}}},
        {"a=" + k8189 + "\nb=1\n", false, 0, {{"a", k8189}, {"b", "1"}}},
        {"j\n", false, -1, {}}, {"f=a b\n", false, -1, {}}, {"g=  \n", false, -1, {}},
        {"i=\"open\n", false, -1, {}}, {"q='a\tb'\n", false, -1, {}}, {"x=a\x7f\n", false, -1, {}},
        {"w=\"a b\"x\n", false, -1, {}}, {"a=1\nf=a b\nc=3\n", false, -1, {}}};
    for (const auto& row : rows) {
        skelda_test::WriteFile(path("in.conf"), row.file);
        Config config;
        config.keep_quotes = row.keep_quotes;
        config[ustring("old")] = ustring("1");
        EXPECT_EQ(config.read(ustring(path("in.conf"))), row.result) << row.file;
        Pairs got, expected = row.pairs;
        for (const auto& entry : config)
            got[entry.first.c_str()] = entry.second.c_str();
        EXPECT_EQ(got, row.result ? expected : (expected["old"] = "1", expected)) << row.file;
    }
    // get_int takes the leading decimal, clamped to 32 bits; files that cannot be read leave the map.
    Config c;
    const std::map<std::string, int> ints = {{"42", 42}, {" +7x", 7}, {"-3", -3}, {"abc", 0},
        {"", 0}, {"99999999999", INT_MAX}, {"-99999999999", INT_MIN}};
    for (const auto& row : ints) {
        c[ustring("n")] = ustring(row.first);
        EXPECT_EQ(c.get_int(ustring("n")), row.second) << "value \"" << row.first << "\"";
    }
    EXPECT_TRUE(c.get_int(ustring("missing")) == 0 && c.count(ustring("missing")) == 1) << "inserted empty";
    EXPECT_TRUE(c.read(ustring("")) == -1 && c.read(ustring("/nonexistent/missing.conf")) == -1);
    EXPECT_EQ(c.size(), 2u);
}

}  // namespace
