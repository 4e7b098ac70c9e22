// The string table: its rows, LoadStr with and without a translator, and key lookup.

#include "str-table.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include <utility>

void PrintTo(const QString& text, std::ostream* os) { *os << '"' << text.toStdString() << '"'; }

namespace {

const int kSslError = 153;  // its English text and its French translation hold backslash-n

TEST(StrTableRows, HaveUniqueKeysAndSharedTexts)
{
    const QRegularExpression identifier("^[a-z0-9_]+$");
    QSet<QByteArray> keys;
    QSet<QString> texts;
    for (int id = 0; id < StrTable::kStrCount; ++id) {
        const QByteArray key(StrTable::ktab[id]);
        EXPECT_TRUE(identifier.match(key).hasMatch()) << "row " << id << ": " << key.data();
        EXPECT_FALSE(keys.contains(key)) << "duplicate key " << key.data();
        keys.insert(key);
        ASSERT_NE(StrTable::stab[id], nullptr) << "row " << id;
        texts.insert(QString::fromUtf8(StrTable::stab[id]));
    }
    EXPECT_EQ(StrTable::kStrCount, 312);
    EXPECT_EQ(texts.size(), 297);
}

TEST(LoadStr, WithoutTranslatorGivesEnglishDecodedAndExpanded)
{
    EXPECT_EQ(StrTable::LoadStr(13), "Skelda Backup");
    EXPECT_EQ(StrTable::LoadStr(57), "Skelda Backup is initializing...");
    EXPECT_EQ(StrTable::LoadStr(203), QString("Taking snapshots") + QChar(0x2026));
    EXPECT_EQ(StrTable::LoadStr(kSslError),
              "The certificate of %1 is not trusted.\nDo you want to continue anyway?");
}

TEST(LoadStr, CompiledFrenchIsUsedWithItsLineBreaks)
{
    QTranslator french;
    ASSERT_TRUE(french.load(":/fre.qm"));
    ASSERT_TRUE(QCoreApplication::installTranslator(&french));
    EXPECT_EQ(StrTable::LoadStr(13), "Skelda Backup");
    EXPECT_EQ(StrTable::LoadStr(57), "Initialisation de Skelda Backup...");
    EXPECT_EQ(StrTable::LoadStr(kSslError),  // the literal is UTF-8
              "Le certificat de %1 n'est pas approuvé.\nVoulez-vous continuer quand même ?");
    QCoreApplication::removeTranslator(&french);
}

// Answers "Cancel" (row 25) when asked as LoadStr must ask; other texts fall back to English.
struct CancelTranslator : QTranslator {
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override
    {
        const bool asked_right = qstrcmp(context, "global") == 0 && !disambiguation && n == -1;
        return asked_right && qstrcmp(source, "Cancel") == 0 ? "A\\tB\\N\\T\\\\n" : QString();
    }
};

TEST(LoadStr, ExpandsOnlyLowerCaseEscapesOfATranslation)
{
    CancelTranslator translator;
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    EXPECT_EQ(StrTable::LoadStr(25), "A\tB\\N\\T\\\n");
    EXPECT_EQ(StrTable::LoadStr(13), "Skelda Backup");
    QCoreApplication::removeTranslator(&translator);
}

TEST(LookupStrID, FindsKeyIgnoringAsciiCase)
{
    const std::pair<const char*, int> rows[] = {
        {"APP_NAME", 13}, {"app_name", 13}, {"App_Name", 13}, {"wizard_welcome_slogan", 311},
        {"accessible_add_filename_button", 0}, {"no_such_key", -1}, {"", -1},
        {"app_nam", -1}, {"app_name ", -1}, {"Skelda Backup", -1}};
    for (const auto& [key, id] : rows)
        EXPECT_EQ(StrTable::LookupStrID(key), id) << '"' << key << '"';
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    Q_INIT_RESOURCE(texts);
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
