#include <climits>
#include <string>

#include "config/config.h"
#include "temp_dir.h"

namespace {

struct IntRow {
    const char* name;
    const char* value;
    int expected;
};

class ConfigGetInt : public ::testing::TestWithParam<IntRow> {};

TEST_P(ConfigGetInt, ReadsLeadingDecimal) {
    Config config;
    config[ustring("n")] = ustring(GetParam().value);
    EXPECT_EQ(config.get_int(ustring("n")), GetParam().expected)
        << "value \"" << GetParam().value << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Values, ConfigGetInt,
    ::testing::Values(IntRow{"Number", "42", 42}, IntRow{"TrailingText", "12abc", 12},
                      IntRow{"NoNumber", "abc", 0}, IntRow{"Negative", "-3", -3},
                      IntRow{"PlusSign", "+7", 7}, IntRow{"Empty", "", 0},
                      IntRow{"LeadingBlanks", "  5", 5},
                      IntRow{"ClampedHigh", "99999999999", INT_MAX},
                      IntRow{"ClampedLow", "-99999999999", INT_MIN}),
    [](const ::testing::TestParamInfo<IntRow>& info) { return std::string(info.param.name); });

TEST(ConfigGetIntMissing, GivesZeroAndInsertsTheKeyEmpty) {
    Config config;
    EXPECT_EQ(config.get_int(ustring("pid")), 0);
    ASSERT_EQ(config.count(ustring("pid")), 1u);
    EXPECT_TRUE(config[ustring("pid")].empty());
}

using ConfigPidFile = skelda_test::TempDirTest;

TEST_F(ConfigPidFile, PidFromAKeyValueFile) {
    skelda_test::WriteFile(path("ui.pid"), "# written by the client\npid=4242\n");
    Config config;
    ASSERT_EQ(config.read(ustring(path("ui.pid").c_str())), 0);
    EXPECT_EQ(config.get_int(ustring("pid")), 4242);
}

}  // namespace
