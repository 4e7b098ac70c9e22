// Conversions between UTF-8 and UTF-16, validity, normalization and the warning lines.
#include "ustring_probe.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

using ::testing::MatchesRegex;

// ICU's U_INVALID_CHAR_FOUND, the status of an ill-formed sequence in either direction.
constexpr int kInvalidChar = 10;

std::string warningPattern(const char* function, int code)
{
    return std::string("Warning: ") + function + ": error code " + std::to_string(code) +
           " at line [0-9]+\n";
}

// ---- conversions ----

TEST(Conversion, Utf16IsMadeOnDemandAndCountsUnits)
{
    UstringProbe s("h\xC3\xA9\xF0\x9F\x98\x80");  // h, U+00E9, U+1F600
    EXPECT_EQ(s.length(), 7u);
    EXPECT_EQ(s.wdataLength(), 0u);
    EXPECT_EQ(toU16(s.c_str_utf16()), u"h\u00e9\U0001F600");
    EXPECT_EQ(s.wdataLength(), 4u);
    EXPECT_EQ(s.wdataCapacity(), 5u);
}

TEST(Conversion, Utf16InputLeavesBothEncodingsCurrent)
{
    UstringProbe s(units(u"\u00e9t\u00e9"));
    EXPECT_STREQ(s.c_str(), "\xC3\xA9t\xC3\xA9");
    EXPECT_EQ(s.length(), 5u);
    EXPECT_EQ(s.wdataLength(), 3u);
    EXPECT_EQ(s.dataCapacity(), 6u);
}

TEST(Conversion, Utf16AppendFillsTheCacheFirst)
{
    UstringProbe s("caf");
    s.append(units(u"\u00e9 au lait"), 2);
    EXPECT_STREQ(s.c_str(), "caf\xC3\xA9 ");
    s.append(static_cast<unsigned short>(0x21), 2);
    EXPECT_STREQ(s.c_str(), "caf\xC3\xA9 !!");
    s += units(u"\u00df");
    s += static_cast<unsigned short>(0x3F);
    EXPECT_STREQ(s.c_str(), "caf\xC3\xA9 !!\xC3\x9F?");
    EXPECT_EQ(toU16(s.c_str_utf16()), u"caf\u00e9 !!\u00df?");
}

TEST(Conversion, Utf16AssignmentForms)
{
    UstringProbe s("old");
    s = units(u"\u00e0");
    EXPECT_STREQ(s.c_str(), "\xC3\xA0");
    s = static_cast<unsigned short>(0x42);
    EXPECT_STREQ(s.c_str(), "B");
    s.assign(static_cast<unsigned short>(0xE9), 2);
    EXPECT_STREQ(s.c_str(), "\xC3\xA9\xC3\xA9");
    s.assign(units(u"xyz"), 2);
    EXPECT_STREQ(s.c_str(), "xy");
}

TEST(Conversion, AssignOwnUtf16PointerCutsAndRegenerates)
{
    UstringProbe s("\xC3\xA9t\xC3\xA9");
    s.assign(s.c_str_utf16(), 2);
    EXPECT_STREQ(s.c_str(), "\xC3\xA9t");
    EXPECT_EQ(s.length(), 3u);
    s.assign(s.c_str_utf16(), 5);
    EXPECT_STREQ(s.c_str(), "\xC3\xA9t");
    s.assign(s.c_str_utf16());
    EXPECT_STREQ(s.c_str(), "\xC3\xA9t");
}

TEST(Conversion, AppendingOwnUtf16Doubles)
{
    UstringProbe s("\xC3\xA9x");
    s.append(s.c_str_utf16());
    EXPECT_STREQ(s.c_str(), "\xC3\xA9x\xC3\xA9x");
}

TEST(Conversion, InvalidUtf8KeepsTheBytesAndWarns)
{
    UstringProbe s("\xFF");
    ::testing::internal::CaptureStderr();
    EXPECT_EQ(s.convert_from_data(), -1);
    const std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_THAT(err, MatchesRegex(warningPattern("u_strFromUTF8", kInvalidChar)));
    EXPECT_EQ(s.wdataLength(), 0u);
    EXPECT_EQ(s.rawWdata()[0], 0);
    EXPECT_STREQ(s.c_str(), "\xFF");
    EXPECT_EQ(s.length(), 1u);
}

TEST(Conversion, UnpairedSurrogateEmptiesTheStringAndWarns)
{
    UstringProbe s("keep me");
    ::testing::internal::CaptureStderr();
    s.append(static_cast<unsigned short>(0xD800), 1);
    const std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_THAT(err, MatchesRegex(warningPattern("u_strToUTF8", kInvalidChar)));
    EXPECT_EQ(s.length(), 0u);
    EXPECT_STREQ(s.c_str(), "");
    EXPECT_EQ(s.wdataLength(), 0u);
    EXPECT_EQ(s.rawWdata()[0], 0);
}

// ---- validity ----

struct ValidityRow {
    const char* name;
    const char* text;
    bool valid;
};

// A row prints as its name, which keeps the test listing stable.
void PrintTo(const ValidityRow& row, std::ostream* os) { *os << row.name; }

class Validity : public ::testing::TestWithParam<ValidityRow> {};

TEST_P(Validity, WellFormedUtf8)
{
    EXPECT_EQ(ustring::is_valid(ustring(GetParam().text)), GetParam().valid);
}

INSTANTIATE_TEST_SUITE_P(
    Table, Validity,
    ::testing::Values(ValidityRow{"Empty", "", true}, ValidityRow{"Ascii", "abc", true},
                      ValidityRow{"TwoByte", "\xC3\xA9", true},
                      ValidityRow{"FourByte", "\xF0\x9F\x98\x80", true},
                      ValidityRow{"LoneFF", "\xFF", false},
                      ValidityRow{"Truncated", "a\xC3", false},
                      ValidityRow{"Overlong", "\xC0\xAF", false},
                      ValidityRow{"EncodedSurrogate", "\xED\xA0\x80", false},
                      ValidityRow{"StrayContinuation", "\x80z", false}),
    [](const ::testing::TestParamInfo<ValidityRow>& info) { return info.param.name; });

// ---- normalization ----

TEST(Normalization, DecomposesAndRecomposesEAcute)
{
    const ustring composed("\xC3\xA9");
    const UstringProbe nfd(ustring::normalize(composed, ustring::NFD));
    EXPECT_STREQ(nfd.c_str(), "e\xCC\x81");
    const ustring nfc = nfd.normalize(ustring::NFC);
    EXPECT_STREQ(nfc.c_str(), "\xC3\xA9");
    EXPECT_EQ(nfc, composed);
}

TEST(Normalization, ResultHasBothEncodingsCurrent)
{
    // Hangul syllable U+D55C decomposes into three jamo.
    const ustring source("\xED\x95\x9C");
    const UstringProbe nfd(ustring::normalize(source, ustring::NFD));
    EXPECT_EQ(nfd.wdataLength(), 3u);
    EXPECT_EQ(toU16(nfd.c_str_utf16()), u"\u1112\u1161\u11ab");
    EXPECT_EQ(nfd.length(), 9u);
    EXPECT_EQ(ustring::normalize(nfd, ustring::NFC), source);
}

TEST(Normalization, EmptyTextStaysEmptyWithoutWarnings)
{
    ::testing::internal::CaptureStderr();
    const ustring r = ustring::normalize(ustring(), ustring::NFC);
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(r.empty());
}

TEST(Normalization, InvalidUtf8GivesAnEmptyResult)
{
    ::testing::internal::CaptureStderr();
    const ustring r = ustring::normalize(ustring("a\xFF"), ustring::NFC);
    const std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_TRUE(r.empty());
    EXPECT_THAT(err, ::testing::StartsWith("Warning: u_strFromUTF8: error code 10 at line "));
}

TEST(Normalization, UnknownFormWarnsAndGivesAnEmptyResult)
{
    ::testing::internal::CaptureStderr();
    const ustring r =
        ustring::normalize(ustring("x"), static_cast<ustring::normalization_form>(7));
    const std::string err = ::testing::internal::GetCapturedStderr();
    EXPECT_TRUE(r.empty());
    // 1 is ICU's U_ILLEGAL_ARGUMENT_ERROR.
    EXPECT_THAT(err, MatchesRegex(warningPattern("unorm2_getInstance", 1)));
}

}  // namespace
