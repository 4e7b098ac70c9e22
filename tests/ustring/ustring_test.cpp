// ustring: the growth rule, self-reference, ranges, the UTF-16 cache, searches, order, ICU.
#include "ustring/ustring.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>
#include <stdexcept>
#include <string>

namespace {

constexpr size_t npos = ustring::npos;
const auto kRowName = [](const auto& info) { return std::string(info.param.name); };

// Sees the buffer sizes and the cache length, which callers cannot.
struct Probe : ustring {
    using ustring::ustring;
    using ustring::operator=;
    explicit Probe(ustring&& s) { swap(s); }  // keeps the cache of a normalization result
    size_t cap() const { return data_capacity; }
    size_t wlen() const { return wdata_length; }
};

const unsigned short* U(const char16_t* s) { return reinterpret_cast<const unsigned short*>(s); }
std::u16string U16(const unsigned short* s) { return reinterpret_cast<const char16_t*>(s); }

TEST(Growth, ExactlyTheLastNeedWithoutGeometricGrowth) {
    Probe s{ustring()};
    for (size_t n = 1; n < 40; ++n) {
        s.append('x', 1);
        ASSERT_EQ(s.cap(), n < 4 ? 4u : n + 1) << "even the empty text owns 4 bytes";
    }
    Probe t(std::string(100, 'a'));
    t.assign(std::string(49, 'b'));
    EXPECT_EQ(t.cap(), 101u) << "a need of 50 is half of 101: kept";
    t = "x";
    EXPECT_EQ(t.cap(), 2u) << "short text assigned to a long one";
}

TEST(SelfReference, AppendsAndAssignsACopyOfItself) {
    ustring x("abc");
    x += x;
    EXPECT_STREQ(x.c_str(), "abcabc");
    ustring y(std::string(50, 'q'));
    y.append(y.c_str());  // the buffer moves while its own bytes are copied
    EXPECT_EQ(y, ustring(std::string(100, 'q')));
    x.assign(x, 2, 3);
    EXPECT_STREQ(x.c_str(), "cab");
    x.append(x, 1, npos);
    EXPECT_STREQ(x.c_str(), "cabab");
    x.assign(x.c_str(), 2);
    EXPECT_STREQ(x.c_str(), "ca");
}

TEST(Sources, StopAtTheirTerminatorAndStayInRange) {
    ustring s;
    s.append("abc", 10).append("defg", 2).append('z', 2);
    EXPECT_STREQ(s.c_str(), "abcdezz");
    s.assign(std::string("hello world"), 6, 3);
    EXPECT_STREQ((s + "/" + '/' + U(u"\u00e9") + static_cast<unsigned short>('A')).c_str(),
                 "wor//\xC3\xA9" "A");
    EXPECT_STREQ(s.c_str(), "wor") << "operator+ builds a copy";
    const ustring abc("abc");
    EXPECT_STREQ(abc.substr(3).c_str(), "");
    EXPECT_STREQ(abc.substr(1, 10).c_str(), "bc");
    EXPECT_THROW(abc.substr(4), std::out_of_range);
    ustring target("old");
    EXPECT_THROW(target.assign(abc, 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "") << "assign empties the target first";
    target = "old";
    EXPECT_THROW(target.append(abc, 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "old");
}

TEST(Cache, EveryChangeOfTheBytesInvalidatesTheUtf16Text) {
    Probe s("h\xC3\xA9");
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9");
    s += "!";
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9!");
    s.replace('!', '?');
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9?");
    s.trim("?");
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9");
    s = U(u"\u00e9t\u00e9");
    EXPECT_STREQ(s.c_str(), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(s.wlen(), 3u) << "UTF-16 input leaves both encodings current";
    s.assign("caf");  // UTF-16 appends start from the cache made of the UTF-8 text
    s.append(U(u"\u00e9 au lait"), 2);
    s.append(static_cast<unsigned short>('!'), 2);
    s += U(u"\u00df");
    EXPECT_STREQ(s.c_str(), "caf\xC3\xA9 !!\xC3\x9F");
    s.assign(s.c_str_utf16(), 2);
    EXPECT_STREQ(s.c_str(), "ca");
}

enum class Op { Find, Rfind, FirstOf, FirstNotOf, LastOf, LastNotOf };
struct SearchRow {
    const char *name;
    Op op;
    const char *text, *arg;
    size_t pos, expected;
};
class Search : public ::testing::TestWithParam<SearchRow> {
protected:
    template <typename Arg>
    size_t run(const ustring& t, const Arg& a) const {
        const size_t p = GetParam().pos;
        switch (GetParam().op) {
        case Op::Find: return t.find(a, p);
        case Op::Rfind: return t.rfind(a, p);
        case Op::FirstOf: return t.find_first_of(a, p);
        case Op::FirstNotOf: return t.find_first_not_of(a, p);
        case Op::LastOf: return t.find_last_of(a, p);
        case Op::LastNotOf: return t.find_last_not_of(a, p);
        }
        return 0;
    }
};

// Every argument form agrees; a char form exists for at most one byte (0 = empty argument).
TEST_P(Search, AllArgumentFormsAgree) {
    const SearchRow& r = GetParam();
    const ustring text(r.text);
    EXPECT_EQ(run(text, r.arg), r.expected) << "const char*";
    EXPECT_EQ(run(text, std::string(r.arg)), r.expected) << "std::string";
    EXPECT_EQ(run(text, ustring(r.arg)), r.expected) << "ustring";
    if (std::strlen(r.arg) <= 1) {
        EXPECT_EQ(run(text, r.arg[0]), r.expected) << "char";
    }
}

INSTANTIATE_TEST_SUITE_P(Table, Search, ::testing::Values(
    SearchRow{"FindFromPos", Op::Find, "abcbc", "bc", 2, 3},
    SearchRow{"FindEmptyGivesPos", Op::Find, "abc", "", 1, 1},
    SearchRow{"FindAtLengthIsNpos", Op::Find, "abc", "", 3, npos},
    SearchRow{"RfindEmptyGivesLastIndex", Op::Rfind, "abc", "", npos, 2},
    SearchRow{"RfindEmptyInEmptyText", Op::Rfind, "", "", npos, npos},
    SearchRow{"RfindBeforePos", Op::Rfind, "abcbc", "bc", 2, 1},
    SearchRow{"RfindPosBeyondLength", Op::Rfind, "abcbc", "c", 99, 4},
    SearchRow{"FirstOfByteFromPos", Op::FirstOf, "abcbc", "c", 3, 4},
    SearchRow{"FirstOfHighBytes", Op::FirstOf, "ab\xC3\xA9", "\xA9\xC3", 0, 2},
    SearchRow{"FirstNotOfEmptySetGivesPos", Op::FirstNotOf, "abc", "", 2, 2},
    SearchRow{"FirstNotOfSkipsSet", Op::FirstNotOf, "abba c", "ab", 0, 4},
    SearchRow{"LastOfFromPos", Op::LastOf, "abcbc", "b", 2, 1},
    SearchRow{"LastOfIndexZero", Op::LastOf, "abc", "xa", npos, 0},
    SearchRow{"LastNotOfEmptySetFromPos", Op::LastNotOf, "abcbc", "", 2, 2},
    SearchRow{"LastNotOfAllInSet", Op::LastNotOf, "abc", "abc", npos, npos}), kRowName);

TEST(Trim, RemovesSetBytesFromTheEnds) {
    ustring s("\t\n x y\r\n");
    s.trim(" \t\r\n");
    EXPECT_STREQ(s.c_str(), "x y");
    s.ltrim(ustring("x"));
    s.rtrim(ustring(""));
    EXPECT_STREQ(s.c_str(), " y");
    s.ltrim("y ");
    EXPECT_TRUE(s.empty() && s.c_str()[0] == 0);
}

TEST(Order, UnsignedBytesUpToTheShorterTerminator) {
    const auto cmp = [](const char* a, const char* b) { return ustring(a).compare(ustring(b)); };
    EXPECT_TRUE(cmp("ab", "abc") == -'c' && cmp("abc", "ab") == 'c');
    EXPECT_EQ(cmp("\xC3\xA9", "e"), 0xC3 - 'e');
    EXPECT_TRUE(ustring("ABC") < ustring("abc") && ustring("b") > ustring("a"));
    EXPECT_EQ(ustring("abcd").compare(ustring("abxy"), 3), 'c' - 'x');
    const std::string base(2100, 'm');
    for (size_t at : {0u, 15u, 16u, 1023u, 1024u, 2099u}) {
        std::string other = base;
        other[at] = 'z';
        EXPECT_EQ(ustring(base).compare(ustring(other)), 'm' - 'z') << "difference at " << at;
        EXPECT_EQ(ustring(base).compare(ustring(other), at), 0) << "prefix before " << at;
    }
    EXPECT_EQ(ustring(base + "\xFF").compare(ustring(base)), 0xFF);
    EXPECT_EQ(ustring::compare(ustring("Z"), ustring("["), true), 'z' - '[');
    EXPECT_EQ(ustring::compare(ustring("\xC3\x89"), ustring("\xC3\xA9"), true), 0x89 - 0xA9)
        << "bytes from 0x80 up are not folded";
}

TEST(Icu, LoneFFKeepsTheBytesAndWarns) {
    Probe s("\xFF");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(s.convert_from_data(), -1);
    EXPECT_THAT(::testing::internal::GetCapturedStderr(),
                ::testing::MatchesRegex("Warning: u_strFromUTF8: error code 10 at line [0-9]+\n"));
    EXPECT_EQ(s.wlen(), 0u);
    EXPECT_STREQ(s.c_str(), "\xFF");
    for (const char* ok : {"", "\xC3\xA9", "\xF0\x9F\x98\x80"})
        EXPECT_TRUE(ustring::is_valid(ustring(ok))) << ok;
    for (const char* bad : {"\xFF", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\x80z"})
        EXPECT_FALSE(ustring::is_valid(ustring(bad))) << bad;
}

TEST(Icu, UnpairedSurrogateEmptiesTheString) {
    Probe s("keep me");
    ::testing::internal::CaptureStderr();
    s.append(static_cast<unsigned short>(0xD800), 1);
    EXPECT_THAT(::testing::internal::GetCapturedStderr(),
                ::testing::MatchesRegex("Warning: u_strToUTF8: error code 10 at line [0-9]+\n"));
    EXPECT_TRUE(s.empty() && s.c_str()[0] == 0 && s.wlen() == 0);
}

TEST(Icu, NormalizesEAcuteBothWaysAndFailsEmpty) {
    const ustring composed("\xC3\xA9");
    const Probe nfd(ustring::normalize(composed, ustring::NFD));
    EXPECT_STREQ(nfd.c_str(), "e\xCC\x81");
    EXPECT_EQ(nfd.wlen(), 2u) << "the result has both encodings current";
    EXPECT_EQ(nfd.normalize(ustring::NFC), composed);
    ::testing::internal::CaptureStderr();
    EXPECT_TRUE(ustring::normalize(ustring(), ustring::NFC).empty());
    EXPECT_TRUE(ustring::normalize(ustring("a\xFF"), ustring::NFC).empty());
    EXPECT_TRUE(ustring::normalize(ustring("x"), ustring::normalization_form(7)).empty());
    EXPECT_THAT(::testing::internal::GetCapturedStderr(),
                ::testing::MatchesRegex("(Warning: u_strFromUTF8: error code 10 at line [0-9]+\n)+"
                             "Warning: unorm2_getInstance: error code 1 at line [0-9]+\n"));
}

}  // namespace
