// The key=value reader: one table row per line shape, read from a real file.
#include <climits>
#include <cstring>
#include <string>

#include "config/config.h"
#include "temp_dir.h"

namespace {

using Pairs = std::map<std::string, std::string>;
// pairs: the map after read besides "old", which only a failed read removes.
struct LineRow { const char* name; std::string file; bool keep_quotes; int result; Pairs pairs; };
class ConfigLine : public skelda_test::TempDirTest, public testing::WithParamInterface<LineRow> {};

TEST_P(ConfigLine, ReadsAsTheTableSays) {
    const LineRow& row = GetParam();
    skelda_test::WriteFile(path("in.conf"), row.file);
    Config config;
    config.keep_quotes = row.keep_quotes;
    config[ustring("old")] = ustring("1");
    ASSERT_EQ(config.read(ustring(path("in.conf"))), row.result) << row.file;
    Pairs got, expected = row.pairs;
    for (const auto& entry : config)
        got[entry.first.c_str()] = entry.second.c_str();
    if (row.result == 0)
        expected["old"] = "1";
    EXPECT_EQ(got, expected) << row.file;
}

const std::string k8189(8189, 'x');  // "a=" and these fill fgets' 8191 bytes exactly

INSTANTIATE_TEST_SUITE_P(Rows, ConfigLine, ::testing::Values(
    LineRow{"Plain", "a=1\n", false, 0, {{"a", "1"}}},
    LineRow{"BlanksAround", "  b = 2  \n", false, 0, {{"b", "2"}}},
    LineRow{"SingleQuotesKeepBlank", "c='x y'\n", false, 0, {{"c", "x y"}}},
    LineRow{"QuotedThenComment", "d=\"q\"   # note\n", false, 0, {{"d", "q"}}},
    LineRow{"HashAfterBlankIsComment", "v=1 # c\ne=v#w\n", false, 0, {{"v", "1"}, {"e", "v#w"}}},
    LineRow{"CarriageReturn", "k=v\r\n", false, 0, {{"k", "v"}}},
    LineRow{"EmptyKey", "=5\n", false, 0, {{"", "5"}}},
    LineRow{"KeyCharacters", "A.z_0-9=x\n", false, 0, {{"A.z_0-9", "x"}}},
    LineRow{"Utf8StaysInValue", "u=caf\xc3\xa9\n", false, 0, {{"u", "caf\xc3\xa9"}}},
    LineRow{"EmptyQuoted", "h=\"\"\n", false, 0, {{"h", ""}}},
    LineRow{"CommentAndBlankLines", "# a=1\n   # b=2\n\n \t \v\f\r\n", false, 0, {}},
    LineRow{"EmptyFile", "", false, 0, {}},
    LineRow{"BareKeyBeforeHashOrAtEnd", "j#c\nj", false, 0, {}},
    LineRow{"KeepQuotes", "k='v'\nl=w\n", true, 0, {{"k", "'v'"}, {"l", "w"}}},
    LineRow{"DuplicateKeyLaterWins", "a=1\nb=2\na=3\n", false, 0, {{"a", "3"}, {"b", "2"}}},
    LineRow{"LongLineSplitAtBuffer", "a=" + k8189 + "b=2\n", false, 0, {{"a", k8189}, {"b", "2"}}},
    LineRow{"BufferFullAtNewline", "a=" + k8189 + "\nb=1\n", false, 0, {{"a", k8189}, {"b", "1"}}},
    LineRow{"BareKeyThenNewline", "j\n", false, -1, {}},
    LineRow{"BlankInPlainValue", "f=a b\n", false, -1, {}},
    LineRow{"NoValue", "g=  \n", false, -1, {}},
    LineRow{"UnclosedQuote", "i=\"open\n", false, -1, {}},
    LineRow{"TabInsideQuotes", "q='a\tb'\n", false, -1, {}},
    LineRow{"DelInPlainValue", "x=a\x7f\n", false, -1, {}},
    LineRow{"TextAfterQuote", "w=\"a b\"x\n", false, -1, {}},
    LineRow{"MalformedAfterGoodLines", "a=1\nf=a b\nc=3\n", false, -1, {}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(ConfigParse, ResultsCutInPlaceAndUnreadableFiles) {
    Config config;
    ustring key, value;
    char pair[] = " ab = 'c d' # n\n", bare[] = "j#c\n", bad[] = "j k=1\n";
    EXPECT_EQ(config.parse(pair, int(std::strlen(pair)), key, value), 0);
    EXPECT_TRUE(key == ustring("ab") && value == ustring("c d") && pair[3] == 0 && pair[10] == 0);
    EXPECT_EQ(config.parse(bare, int(std::strlen(bare)), key, value), 1);
    EXPECT_EQ(config.parse(bad, int(std::strlen(bad)), key, value), 2);
    EXPECT_TRUE(config.empty()) << "parse stores nothing";
    config[ustring("x")] = ustring("1");
    EXPECT_EQ(config.read(ustring("")), -1);
    EXPECT_EQ(config.read(ustring("/nonexistent/missing.conf")), -1);
    EXPECT_EQ(config.size(), 1u) << "an unreadable file leaves the map";
}

TEST(ConfigGetInt, LeadingDecimalClampedTo32Bits) {
    Config c;
    const std::map<std::string, int> rows = {{"42", 42}, {" +7x", 7}, {"-3", -3}, {"abc", 0},
        {"", 0}, {"99999999999", INT_MAX}, {"-99999999999", INT_MIN}};
    for (const auto& row : rows) {
        c[ustring("n")] = ustring(row.first);
        EXPECT_EQ(c.get_int(ustring("n")), row.second) << "value \"" << row.first << "\"";
    }
    EXPECT_EQ(c.get_int(ustring("missing")), 0);
    EXPECT_EQ(c.count(ustring("missing")), 1u) << "inserted empty, as the subscript does";
}

}  // namespace
