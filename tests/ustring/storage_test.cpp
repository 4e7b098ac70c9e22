// Buffers, the growth rule, assignment, appending, substrings and the UTF-16 cache.
#include "ustring_probe.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <sstream>
#include <stdexcept>
#include <string>

// BadAllocKeepsTheOldBuffer provokes a failed huge realloc; under AddressSanitizer that must
// return null as the C library does instead of aborting. Unused in other builds.
extern "C" const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

namespace {

// ---- growth rule ----

struct GrowthRow {
    const char* name;
    size_t capacity;  // capacity before the step
    size_t needed;
    size_t expected;  // capacity after the step
};

// A row prints as its name, which keeps the test listing stable.
void PrintTo(const GrowthRow& row, std::ostream* os) { *os << row.name; }

class GrowthRule : public ::testing::TestWithParam<GrowthRow> {};

TEST_P(GrowthRule, KeepsOrResizesToExactlyTheNeed)
{
    const GrowthRow& row = GetParam();
    UstringProbe s;
    s.reallocData(row.capacity);
    s.reallocWdata(row.capacity);
    ASSERT_EQ(s.dataCapacity(), row.capacity);
    s.reallocData(row.needed);
    s.reallocWdata(row.needed);
    EXPECT_EQ(s.dataCapacity(), row.expected);
    EXPECT_EQ(s.wdataCapacity(), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, GrowthRule,
    ::testing::Values(GrowthRow{"SameSizeKept", 4, 4, 4}, GrowthRow{"HalfKept", 4, 2, 4},
                      GrowthRow{"BelowHalfShrinks", 4, 1, 1},
                      GrowthRow{"GrowsExactlyNoDoubling", 4, 5, 5},
                      GrowthRow{"OddHalfRoundsDownKept", 101, 50, 101},
                      GrowthRow{"OddHalfRoundsDownShrinks", 101, 49, 49},
                      GrowthRow{"LargeGrowth", 16, 1000, 1000}),
    [](const ::testing::TestParamInfo<GrowthRow>& info) { return info.param.name; });

TEST(Storage, NewStringIsEmptyAndOwnsFourBytesAndFourUnits)
{
    UstringProbe s;
    EXPECT_EQ(s.length(), 0u);
    EXPECT_TRUE(s.empty());
    EXPECT_STREQ(s.c_str(), "");
    EXPECT_EQ(s.dataCapacity(), 4u);
    EXPECT_EQ(s.wdataCapacity(), 4u);
    ASSERT_NE(s.c_str_utf16(), nullptr);
    EXPECT_EQ(s.c_str_utf16()[0], 0);
}

TEST(Storage, EachAppendReallocatesToTheExactNeed)
{
    UstringProbe s;
    s.append("abc");
    EXPECT_EQ(s.dataCapacity(), 4u);  // 3 bytes + terminator fit the initial buffer
    for (size_t n = 4; n < 40; ++n) {
        s.append('x', 1);
        ASSERT_EQ(s.dataCapacity(), n + 1) << "after growing to " << n << " bytes";
    }
}

TEST(Storage, AssigningShortTextToLongOneShrinksToTheNeed)
{
    UstringProbe s(std::string(100, 'a'));
    EXPECT_EQ(s.dataCapacity(), 101u);
    s = "x";
    EXPECT_EQ(s.dataCapacity(), 2u);
    EXPECT_STREQ(s.c_str(), "x");

    UstringProbe t(std::string(100, 'a'));
    t.assign("0123456789012345678901234567890123456789012345678");  // 49 bytes: need 50
    EXPECT_EQ(t.dataCapacity(), 101u);
}

TEST(Storage, ClearKeepsBuffersAndEmptiesBothTexts)
{
    UstringProbe s("h\xC3\xA9llo");
    s.c_str_utf16();
    const size_t cap = s.dataCapacity();
    s.clear();
    EXPECT_EQ(s.length(), 0u);
    EXPECT_STREQ(s.c_str(), "");
    EXPECT_EQ(s.wdataLength(), 0u);
    EXPECT_EQ(s.rawWdata()[0], 0);
    EXPECT_EQ(s.dataCapacity(), cap);
}

TEST(Storage, BadAllocKeepsTheOldBuffer)
{
    UstringProbe s("keep");
    EXPECT_THROW(s.reallocData(SIZE_MAX / 2), std::bad_alloc);
    EXPECT_STREQ(s.c_str(), "keep");
    EXPECT_EQ(s.dataCapacity(), 5u);
    s.append("!");
    EXPECT_STREQ(s.c_str(), "keep!");
}

TEST(Storage, SwapExchangesBuffersWithoutCopying)
{
    UstringProbe a("first");
    UstringProbe b("second text");
    const char* pa = a.c_str();
    const char* pb = b.c_str();
    swap(a, b);
    EXPECT_EQ(a.c_str(), pb);
    EXPECT_EQ(b.c_str(), pa);
    EXPECT_STREQ(a.c_str(), "second text");
    EXPECT_EQ(b.length(), 5u);
}

// ---- self-reference ----

TEST(SelfReference, PlusEqualsItselfDoubles)
{
    ustring x("abc");
    x += x;
    EXPECT_STREQ(x.c_str(), "abcabc");
    EXPECT_EQ(x.length(), 6u);
}

TEST(SelfReference, AppendingOwnCStrDoublesEvenWhenTheBufferMoves)
{
    ustring x(std::string(50, 'q'));
    x.append(x.c_str());
    EXPECT_EQ(x, ustring(std::string(100, 'q')));
    x.append(x.c_str(), 3);
    EXPECT_EQ(x.length(), 103u);
}

TEST(SelfReference, AssignFromItselfTakesTheSubstringFirst)
{
    ustring x("abcdef");
    x.assign(x, 2, 3);
    EXPECT_STREQ(x.c_str(), "cde");
    const ustring& same = x;
    x = same;
    EXPECT_STREQ(x.c_str(), "cde");
    x.append(x, 1, ustring::npos);
    EXPECT_STREQ(x.c_str(), "cdede");
}

TEST(SelfReference, AssignOwnPointerWithCountCuts)
{
    UstringProbe x("abcdef");
    x.c_str_utf16();
    x.assign(x.c_str(), 2);
    EXPECT_STREQ(x.c_str(), "ab");
    EXPECT_EQ(x.wdataLength(), 0u);
    x.assign(x.c_str(), 10);
    EXPECT_STREQ(x.c_str(), "ab");
    x.assign(x.c_str());
    EXPECT_STREQ(x.c_str(), "ab");
}

// ---- sources ----

TEST(Sources, ByteSourcesStopAtTheirTerminator)
{
    ustring s;
    s.append("abc", 10);
    s.append("defg", 2);
    s.append('z', 3);
    EXPECT_STREQ(s.c_str(), "abcdezzz");
    s.assign(std::string("ab\0cd", 5), 0, ustring::npos);
    EXPECT_STREQ(s.c_str(), "ab");
    EXPECT_EQ(s.length(), 2u);
    s.assign('k', 2);
    EXPECT_STREQ(s.c_str(), "kk");
    EXPECT_STREQ(ustring('c').c_str(), "c");
}

TEST(Sources, StdStringFormsTakeTheirSubstring)
{
    const std::string src = "hello world";
    ustring s;
    s.assign(src, 6, 3);
    EXPECT_STREQ(s.c_str(), "wor");
    s.append(src, 0, 1);
    EXPECT_STREQ(s.c_str(), "worh");
    s += std::string("!");
    EXPECT_STREQ(s.c_str(), "worh!");
}

TEST(Sources, PlusBuildsACopy)
{
    const ustring a("a/b");
    EXPECT_STREQ((a + ustring("/c")).c_str(), "a/b/c");
    EXPECT_STREQ((a + "/d").c_str(), "a/b/d");
    EXPECT_STREQ((a + '/').c_str(), "a/b/");
    EXPECT_STREQ((a + units(u"\u00e9")).c_str(), "a/b\xC3\xA9");
    EXPECT_STREQ((a + static_cast<unsigned short>(0x41)).c_str(), "a/bA");
    EXPECT_STREQ(a.c_str(), "a/b");
}

// ---- substrings and out-of-range ----

struct SubstrRow {
    const char* name;
    size_t pos;
    size_t n;
    const char* expected;
};

// A row prints as its name, which keeps the test listing stable.
void PrintTo(const SubstrRow& row, std::ostream* os) { *os << row.name; }

class Substr : public ::testing::TestWithParam<SubstrRow> {};

TEST_P(Substr, OfAbc)
{
    const ustring abc("abc");
    EXPECT_STREQ(abc.substr(GetParam().pos, GetParam().n).c_str(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Substr,
    ::testing::Values(SubstrRow{"AtLengthIsEmpty", 3, ustring::npos, ""},
                      SubstrRow{"ToTheEnd", 1, ustring::npos, "bc"},
                      SubstrRow{"CountBeyondEnd", 1, 10, "bc"},
                      SubstrRow{"Middle", 1, 1, "b"}, SubstrRow{"ZeroCount", 0, 0, ""},
                      SubstrRow{"Whole", 0, 3, "abc"}),
    [](const ::testing::TestParamInfo<SubstrRow>& info) { return info.param.name; });

TEST(OutOfRange, SubstrBeyondLengthThrowsWithItsName)
{
    const ustring abc("abc");
    try {
        abc.substr(4, ustring::npos);
        FAIL() << "substr(length() + 1) did not throw";
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "substr");
    }
}

TEST(OutOfRange, AssignEmptiesTheTargetAppendLeavesIt)
{
    const ustring src("abc");
    ustring target("old");
    EXPECT_THROW(target.assign(src, 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "");

    target = "old";
    EXPECT_THROW(target.assign(std::string("abc"), 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "");

    target = "old";
    EXPECT_THROW(target.append(src, 4, 1), std::out_of_range);
    EXPECT_THROW(target.append(std::string("abc"), 4, 1), std::out_of_range);
    EXPECT_THROW(target.assign(target, 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "old");
}

// ---- the UTF-16 cache ----

TEST(Cache, CopyTakesOnlyTheUtf8Text)
{
    UstringProbe a("abc");
    a.c_str_utf16();
    ASSERT_EQ(a.wdataLength(), 3u);
    const UstringProbe b(a);
    EXPECT_EQ(b.wdataLength(), 0u);
    EXPECT_STREQ(b.c_str(), "abc");
}

TEST(Cache, ChangingUtf8BytesEmptiesTheCacheButKeepsItsBuffer)
{
    UstringProbe s("abcdef");
    s.c_str_utf16();
    const unsigned short* buffer = s.rawWdata();
    s.append('g', 1);
    EXPECT_EQ(s.wdataLength(), 0u);
    EXPECT_EQ(s.rawWdata()[0], 0);
    EXPECT_EQ(s.rawWdata(), buffer);
    EXPECT_EQ(toU16(s.c_str_utf16()), u"abcdefg");
}

TEST(Cache, WriteThroughIndexKeepsTheStaleCacheUntilCleared)
{
    UstringProbe s("abc");
    EXPECT_EQ(toU16(s.c_str_utf16()), u"abc");
    s[0] = 'x';
    EXPECT_EQ(s[0], 'x');
    EXPECT_EQ(toU16(s.c_str_utf16()), u"abc");
    s.clear_wdata();
    EXPECT_EQ(toU16(s.c_str_utf16()), u"xbc");
}

TEST(Cache, ReplaceIsSeenByTheUtf16Text)
{
    UstringProbe s("a/b/c");
    s.c_str_utf16();
    s.replace('/', ':');
    EXPECT_STREQ(s.c_str(), "a:b:c");
    EXPECT_EQ(toU16(s.c_str_utf16()), u"a:b:c");
}

// ---- streams ----

TEST(Streams, WriteBytesAndReadOneWord)
{
    std::ostringstream out;
    out << ustring("h\xC3\xA9 ho");
    EXPECT_EQ(out.str(), "h\xC3\xA9 ho");

    std::istringstream in("  first second");
    ustring word("stale");
    in >> word;
    EXPECT_STREQ(word.c_str(), "first");
    in >> word;
    EXPECT_STREQ(word.c_str(), "second");
    in >> word;
    EXPECT_STREQ(word.c_str(), "");
}

}  // namespace
