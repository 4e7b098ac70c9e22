// One row per line shape of the key=value format, each read from a real file.
#include <map>
#include <string>

#include "config/config.h"
#include "temp_dir.h"

namespace {

using Pairs = std::map<std::string, std::string>;

struct LineRow {
    const char* name;
    std::string file;  // the whole file
    bool keep_quotes;
    int result;        // of read
    Pairs pairs;       // besides the entry that was there before the read
};

Pairs ToPairs(const Config& config) {
    Pairs out;
    for (const auto& entry : config)
        out[entry.first.c_str()] = entry.second.c_str();
    return out;
}

class ConfigLineFormat : public skelda_test::TempDirTest,
                         public ::testing::WithParamInterface<LineRow> {};

TEST_P(ConfigLineFormat, ReadsLineAsTheTableSays) {
    const LineRow& row = GetParam();
    const std::string file = path("input.conf");
    skelda_test::WriteFile(file, row.file);

    Config config;
    config.keep_quotes = row.keep_quotes;
    config[ustring("earlier")] = ustring("kept unless the read fails");
    ASSERT_EQ(config.read(ustring(file)), row.result) << "file: " << row.file;

    Pairs expected = row.pairs;
    if (row.result == 0)
        expected["earlier"] = "kept unless the read fails";
    EXPECT_EQ(ToPairs(config), expected) << "file: " << row.file;
}

const Pairs kMalformed;

INSTANTIATE_TEST_SUITE_P(
    Rows, ConfigLineFormat,
    ::testing::Values(
        LineRow{"Plain", "a=1\n", false, 0, {{"a", "1"}}},
        LineRow{"BlanksAround", "  b = 2  \n", false, 0, {{"b", "2"}}},
        LineRow{"SingleQuotesKeepBlank", "c='x y'\n", false, 0, {{"c", "x y"}}},
        LineRow{"QuotedThenComment", "d=\"q\"   # note\n", false, 0, {{"d", "q"}}},
        LineRow{"HashInsideValue", "e=v#w\n", false, 0, {{"e", "v#w"}}},
        LineRow{"CarriageReturn", "k=v\r\n", false, 0, {{"k", "v"}}},
        LineRow{"EmptyKey", "=5\n", false, 0, {{"", "5"}}},
        LineRow{"CommentLine", "# anything\n", false, 0, {}},
        LineRow{"IndentedComment", "   # a=1\n", false, 0, {}},
        LineRow{"BlankLines", "\n \t \v\f\r\n", false, 0, {}},
        LineRow{"BareKeyAtEndOfFile", "j", false, 0, {}},
        LineRow{"BareKeyBeforeHash", "j#c\n", false, 0, {}},
        LineRow{"PlainThenComment", "v=1 # c\n", false, 0, {{"v", "1"}}},
        LineRow{"Utf8StaysInValue", "u=caf\xc3\xa9\n", false, 0, {{"u", "caf\xc3\xa9"}}},
        LineRow{"KeyCharacters", "A.z_0-9=x\n", false, 0, {{"A.z_0-9", "x"}}},
        LineRow{"EmptyQuoted", "h=\"\"\n", false, 0, {{"h", ""}}},
        LineRow{"KeepQuotes", "k='v'\n", true, 0, {{"k", "'v'"}}},
        LineRow{"KeepQuotesPlainValue", "k=v\n", true, 0, {{"k", "v"}}},
        LineRow{"DuplicateKeyLaterWins", "a=1\nb=2\na=3\n", false, 0, {{"a", "3"}, {"b", "2"}}},
        LineRow{"BareKeyThenNewline", "j\n", false, -1, kMalformed},
        LineRow{"BareKeyThenBlankComment", "j #c\n", false, -1, kMalformed},
        LineRow{"BlankInPlainValue", "f=a b\n", false, -1, kMalformed},
        LineRow{"NoValue", "g=\n", false, -1, kMalformed},
        LineRow{"OnlyBlanksAfterEquals", "g=   \n", false, -1, kMalformed},
        LineRow{"BlankInKey", "my key=1\n", false, -1, kMalformed},
        LineRow{"OtherCharacterInKey", "my/key=1\n", false, -1, kMalformed},
        LineRow{"UnclosedQuote", "i=\"open\n", false, -1, kMalformed},
        LineRow{"MismatchedQuotes", "i=\"open'\n", false, -1, kMalformed},
        LineRow{"TabInsideQuotes", "q='a\tb'\n", false, -1, kMalformed},
        LineRow{"DelInPlainValue", "x=a\x7f\n", false, -1, kMalformed},
        LineRow{"TextAfterQuote", "w=\"a b\"x\n", false, -1, kMalformed},
        LineRow{"MalformedAfterGoodLines", "a=1\nf=a b\nc=3\n", false, -1, kMalformed}),
    [](const ::testing::TestParamInfo<LineRow>& info) { return std::string(info.param.name); });

}  // namespace
