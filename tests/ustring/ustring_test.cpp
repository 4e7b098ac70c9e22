// ustring: the growth rule, self-reference, ranges, the UTF-16 cache, searches, order, ICU.
#include "ustring/ustring.h"

#include <gmock/gmock.h>

#include <cstring>
#include <sstream>
#include <stdexcept>

namespace {

constexpr size_t npos = ustring::npos;

// Sees the buffer size and the cache length, which callers cannot.
struct Probe : ustring {
    using ustring::ustring;
    explicit Probe(ustring&& s) { swap(s); }  // keeps the cache of a normalization result
    size_t cap() const { return data_capacity; }
    size_t wlen() const { return wdata_length; }
};

const unsigned short* U(const char16_t* s) { return reinterpret_cast<const unsigned short*>(s); }
std::u16string U16(const unsigned short* s) { return reinterpret_cast<const char16_t*>(s); }

TEST(Ustring, GrowsToExactlyTheLastNeedCopiesItselfSafelyAndStaysInRange) {
    Probe s{ustring()}, t(std::string(100, 'a'));
    for (size_t n = 1; n < 40; ++n) {
        s.append('x', 1);
        ASSERT_EQ(s.cap(), n < 4 ? 4u : n + 1) << "even the empty text owns 4 bytes";
    }
    t.assign(std::string(49, 'b'));
    EXPECT_EQ(t.cap(), 101u) << "a need of 50 is half of 101: kept";
    t.assign("x");
    EXPECT_EQ(t.cap(), 2u);
    ustring x("abc"), y(std::string(50, 'q'));
    x += x;
    y.append(y.c_str());  // the buffer moves while its own bytes are copied
    EXPECT_EQ(y, ustring(std::string(100, 'q')));
    EXPECT_STREQ(x.assign(x, 2, 3).append(x, 1, npos).c_str(), "cabab");
    EXPECT_STREQ(x.assign(x.c_str(), 2).c_str(), "ca");
    // Sources stop at their terminator and stay in range.
    ustring s2, target("old");
    EXPECT_STREQ(s2.append("abc", 10).append("defg", 2).append('z', 2).c_str(), "abcdezz");
    EXPECT_STREQ((s2.assign(std::string("hello world"), 6, 3) + '/' + U(u"\u00e9")).c_str(), "wor/\xC3\xA9");
    EXPECT_STREQ(s2.c_str(), "wor") << "operator+ builds a copy";
    std::istringstream words(" one\t");  // a word, then nothing: emptied
    words >> s2;
    EXPECT_TRUE(s2 == ustring("one") && !(words >> s2) && s2.empty());
    const ustring abc("abc");
    EXPECT_TRUE(abc.substr(3).empty() && abc.substr(1, 10) == ustring("bc"));
    EXPECT_THROW(abc.substr(4), std::out_of_range);
    EXPECT_THROW(target.append(abc, 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "old");
    EXPECT_THROW(target.assign(abc, 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "") << "assign empties the target first";
}

TEST(Ustring, EveryChangeOfTheBytesInvalidatesTheUtf16Text) {
    Probe s("h\xC3\xA9");
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9");
    s += "!?";
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9!?");
    s.replace('!', '?');
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9??");
    s.trim("?");
    EXPECT_EQ(U16(s.c_str_utf16()), u"h\u00e9") << "trimmed";
    s.assign(U(u"\u00e9t\u00e9"));
    EXPECT_TRUE(s.wlen() == 3 && std::strcmp(s.c_str(), "\xC3\xA9t\xC3\xA9") == 0) << "both current";
    // UTF-16 appends start from the cache made of the UTF-8 text.
    s.assign("caf").append(U(u"\u00e9 au lait"), 2).append(static_cast<unsigned short>('!'), 2) += U(u"\u00df");
    EXPECT_STREQ(s.c_str(), "caf\xC3\xA9 !!\xC3\x9F");
    EXPECT_STREQ(s.assign(s.c_str_utf16(), 2).c_str(), "ca");
    ustring fresh;  // a new text's cache holds nothing yet
    EXPECT_TRUE(*fresh.c_str_utf16() == 0 && fresh.append(static_cast<unsigned short>('x'), 1) == ustring("x"));
    ustring t("\t\n x y\r\n");
    t.trim(" \t\r\n"), t.ltrim(ustring("x")), t.rtrim(ustring(""));
    EXPECT_STREQ(t.c_str(), " y");
    t.ltrim("y ");
    EXPECT_TRUE(t.empty() && t.c_str()[0] == 0);
}

template <typename Arg> size_t Search(char op, const ustring& t, const Arg& a, size_t p) {
    switch (op) {
    case 'f': return t.find(a, p);
    case 'r': return t.rfind(a, p);
    case 'o': return t.find_first_of(a, p);
    case 'n': return t.find_first_not_of(a, p);
    case 'l': return t.find_last_of(a, p);
    default: return t.find_last_not_of(a, p);
    }
}

// f find, r rfind, o/n find_first_(not_)of, l/L find_last_(not_)of; every argument form
// agrees, and a char form exists for at most one byte (0 = empty argument).
TEST(Ustring, SearchesAgreeInEveryArgumentForm) {
    const struct { char op; const char *text, *arg; size_t pos, expected; } rows[] = {
        {'f', "abcbc", "bc", 2, 3}, {'f', "abc", "", 1, 1}, {'f', "abc", "", 3, npos},
        {'r', "abc", "", npos, 2}, {'r', "", "", npos, npos}, {'r', "abcbc", "bc", 2, 1},
        {'r', "abcbc", "c", 99, 4}, {'o', "abcbc", "c", 3, 4}, {'o', "ab\xC3\xA9", "\xA9\xC3", 0, 2},
        {'n', "abc", "", 2, 2}, {'n', "abba c", "ab", 0, 4}, {'l', "abcbc", "b", 2, 1},
        {'l', "abc", "xa", npos, 0}, {'L', "abcbc", "", 2, 2}, {'L', "abc", "abc", npos, npos},
        {'l', "abcbc", "c", npos, 4}, {'f', "abc", "c", 2, 2}, {'f', "abc", "c", 3, npos}, {'r', "abc", "c", 3, 2},
        {'o', "abc", "c", 3, npos}, {'n', "abc", "x", 3, npos}, {'l', "abc", "c", 3, 2}, {'L', "abc", "x", 3, 2},
        {'l', "abc", "a", 0, 0}, {'L', "abc", "b", 0, 0}, {'r', "abc", "a", 0, 0}};  // from either end
    for (const auto& r : rows) {
        SCOPED_TRACE(std::string(1, r.op) + " in '" + r.text + "' of '" + r.arg + "'");
        const ustring t(r.text);
        EXPECT_EQ(Search(r.op, t, r.arg, r.pos), r.expected);
        EXPECT_EQ(Search(r.op, t, std::string(r.arg), r.pos), r.expected);
        EXPECT_EQ(Search(r.op, t, ustring(r.arg), r.pos), r.expected);
        EXPECT_TRUE(std::strlen(r.arg) > 1 || Search(r.op, t, r.arg[0], r.pos) == r.expected) << "char";
    }
}

// Unsigned bytes up to the first difference or the terminator, an embedded 0 included.
TEST(Ustring, OrderIsTheFirstByteDifference) {
    const struct { const char *a, *b; size_t n; bool fold; int expected; } rows[] = {
        {"ab", "abc", npos, false, -'c'}, {"abc", "ab", npos, false, 'c'},
        {"\xC3\xA9", "e", npos, false, 0xC3 - 'e'}, {"abcd", "abxy", 3, false, 'c' - 'x'},
        {"abcd", "abxy", 2, false, 0}, {"a", "b", 0, false, 0}, {"ab", "ab", 3, false, 0},
        {"ab", "abc", 3, false, -'c'}, {"ABC", "abc", npos, true, 0},
        {"Z", "[", npos, true, 'z' - '['}, {"Ab", "aBc", npos, true, -'c'},
        {"\xC3\x89", "\xC3\xA9", npos, true, 0x89 - 0xA9}};  // only ASCII letters fold
    for (const auto& r : rows) {
        const ustring a(r.a), b(r.b);
        const int got = r.fold ? ustring::compare(a, b, true) : r.n == npos ? a.compare(b) : a.compare(b, r.n);
        EXPECT_EQ(got, r.expected) << r.a << " vs " << r.b << " n=" << r.n;
    }
    ustring x("ab"), y("ab"), big_x("ab"), a("a");
    x.append('\0', 1) += "x", y.append('\0', 1) += "y", big_x.append('\0', 1) += "X";
    ASSERT_EQ(x.length(), 4u);
    EXPECT_TRUE(x.compare(y) == 0 && x.compare(ustring("ab")) == 0 && y.compare(x, 4) == 0);
    EXPECT_TRUE(ustring::compare(big_x, y, true) == 0 && x == y && !(x != ustring("ab")));
    EXPECT_TRUE(ustring("ABC") < ustring("abc") && ustring("b") > ustring("a") && a <= a && a >= a);
    EXPECT_FALSE(a < a || a > a || ustring("b") < ustring("a") || ustring("a") > ustring("b"));
}

TEST(Ustring, IcuNormalizesAndItsFailuresWarnAndLeaveTheDocumentedState) {
    const ustring composed("\xC3\xA9");
    const Probe nfd(ustring::normalize(composed, ustring::NFD));
    EXPECT_TRUE(nfd.wlen() == 2 && std::strcmp(nfd.c_str(), "e\xCC\x81") == 0) << "both current";
    EXPECT_EQ(nfd.normalize(ustring::NFC), composed);
    EXPECT_TRUE(ustring::is_valid(ustring("")) && ustring::is_valid(ustring("\xF0\x9F\x98\x80")));
    EXPECT_FALSE(ustring::is_valid(ustring("\xFF")) || ustring::is_valid(ustring("a\xC3")));
    Probe s("\xFF"), k("keep me");
    const std::string line = " error code 10 at line [0-9]+\n";
    ::testing::internal::CaptureStderr();
    EXPECT_TRUE(s.convert_from_data() == -1 && k.convert_from_data() == 0);
    EXPECT_TRUE(s.wlen() == 0 && std::strcmp(s.c_str(), "\xFF") == 0);
    k.append(static_cast<unsigned short>(0xD800), 1);  // an unpaired surrogate
    EXPECT_TRUE(k.empty() && k.c_str()[0] == 0 && k.wlen() == 0);
    EXPECT_TRUE(ustring::normalize(ustring(), ustring::NFC).empty());
    EXPECT_TRUE(ustring::normalize(ustring("a\xFF"), ustring::NFC).empty());
    EXPECT_TRUE(ustring::normalize(ustring("x"), ustring::normalization_form(7)).empty());
    EXPECT_THAT(::testing::internal::GetCapturedStderr(), ::testing::MatchesRegex(
        "Warning: u_strFromUTF8:" + line + "Warning: u_strToUTF8:" + line + "(Warning: u_strFromUTF8:"
        + line + ")+Warning: unorm2_getInstance: error code 1 at line [0-9]+\n"));
}

}  // namespace
