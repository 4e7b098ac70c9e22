// The string table (LoadStr with and without a translation, key lookup) and the choice of a
// language among the compiled translations of the resource collection "texts".

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTranslator>

#include "str-table.h"
#include "varn-locale.h"

namespace {

const int kSslError = 153;  // its English text and its French translation hold backslash-n
TEST(StrTable, GivesEnglishOrTheCompiledFrenchDecodedWithLineBreaksAndFindsKeysInAnyCase) {
    EXPECT_EQ(StrTable::LoadStr(57), "Skelda Backup is initializing...");
    EXPECT_EQ(StrTable::LoadStr(203), QString("Taking snapshots") + QChar(0x2026));
    EXPECT_EQ(StrTable::LoadStr(kSslError),
              "The certificate of %1 is not trusted.\nDo you want to continue anyway?");
    QTranslator french;
    ASSERT_TRUE(french.load(":/fre.qm") && QCoreApplication::installTranslator(&french));
    EXPECT_EQ(StrTable::LoadStr(57), "Initialisation de Skelda Backup...");
    EXPECT_EQ(StrTable::LoadStr(kSslError),  // the literal is UTF-8
              "Le certificat de %1 n'est pas approuvé.\nVoulez-vous continuer quand même ?");
    QCoreApplication::removeTranslator(&french);
    // Keys are found ignoring ASCII case.
    const struct { const char* key; int id; } rows[] = {
        {"APP_NAME", 13}, {"app_name", 13}, {"App_Name", 13}, {"wizard_welcome_slogan", 311}, {"", -1},
        {"accessible_add_filename_button", 0}, {"no_such_key", -1}, {"app_nam", -1}, {"app_name ", -1},
        {"Skelda Backup", -1}};
    for (const auto& r : rows)
        EXPECT_EQ(StrTable::LookupStrID(r.key), r.id) << '"' << r.key << '"';
}

// Names are matched exactly as given (only getDefaultLanguage lowers them), hence zh_TW -> chs.
TEST(Language, ByLocaleIsAShippedCodeAndTheMapTakesANineteenthEntry) {
    const struct { const char *locale, *code; } rows[] = {
        {"fr_fr", "fre"}, {"fr_ca", "fre"}, {"de_at", "ger"}, {"de", "ger"}, {"es_mx", "spn"}, {"en_us", "enu"},
        {"ja_jp", "jpn"}, {"ko_kr", "krn"}, {"it_it", "ita"}, {"ru_ru", "rus"}, {"da_dk", "dan"}, {"sv_se", "sve"},
        {"nl_be", "nld"}, {"pl_pl", "plk"}, {"hu_hu", "hun"}, {"tr_tr", "trk"}, {"cs_cz", "csy"}, {"pt_br", "ptb"},
        {"pt_pt", "ptg"}, {"pt", "ptg"}, {"pt_ao", "ptb"}, {"PT_PT", "enu"}, {"zh_cn", "chs"}, {"zh_tw", "cht"},
        {"zh_hk", "cht"}, {"zh_sg", "chs"}, {"zh_mo", "cht"}, {"zh", "chs"}, {"zh_TW", "chs"}, {"zh_tw_x", "chs"},
        {"nb_no", "nor"}, {"nn_no", "nor"}, {"no", "nor"}, {"fi_fi", "enu"}, {"C", "enu"}, {"", "enu"},
        {"fr_", "fre"}, {"_fr", "enu"}, {"frr_de", "enu"}};
    VarnLocale* locale = VarnLocale::getInstance();
    for (const auto& row : rows) {
        const QString code = locale->getLanguageByLocale(row.locale);
        EXPECT_TRUE(code == row.code && QFile::exists(":/" + code + ".qm")) << row.locale << "->" << qPrintable(code);
    }
    // "xx" is looked up nowhere else.
    EXPECT_EQ(locale->languageMap().size(), 18);
    locale->setLanguageMap("xx", "fre"), locale->setLanguageMap("xx", "ger");
    EXPECT_EQ(locale->languageMap().size(), 19) << "replacing does not add";
    EXPECT_EQ(locale->getLanguageByLocale("xx_yy").toStdString(), "ger");
}

} // namespace
