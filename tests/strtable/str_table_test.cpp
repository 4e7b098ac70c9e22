// The string table: its rows and shared texts, LoadStr with and without a translator (the
// escapes it expands, the call it makes), and key lookup.

#include "str-table.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QSet>
#include <QTranslator>

#include <string>

namespace {

QString Utf8(const char* text)
{
    return QString::fromUtf8(text);
}

TEST(StrTableRows, KeysAreUniqueLowerCaseIdentifiers)
{
    QSet<QByteArray> keys;
    for (int id = 0; id < StrTable::kStrCount; ++id) {
        ASSERT_NE(StrTable::ktab[id], nullptr) << "row " << id;
        ASSERT_NE(StrTable::stab[id], nullptr) << "row " << id;
        const QByteArray key(StrTable::ktab[id]);
        EXPECT_FALSE(keys.contains(key)) << "duplicate key " << key.constData();
        keys.insert(key);
        for (char c : key)
            EXPECT_TRUE((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_') << key.data();
    }
}

TEST(StrTableRows, RowsTheLauncherShowsAndSharedTexts)
{
    EXPECT_STREQ(StrTable::ktab[13], "app_name");
    EXPECT_STREQ(StrTable::stab[13], "Skelda Backup");
    EXPECT_STREQ(StrTable::stab[56], "Skelda Backup is ready.");
    EXPECT_STREQ(StrTable::stab[57], "Skelda Backup is initializing...");
    EXPECT_STREQ(StrTable::stab[119], "%1 / %2");
    for (int id : {11, 20, 302})
        EXPECT_STREQ(StrTable::stab[id], "Backup destination") << "row " << id;
    for (int id : {31, 42})
        EXPECT_STREQ(StrTable::stab[id], "OK") << "row " << id;
    for (int id : {12, 37})
        EXPECT_STREQ(StrTable::stab[id], "Settings") << "row " << id;

    QSet<QString> distinct;
    for (const char* text : StrTable::stab)
        distinct.insert(Utf8(text));
    EXPECT_EQ(distinct.size(), 297);
}

TEST(StrTableRows, OnlyTheSnapshotRowLeavesAscii)
{
    EXPECT_EQ(Utf8(StrTable::stab[203]), QString("Taking snapshots") + QChar(0x2026));
    for (int id = 0; id < StrTable::kStrCount; ++id) {
        if (id == 203)
            continue;
        for (const char* p = StrTable::stab[id]; *p; ++p)
            EXPECT_LT(static_cast<unsigned char>(*p), 0x80) << "row " << id;
    }
}

TEST(LoadStrEnglish, NoTranslatorGivesTheEnglishText)
{
    EXPECT_EQ(StrTable::LoadStr(57), "Skelda Backup is initializing...");
    EXPECT_EQ(StrTable::LoadStr(13), "Skelda Backup");
    // The source is UTF-8: the ellipsis must come back as one character.
    EXPECT_EQ(StrTable::LoadStr(203), QString("Taking snapshots") + QChar(0x2026));
}

TEST(LoadStrEnglish, EnglishTextsExpandTheirLineBreakEscape)
{
    int with_escape = 0;
    for (int id = 0; id < StrTable::kStrCount; ++id) {
        if (!QByteArray(StrTable::stab[id]).contains("\\n"))
            continue;
        ++with_escape;
        const QString text = StrTable::LoadStr(id);
        EXPECT_TRUE(text.contains('\n')) << "row " << id;
        EXPECT_FALSE(text.contains("\\n")) << "row " << id;
    }
    EXPECT_GT(with_escape, 0);
}

// A translator that answers from a small table and records how it is asked.
class RecordingTranslator : public QTranslator
{
public:
    explicit RecordingTranslator(QHash<QString, QString> texts) : texts_(std::move(texts)) {}

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char* disambiguation,
                      int n) const override
    {
        contexts.insert(QString::fromUtf8(context));
        any_disambiguation = any_disambiguation || disambiguation != nullptr;
        counts.insert(n);
        return texts_.value(QString::fromUtf8(source));
    }

    mutable QSet<QString> contexts;
    mutable QSet<int> counts;
    mutable bool any_disambiguation = false;

private:
    QHash<QString, QString> texts_;
};

class LoadStrTranslated : public ::testing::Test
{
protected:
    void TearDown() override { QCoreApplication::removeTranslator(&translator_); }
    void Install() { ASSERT_TRUE(QCoreApplication::installTranslator(&translator_)); }

    RecordingTranslator translator_{{
        {"Skelda Backup", "Sauvegarde Skelda"},
        {"Skelda Backup is initializing...", "Initialisation de Sauvegarde Skelda..."},
        {"Backup destination", "Destination\\nde sauvegarde"},
        {"Cancel", "A\\tB\\N\\T\\\\n"},
    }};
};

TEST_F(LoadStrTranslated, AsksContextGlobalWithoutDisambiguationAndCountMinusOne)
{
    ASSERT_NO_FATAL_FAILURE(Install());
    EXPECT_EQ(StrTable::LoadStr(13), "Sauvegarde Skelda");
    EXPECT_EQ(StrTable::LoadStr(57), "Initialisation de Sauvegarde Skelda...");
    EXPECT_EQ(translator_.contexts, QSet<QString>{"global"});
    EXPECT_EQ(translator_.counts, QSet<int>{-1});
    EXPECT_FALSE(translator_.any_disambiguation);
}

TEST_F(LoadStrTranslated, RowsSharingATextShareItsTranslation)
{
    ASSERT_NO_FATAL_FAILURE(Install());
    for (int id : {11, 20, 302})
        EXPECT_EQ(StrTable::LoadStr(id), "Destination\nde sauvegarde") << "row " << id;
}

TEST_F(LoadStrTranslated, ExpandsLowerCaseEscapesOnly)
{
    ASSERT_NO_FATAL_FAILURE(Install());
    const int cancel = StrTable::LookupStrID("btn_cancel");
    ASSERT_GE(cancel, 0);
    // "\\n" after a backslash is still a backslash then an expanded line break.
    EXPECT_EQ(StrTable::LoadStr(cancel), "A\tB\\N\\T\\\n");
}

TEST_F(LoadStrTranslated, MissingTranslationAndRemovedTranslatorGiveEnglish)
{
    ASSERT_NO_FATAL_FAILURE(Install());
    EXPECT_EQ(StrTable::LoadStr(56), "Skelda Backup is ready.");
    QCoreApplication::removeTranslator(&translator_);
    EXPECT_EQ(StrTable::LoadStr(13), "Skelda Backup");
}

TEST(LoadStrFrench, CompiledFrenchTranslatesTitleAndLabel)
{
    if (!QFile::exists(":/fre.qm"))
        GTEST_SKIP() << "fre.qm is not built yet (ui-client/launcher/translations/fre.ts missing)";
    QTranslator french;
    ASSERT_TRUE(french.load(":/fre.qm"));
    ASSERT_TRUE(QCoreApplication::installTranslator(&french));
    const QString title = StrTable::LoadStr(13);
    const QString label = StrTable::LoadStr(57);
    QCoreApplication::removeTranslator(&french);

    EXPECT_EQ(title, french.translate("global", "Skelda Backup"));
    EXPECT_FALSE(label.isEmpty());
    EXPECT_NE(label, "Skelda Backup is initializing...");
    EXPECT_EQ(label, french.translate("global", "Skelda Backup is initializing..."));
}

struct LookupRow {
    const char* label;
    const char* key;
    int id;
};

std::ostream& operator<<(std::ostream& os, const LookupRow& row)
{
    return os << '"' << row.key << "\" -> " << row.id;
}

class LookupStrIDTable : public ::testing::TestWithParam<LookupRow> {};

TEST_P(LookupStrIDTable, FindsRowIgnoringAsciiCase)
{
    EXPECT_EQ(StrTable::LookupStrID(GetParam().key), GetParam().id);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, LookupStrIDTable,
    ::testing::Values(LookupRow{"UpperCase", "APP_NAME", 13},
                      LookupRow{"LowerCase", "app_name", 13},
                      LookupRow{"MixedCase", "App_Name", 13},
                      LookupRow{"FirstRow", "accessible_add_filename_button", 0},
                      LookupRow{"LastRow", "wizard_welcome_slogan", 311},
                      LookupRow{"Unknown", "no_such_key", -1}, LookupRow{"Empty", "", -1},
                      LookupRow{"Prefix", "app_nam", -1},
                      LookupRow{"TrailingSpace", "app_name ", -1},
                      LookupRow{"TextNotKey", "Skelda Backup", -1}),
    [](const ::testing::TestParamInfo<LookupRow>& info) { return std::string(info.param.label); });

} // namespace
