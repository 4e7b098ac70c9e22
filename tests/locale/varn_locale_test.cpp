// Language selection: the locale table, the case rules, the map's contents, the system locale
// as a real child process sees it, and that every code has a compiled translation to load.

#include "varn-locale.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>

#include <iostream>
#include <string>

static void RegisterTranslationResources()
{
    Q_INIT_RESOURCE(texts);
}

namespace {

const char kPrintDefaultLanguage[] = "--print-default-language";

const QStringList kLanguageCodes = {"chs", "cht", "csy", "dan", "enu", "fre", "ger",
                                    "hun", "ita", "jpn", "krn", "nld", "nor", "plk",
                                    "ptb", "ptg", "rus", "spn", "sve", "trk"};

struct LocaleRow {
    const char* label;   // test name
    const char* locale;  // a locale name as QLocale spells it
    const char* code;
};

std::ostream& operator<<(std::ostream& os, const LocaleRow& row)
{
    return os << row.locale << " -> " << row.code;
}

// Locale names are lowered the way getDefaultLanguage lowers QLocale::name() before the lookup.
class LocaleTable : public ::testing::TestWithParam<LocaleRow> {};

TEST_P(LocaleTable, LowerCaseNameGivesCode)
{
    const LocaleRow& row = GetParam();
    EXPECT_EQ(VarnLocale::getInstance()->getLanguageByLocale(QString(row.locale).toLower()),
              row.code);
}

INSTANTIATE_TEST_SUITE_P(
    Locales, LocaleTable,
    ::testing::Values(LocaleRow{"fr_FR", "fr_FR", "fre"}, LocaleRow{"fr_CA", "fr_CA", "fre"},
                      LocaleRow{"de_AT", "de_AT", "ger"}, LocaleRow{"es_MX", "es_MX", "spn"},
                      LocaleRow{"en_US", "en_US", "enu"}, LocaleRow{"ja_JP", "ja_JP", "jpn"},
                      LocaleRow{"ko_KR", "ko_KR", "krn"}, LocaleRow{"it_IT", "it_IT", "ita"},
                      LocaleRow{"ru_RU", "ru_RU", "rus"}, LocaleRow{"da_DK", "da_DK", "dan"},
                      LocaleRow{"sv_SE", "sv_SE", "sve"}, LocaleRow{"nl_BE", "nl_BE", "nld"},
                      LocaleRow{"pl_PL", "pl_PL", "plk"}, LocaleRow{"hu_HU", "hu_HU", "hun"},
                      LocaleRow{"tr_TR", "tr_TR", "trk"}, LocaleRow{"cs_CZ", "cs_CZ", "csy"},
                      LocaleRow{"pt_BR", "pt_BR", "ptb"}, LocaleRow{"pt_PT", "pt_PT", "ptg"},
                      LocaleRow{"pt", "pt", "ptg"}, LocaleRow{"pt_AO", "pt_AO", "ptb"},
                      LocaleRow{"zh_CN", "zh_CN", "chs"}, LocaleRow{"zh_TW", "zh_TW", "cht"},
                      LocaleRow{"zh_HK", "zh_HK", "cht"}, LocaleRow{"zh_MO", "zh_MO", "cht"},
                      LocaleRow{"zh_SG", "zh_SG", "chs"}, LocaleRow{"zh", "zh", "chs"},
                      LocaleRow{"nb_NO", "nb_NO", "nor"}, LocaleRow{"nn_NO", "nn_NO", "nor"},
                      LocaleRow{"no", "no", "nor"}, LocaleRow{"de", "de", "ger"},
                      LocaleRow{"fi_FI", "fi_FI", "enu"}, LocaleRow{"C", "C", "enu"},
                      LocaleRow{"empty", "", "enu"}, LocaleRow{"ptx_BR", "ptx_BR", "enu"}),
    [](const ::testing::TestParamInfo<LocaleRow>& info) { return std::string(info.param.label); });

TEST(LocaleCase, UpperCaseNamesAreNotLowered)
{
    VarnLocale* locale = VarnLocale::getInstance();
    // Only getDefaultLanguage lowers the case; the rules themselves compare exactly.
    EXPECT_EQ(locale->getLanguageByLocale("zh_TW"), "chs");
    EXPECT_EQ(locale->getLanguageByLocale("pt_PT"), "ptb");
    EXPECT_EQ(locale->getLanguageByLocale("FR_fr"), "enu");
    EXPECT_EQ(locale->getChineseLanguage("zh_HK"), "chs");
    EXPECT_EQ(locale->getPortugueseLanguage("PT"), "ptb");
}

TEST(LocaleRules, RulesLookAtTheWholeName)
{
    VarnLocale* locale = VarnLocale::getInstance();
    EXPECT_EQ(locale->getPortugueseLanguage("pt_pt"), "ptg");
    EXPECT_EQ(locale->getPortugueseLanguage("pt_pt_x"), "ptb");
    EXPECT_EQ(locale->getChineseLanguage("zh_tw_x"), "chs");
    EXPECT_EQ(locale->getChineseLanguage("zh_mo"), "cht");
    // The language is the part before the first '_' only.
    EXPECT_EQ(locale->getLanguageByLocale("fr_"), "fre");
    EXPECT_EQ(locale->getLanguageByLocale("_fr"), "enu");
}

// Every code the selection can produce must name one of the 20 shipped translations, and the
// compiled-in resource for it must exist (a missing one means that language is not built).
TEST(LocaleCodes, EveryReachableCodeHasATranslationResource)
{
    VarnLocale* locale = VarnLocale::getInstance();
    QSet<QString> reachable;
    for (const QString& code : locale->languageMap())
        reachable.insert(code);
    for (const char* name : {"pt", "pt_br", "zh_tw", "zh_cn", "fi_fi"})
        reachable.insert(locale->getLanguageByLocale(name));

    QStringList sorted(reachable.begin(), reachable.end());
    sorted.sort();
    EXPECT_EQ(sorted.join(' ').toStdString(), kLanguageCodes.join(' ').toStdString());
    RegisterTranslationResources();
    for (const QString& code : reachable) {
        EXPECT_TRUE(QFile::exists(":/" + code + ".qm"))
            << "no compiled translation :/" << code.toStdString() << ".qm in resources 'texts'";
    }
}

// The map is process-wide state; CTest runs each case in a process of its own, and when the
// whole binary runs at once the entry added here changes nothing the other cases look at.
TEST(LocaleMap, HoldsEighteenEntriesAndAcceptsAnother)
{
    VarnLocale* locale = VarnLocale::getInstance();
    EXPECT_EQ(locale, VarnLocale::getInstance());
    const bool had_fi = locale->languageMap().contains("fi");
    if (!had_fi) {
        EXPECT_EQ(locale->languageMap().size(), 18);
        EXPECT_FALSE(locale->languageMap().contains("pt"));
        EXPECT_FALSE(locale->languageMap().contains("zh"));
    }
    locale->setLanguageMap("fi", "enu");
    EXPECT_EQ(locale->languageMap().size(), 19);
    EXPECT_EQ(locale->getLanguageByLocale("fi_fi"), "enu");

    locale->setLanguageMap("fi", "enu");  // replacing does not add
    EXPECT_EQ(locale->languageMap().size(), 19);
}

// QLocale::system() is fixed from the environment when the process starts, so the system
// locale is varied by running this binary again as a child with another LC_ALL.
struct SystemRow {
    const char* label;
    const char* lc_all;
    const char* code;
};

std::ostream& operator<<(std::ostream& os, const SystemRow& row)
{
    return os << "LC_ALL=" << row.lc_all << " -> " << row.code;
}

class SystemLocale : public ::testing::TestWithParam<SystemRow> {};

TEST_P(SystemLocale, ChildProcessPicksCodeFromEnvironment)
{
    const SystemRow& row = GetParam();
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const QString& name : env.keys()) {
        if (name == "LANG" || name == "LANGUAGE" || name.startsWith("LC_"))
            env.remove(name);
    }
    env.insert("LC_ALL", row.lc_all);

    QProcess child;
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), {kPrintDefaultLanguage});
    ASSERT_TRUE(child.waitForFinished(30000)) << child.errorString().toStdString();
    ASSERT_EQ(child.exitCode(), 0) << child.readAllStandardError().toStdString();
    EXPECT_EQ(child.readAllStandardOutput().trimmed().toStdString(), row.code);
}

INSTANTIATE_TEST_SUITE_P(
    Environment, SystemLocale,
    ::testing::Values(SystemRow{"fr_FR", "fr_FR.UTF-8", "fre"},
                      SystemRow{"pt_BR", "pt_BR.UTF-8", "ptb"},
                      SystemRow{"zh_TW", "zh_TW.UTF-8", "cht"},
                      SystemRow{"nb_NO", "nb_NO.UTF-8", "nor"}, SystemRow{"C", "C", "enu"}),
    [](const ::testing::TestParamInfo<SystemRow>& info) { return std::string(info.param.label); });

} // namespace

int main(int argc, char** argv)
{
    // Child mode for SystemLocale: report the code for this process's environment and stop.
    if (argc == 2 && std::string(argv[1]) == kPrintDefaultLanguage) {
        std::cout << VarnLocale::getInstance()->getDefaultLanguage().toStdString() << std::endl;
        return 0;
    }
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
