// Byte searches, trimming and the byte order.
#include "ustring_probe.h"

#include <gtest/gtest.h>

#include <cstring>
#include <ostream>
#include <string>

namespace {

constexpr size_t npos = ustring::npos;

enum class Op { Find, Rfind, FirstOf, FirstNotOf, LastOf, LastNotOf };

struct SearchRow {
    const char* name;
    Op op;
    const char* text;
    const char* arg;
    size_t pos;
    size_t expected;
};

// A row prints as its name, which keeps the test listing stable.
void PrintTo(const SearchRow& row, std::ostream* os) { *os << row.name; }

class Search : public ::testing::TestWithParam<SearchRow> {
protected:
    template <typename Arg>
    size_t run(const ustring& text, const Arg& arg) const
    {
        const SearchRow& row = GetParam();
        switch (row.op) {
        case Op::Find: return text.find(arg, row.pos);
        case Op::Rfind: return text.rfind(arg, row.pos);
        case Op::FirstOf: return text.find_first_of(arg, row.pos);
        case Op::FirstNotOf: return text.find_first_not_of(arg, row.pos);
        case Op::LastOf: return text.find_last_of(arg, row.pos);
        case Op::LastNotOf: return text.find_last_not_of(arg, row.pos);
        }
        return 0;
    }
};

// Every argument form must give the same answer: const char*, std::string, ustring, and char
// for arguments of at most one byte (the 0 byte standing for the empty argument).
TEST_P(Search, AllArgumentFormsAgree)
{
    const SearchRow& row = GetParam();
    const ustring text(row.text);
    EXPECT_EQ(run(text, row.arg), row.expected) << "const char*";
    EXPECT_EQ(run(text, std::string(row.arg)), row.expected) << "std::string";
    EXPECT_EQ(run(text, ustring(row.arg)), row.expected) << "ustring";
    if (std::strlen(row.arg) <= 1) {
        EXPECT_EQ(run(text, row.arg[0]), row.expected) << "char";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, Search,
    ::testing::Values(
        SearchRow{"FindFirstMatch", Op::Find, "abcbc", "bc", 0, 1},
        SearchRow{"FindFromPos", Op::Find, "abcbc", "bc", 2, 3},
        SearchRow{"FindAtLengthIsNpos", Op::Find, "abc", "", 3, npos},
        SearchRow{"FindEmptyNeedleGivesPos", Op::Find, "abc", "", 1, 1},
        SearchRow{"FindNeedleLongerThanText", Op::Find, "ab", "abc", 0, npos},
        SearchRow{"FindByte", Op::Find, "a/b/c", "/", 2, 3},
        SearchRow{"FindMissing", Op::Find, "abc", "x", 0, npos},
        SearchRow{"RfindEmptyNeedleGivesStart", Op::Rfind, "abc", "", npos, 2},
        SearchRow{"RfindOnEmptyText", Op::Rfind, "", "a", npos, npos},
        SearchRow{"RfindEmptyOnEmptyText", Op::Rfind, "", "", npos, npos},
        SearchRow{"RfindLastMatch", Op::Rfind, "abcbc", "bc", npos, 3},
        SearchRow{"RfindBeforePos", Op::Rfind, "abcbc", "bc", 2, 1},
        SearchRow{"RfindPosBeyondLength", Op::Rfind, "abcbc", "c", 99, 4},
        SearchRow{"RfindMatchMayNotRunPastEnd", Op::Rfind, "abc", "cd", npos, npos},
        SearchRow{"RfindDownToZero", Op::Rfind, "abc", "abc", npos, 0},
        SearchRow{"FirstOfSet", Op::FirstOf, "abcbc", "cb", 0, 1},
        SearchRow{"FirstOfEmptySet", Op::FirstOf, "abc", "", 0, npos},
        SearchRow{"FirstOfAtLength", Op::FirstOf, "abc", "c", 3, npos},
        SearchRow{"FirstOfByte", Op::FirstOf, "abcbc", "c", 3, 4},
        SearchRow{"FirstOfHighBytes", Op::FirstOf, "ab\xC3\xA9", "\xA9\xC3", 0, 2},
        SearchRow{"FirstNotOfEmptySetGivesPos", Op::FirstNotOf, "abc", "", 2, 2},
        SearchRow{"FirstNotOfSkipsSet", Op::FirstNotOf, "abba c", "ab", 0, 4},
        SearchRow{"FirstNotOfAllInSet", Op::FirstNotOf, "abc", "cba", 0, npos},
        SearchRow{"LastOfSet", Op::LastOf, "abcbc", "b", npos, 3},
        SearchRow{"LastOfFromPos", Op::LastOf, "abcbc", "b", 2, 1},
        SearchRow{"LastOfIndexZero", Op::LastOf, "abc", "xa", npos, 0},
        SearchRow{"LastOfEmptySet", Op::LastOf, "abc", "", npos, npos},
        SearchRow{"LastOfEmptyText", Op::LastOf, "", "a", npos, npos},
        SearchRow{"LastNotOfSet", Op::LastNotOf, "abcbc", "c", npos, 3},
        SearchRow{"LastNotOfEmptySetGivesStart", Op::LastNotOf, "abcbc", "", npos, 4},
        SearchRow{"LastNotOfEmptySetFromPos", Op::LastNotOf, "abcbc", "", 2, 2},
        SearchRow{"LastNotOfAllInSet", Op::LastNotOf, "abc", "abc", npos, npos}),
    [](const ::testing::TestParamInfo<SearchRow>& info) { return info.param.name; });

TEST(SearchChar, ZeroByteIsAnEmptyArgument)
{
    const ustring abc("abc");
    EXPECT_EQ(abc.find_first_of('\0', 0), npos);
    EXPECT_EQ(abc.find('\0', 1), 1u);
    EXPECT_EQ(abc.rfind('\0', npos), 2u);
}

// ---- trimming ----

enum class Trim { Left, Right, Both };

struct TrimRow {
    const char* name;
    Trim op;
    const char* text;
    const char* set;
    const char* expected;
};

// A row prints as its name, which keeps the test listing stable.
void PrintTo(const TrimRow& row, std::ostream* os) { *os << row.name; }

class Trimming : public ::testing::TestWithParam<TrimRow> {};

TEST_P(Trimming, BothSetFormsGiveTheSameText)
{
    const TrimRow& row = GetParam();
    UstringProbe byPointer(row.text);
    UstringProbe byObject(row.text);
    const ustring set(row.set);
    switch (row.op) {
    case Trim::Left: byPointer.ltrim(row.set); byObject.ltrim(set); break;
    case Trim::Right: byPointer.rtrim(row.set); byObject.rtrim(set); break;
    case Trim::Both: byPointer.trim(row.set); byObject.trim(set); break;
    }
    EXPECT_STREQ(byPointer.c_str(), row.expected);
    EXPECT_EQ(byPointer.length(), std::strlen(row.expected));
    EXPECT_STREQ(byObject.c_str(), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Trimming,
    ::testing::Values(TrimRow{"BlanksBothSides", Trim::Both, "  a b  ", " ", "a b"},
                      TrimRow{"LeftWholeText", Trim::Left, "abba", "ab", ""},
                      TrimRow{"RightWholeText", Trim::Right, "abba", "ba", ""},
                      TrimRow{"LeftOnly", Trim::Left, "//x//", "/", "x//"},
                      TrimRow{"RightOnly", Trim::Right, "//x//", "/", "//x"},
                      TrimRow{"EmptySet", Trim::Both, " x ", "", " x "},
                      TrimRow{"EmptyText", Trim::Both, "", " ", ""},
                      TrimRow{"NothingToRemove", Trim::Both, "xyz", " \t", "xyz"},
                      TrimRow{"MixedSet", Trim::Both, "\t\n x\r\n", " \t\r\n", "x"}),
    [](const ::testing::TestParamInfo<TrimRow>& info) { return info.param.name; });

TEST(TrimCache, OnlyARealChangeEmptiesTheCacheAndNothingIsReallocated)
{
    UstringProbe s("  word  ");
    s.c_str_utf16();
    s.trim("x");
    EXPECT_EQ(s.wdataLength(), 8u);
    const char* buffer = s.c_str();
    s.trim(" ");
    EXPECT_EQ(s.wdataLength(), 0u);
    EXPECT_EQ(s.c_str(), buffer);
    EXPECT_EQ(s.dataCapacity(), 9u);
    EXPECT_EQ(toU16(s.c_str_utf16()), u"word");
}

// ---- byte order ----

struct CompareRow {
    const char* name;
    const char* a;
    const char* b;
    int expected;
};

// A row prints as its name, which keeps the test listing stable.
void PrintTo(const CompareRow& row, std::ostream* os) { *os << row.name; }

class ByteOrder : public ::testing::TestWithParam<CompareRow> {};

TEST_P(ByteOrder, DifferenceOfFirstDifferingBytes)
{
    const CompareRow& row = GetParam();
    const ustring a(row.a), b(row.b);
    EXPECT_EQ(a.compare(b), row.expected);
    EXPECT_EQ(ustring::compare(a, b, false), row.expected);
    EXPECT_EQ(a == b, row.expected == 0);
    EXPECT_EQ(a != b, row.expected != 0);
    EXPECT_EQ(a < b, row.expected < 0);
    EXPECT_EQ(a > b, row.expected > 0);
    EXPECT_EQ(a <= b, row.expected <= 0);
    EXPECT_EQ(a >= b, row.expected >= 0);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ByteOrder,
    ::testing::Values(CompareRow{"Equal", "abc", "abc", 0}, CompareRow{"BothEmpty", "", "", 0},
                      CompareRow{"Less", "abc", "abd", -1}, CompareRow{"Greater", "b", "a", 1},
                      CompareRow{"PrefixIsLess", "ab", "abc", -'c'},
                      CompareRow{"LongerIsGreater", "abc", "ab", 'c'},
                      CompareRow{"HighBytesAreUnsigned", "\xC3\xA9", "e", 0xC3 - 'e'},
                      CompareRow{"CaseMatters", "ABC", "abc", 'A' - 'a'}),
    [](const ::testing::TestParamInfo<CompareRow>& info) { return info.param.name; });

TEST(ByteOrderPrefix, ComparesAtMostNBytes)
{
    const ustring a("abcd"), b("abxy");
    EXPECT_EQ(a.compare(b, 0), 0);
    EXPECT_EQ(a.compare(b, 2), 0);
    EXPECT_EQ(a.compare(b, 3), 'c' - 'x');
    EXPECT_EQ(ustring("ab").compare(ustring("ab"), 10), 0);
    EXPECT_EQ(ustring("ab").compare(ustring("abc"), 10), -'c');
}

TEST(ByteOrderLong, FindsALateDifferenceAndTheShorterText)
{
    const std::string base(100, 'm');
    for (size_t at : {0u, 31u, 32u, 63u, 64u, 99u}) {
        std::string other = base;
        other[at] = 'z';
        EXPECT_EQ(ustring(base).compare(ustring(other)), 'm' - 'z') << "difference at " << at;
        EXPECT_EQ(ustring(base).compare(ustring(other), at), 0) << "prefix before " << at;
    }
    EXPECT_EQ(ustring(base).compare(ustring(base + "a")), -'a');
    EXPECT_EQ(ustring(base + "\xFF").compare(ustring(base)), 0xFF);
}

TEST(IgnoreCase, FoldsAsciiLettersOnly)
{
    EXPECT_EQ(ustring::compare(ustring("ABC"), ustring("abc"), true), 0);
    EXPECT_EQ(ustring::compare(ustring("Path/To"), ustring("path/to"), true), 0);
    // U+00C9 and U+00E9 differ in their second byte, which is not folded.
    EXPECT_EQ(ustring::compare(ustring("\xC3\x89"), ustring("\xC3\xA9"), true), 0x89 - 0xA9);
    // 'Z' folds to 'z', which sorts after '['; unfolded it would sort before.
    EXPECT_EQ(ustring::compare(ustring("Z"), ustring("["), true), 'z' - '[');
    EXPECT_EQ(ustring::compare(ustring("abc"), ustring("ABCD"), true), -'d');
}

}  // namespace
