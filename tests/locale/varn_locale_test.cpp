#include "varn-locale.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <cstdio>

namespace {

const char kPrintDefaultLanguage[] = "--print-default-language";

struct Row { const char* locale; const char* code; };  // the locale names the case too
void PrintTo(const Row& row, std::ostream* os) { *os << row.locale << " -> " << row.code; }
const char* Name(const testing::TestParamInfo<Row>& row)
{ return *row.param.locale ? row.param.locale : "empty"; }

// Names are matched exactly as given (only getDefaultLanguage lowers them), hence zh_TW -> chs.
const Row kLocales[] = {
    {"fr_fr", "fre"}, {"fr_ca", "fre"}, {"de_at", "ger"}, {"de", "ger"},     {"es_mx", "spn"},
    {"en_us", "enu"}, {"ja_jp", "jpn"}, {"ko_kr", "krn"}, {"it_it", "ita"},  {"ru_ru", "rus"},
    {"da_dk", "dan"}, {"sv_se", "sve"}, {"nl_be", "nld"}, {"pl_pl", "plk"},  {"hu_hu", "hun"},
    {"tr_tr", "trk"}, {"cs_cz", "csy"}, {"pt_br", "ptb"}, {"pt_pt", "ptg"},  {"pt", "ptg"},
    {"pt_ao", "ptb"}, {"PT_PT", "enu"}, {"zh_cn", "chs"}, {"zh_tw", "cht"},  {"zh_hk", "cht"},
    {"zh_sg", "chs"}, {"zh_mo", "cht"}, {"zh", "chs"},    {"zh_TW", "chs"},  {"zh_tw_x", "chs"},
    {"nb_no", "nor"}, {"nn_no", "nor"}, {"no", "nor"},    {"fi_fi", "enu"},  {"C", "enu"},
    {"", "enu"},      {"fr_", "fre"},   {"_fr", "enu"},    {"frr_de", "enu"}};

class LocaleTable : public ::testing::TestWithParam<Row> {};

TEST_P(LocaleTable, GivesAShippedCode)
{
    const QString code = VarnLocale::getInstance()->getLanguageByLocale(GetParam().locale);
    EXPECT_EQ(code.toStdString(), GetParam().code);
    EXPECT_TRUE(QFile::exists(":/" + code + ".qm")) << "no resource for " << code.toStdString();
}
INSTANTIATE_TEST_SUITE_P(Locales, LocaleTable, ::testing::ValuesIn(kLocales), Name);

// The map is process-wide; the language added here is not one any other case looks up.
TEST(LocaleMap, HoldsEighteenEntriesAndAcceptsANineteenth)
{
    VarnLocale* locale = VarnLocale::getInstance();
    EXPECT_EQ(locale->languageMap().size(), 18);
    locale->setLanguageMap("xx", "fre");
    locale->setLanguageMap("xx", "ger");  // replacing does not add
    EXPECT_EQ(locale->languageMap().size(), 19);
    EXPECT_EQ(locale->getLanguageByLocale("xx_yy").toStdString(), "ger");
}

// QLocale::system() is fixed at process start, so this binary is run again with another LC_ALL.
class SystemLocale : public ::testing::TestWithParam<Row> {};

TEST_P(SystemLocale, ChildProcessPicksCodeFromEnvironment)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove("LANGUAGE");  // it would win over LC_ALL
    env.insert("LC_ALL", GetParam().locale);
    QProcess child;
    child.setProcessEnvironment(env);
    child.start(QCoreApplication::applicationFilePath(), {kPrintDefaultLanguage});
    ASSERT_TRUE(child.waitForFinished(30000) && child.exitCode() == 0)
        << child.errorString().toStdString() << child.readAllStandardError().toStdString();
    EXPECT_EQ(child.readAllStandardOutput().trimmed().toStdString(), GetParam().code);
}
INSTANTIATE_TEST_SUITE_P(Environment, SystemLocale, ::testing::Values(Row{"fr_FR", "fre"},
    Row{"pt_PT", "ptg"}, Row{"zh_TW", "cht"}, Row{"nb_NO", "nor"}, Row{"C", "enu"}), Name);

} // namespace

int main(int argc, char** argv)
{
    if (argc == 2 && qstrcmp(argv[1], kPrintDefaultLanguage) == 0)  // child mode of SystemLocale
        return std::printf("%s\n", qPrintable(VarnLocale::getInstance()->getDefaultLanguage())) < 0;
    QCoreApplication app(argc, argv);
    Q_INIT_RESOURCE(texts);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
