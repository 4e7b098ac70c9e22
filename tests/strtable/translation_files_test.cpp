// The translation check: each of the 20 compiled translations in the resource collection
// "texts" must hold, in context "global", exactly one message per distinct English text of the
// string table, translated (enu: mapped to itself). A language whose .ts is not written yet
// fails here by name.

#include "qm_reader.h"
#include "str-table.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QResource>
#include <QSet>
#include <QTranslator>
#include <QXmlStreamReader>

#include <string>
#include <vector>

using skelda_test::QmMessage;
using skelda_test::ReadQmMessages;

namespace {

const int kDistinctTexts = 297;

const std::vector<const char*> kLanguageCodes = {"chs", "cht", "csy", "dan", "enu", "fre", "ger",
                                                 "hun", "ita", "jpn", "krn", "nld", "nor", "plk",
                                                 "ptb", "ptg", "rus", "spn", "sve", "trk"};

// Texts that read the same in every language: the product name, and a text with no words.
const QStringList kSameInEveryLanguage = {"Skelda Backup", "%1 / %2"};

// Texts that a language legitimately writes exactly as English (a word shared with English,
// the product name kept as is). Each entry is the English text; add one only when the
// language's translator confirms it.
const QMap<QString, QStringList> kSameAsEnglish = {
    {"chs", {}},
    {"cht", {}},
    {"csy", {"OK", "Port", "Proxy", "Server"}},
    {"dan",
     {"OK", "Type", "Status", "April", "August", "December", "November", "September",
      "Download", "Weekend", "Port", "Filter", "Proxy", "Version %1", "Server"}},
    {"fre", {"OK", "Type", "Action", "Port", "Options", "Proxy", "Minute", "Version %1"}},
    {"ger",
     {"Dialog", "OK", "Name", "Status", "April", "August", "November", "September", "Port",
      "Filter", "Proxy", "Minute", "Upgrade", "Version %1", "Server"}},
    {"hun", {"OK", "December", "November", "Port", "Proxy"}},
    {"ita", {"OK", "No", "Password", "File", "Proxy", "Account", "Server"}},
    {"jpn", {"OK"}},
    {"krn", {}},
    {"nld",
     {"OK", "Type", "%1 items", "Status", "April", "December", "November", "September",
      "Weekend", "Filter", "Proxy", "Week", "Help", "Account", "Server"}},
    {"nor",
     {"OK", "Type", "Status", "April", "August", "November", "September", "Port", "Filter",
      "Proxy", "Server"}},
    {"plk", {"OK", "Weekend", "Port", "Folder"}},
    {"ptb", {"OK", "Status", "Proxy"}},
    {"ptg", {"OK", "Proxy"}},
    {"rus", {}},
    {"spn", {"No", "Error", "Proxy"}},
    {"sve",
     {"Information", "OK", "Status", "April", "December", "November", "September", "Port",
      "Filter", "Proxy", "Version %1", "Server"}},
    {"trk", {"Proxy"}},
};

QString Utf8(const char* text)
{
    return QString::fromUtf8(text);
}

// The distinct English texts of the table, in first-appearance order.
QStringList DistinctTableTexts()
{
    QStringList texts;
    QSet<QString> seen;
    for (const char* text : StrTable::stab) {
        if (!seen.contains(Utf8(text))) {
            seen.insert(Utf8(text));
            texts.append(Utf8(text));
        }
    }
    return texts;
}

std::string Quoted(const QStringList& texts)
{
    return ("\"" + texts.join("\", \"") + "\"").toStdString();
}

TEST(TranslationTable, HasTheDistinctTextsTheFilesAreCheckedAgainst)
{
    EXPECT_EQ(DistinctTableTexts().size(), kDistinctTexts);
}

TEST(TranslationResources, RootHoldsExactlyTheTwentyFiles)
{
    const QStringList present = QDir(":/").entryList({"*.qm"}, QDir::Files, QDir::Name);
    QStringList expected;
    for (const char* code : kLanguageCodes)
        expected.append(QString(code) + ".qm");
    QStringList missing;
    for (const QString& name : expected) {
        if (!present.contains(name))
            missing.append(name);
    }
    EXPECT_EQ(present.join(' ').toStdString(), expected.join(' ').toStdString())
        << "missing from resources 'texts': " << Quoted(missing);
    // Stored as is, so that QTranslator can map the data without inflating it first.
    for (const QString& name : present) {
        EXPECT_EQ(QResource(":/" + name).compressionAlgorithm(), QResource::NoCompression)
            << name.toStdString();
    }
}

class TranslationFile : public ::testing::TestWithParam<const char*>
{
protected:
    QString code() const { return QString::fromLatin1(GetParam()); }
    QString qmPath() const { return ":/" + code() + ".qm"; }
    QString tsPath() const { return QString(SKELDA_TS_DIR) + "/" + code() + ".ts"; }

    // Loads the compiled messages; fails the test when the language is not built.
    void LoadMessages(QVector<QmMessage>* messages)
    {
        QFile qm(qmPath());
        ASSERT_TRUE(qm.exists()) << "language " << code().toStdString() << " is missing: no "
                                 << qmPath().toStdString() << " (write " << tsPath().toStdString()
                                 << ")";
        ASSERT_TRUE(qm.open(QIODevice::ReadOnly)) << qm.errorString().toStdString();
        const QString error = ReadQmMessages(qm.readAll(), messages);
        ASSERT_EQ(error, "") << qmPath().toStdString() << " is malformed";
    }
};

TEST_P(TranslationFile, HoldsOneGlobalMessagePerTableText)
{
    QVector<QmMessage> messages;
    ASSERT_NO_FATAL_FAILURE(LoadMessages(&messages));

    const QStringList table = DistinctTableTexts();
    const QSet<QString> wanted(table.begin(), table.end());
    QSet<QString> sources;
    QStringList extra, duplicated, badly_formed;
    for (const QmMessage& msg : messages) {
        const QString source = QString::fromUtf8(msg.source);
        if (msg.context != "global" || !msg.comment.isEmpty() || msg.translations.size() != 1)
            badly_formed.append(source);
        if (sources.contains(source))
            duplicated.append(source);
        sources.insert(source);
        if (!wanted.contains(source))
            extra.append(source);
    }
    QStringList missing;
    for (const QString& text : table) {
        if (!sources.contains(text))
            missing.append(text);
    }

    EXPECT_EQ(messages.size(), kDistinctTexts);
    EXPECT_TRUE(missing.isEmpty()) << missing.size() << " table texts have no message (an empty "
                                   << "translation is dropped by lrelease): " << Quoted(missing);
    EXPECT_TRUE(extra.isEmpty()) << "messages for texts not in the table: " << Quoted(extra);
    EXPECT_TRUE(duplicated.isEmpty()) << "duplicated messages: " << Quoted(duplicated);
    EXPECT_TRUE(badly_formed.isEmpty())
        << "messages outside context \"global\", with a comment, or with plural forms: "
        << Quoted(badly_formed);
}

TEST_P(TranslationFile, TranslatesEveryTextThroughQTranslator)
{
    QVector<QmMessage> messages;
    ASSERT_NO_FATAL_FAILURE(LoadMessages(&messages));
    QTranslator translator;
    ASSERT_TRUE(translator.load(qmPath()));
    ASSERT_FALSE(translator.isEmpty());

    const QStringList allowed = kSameInEveryLanguage + kSameAsEnglish.value(code());
    QStringList untranslated, unexpectedly_same, wrongly_different;
    for (const QString& text : DistinctTableTexts()) {
        const QString translated =
            translator.translate("global", text.toUtf8().constData(), nullptr, -1);
        if (translated.isEmpty())
            untranslated.append(text);
        else if (code() == "enu" && translated != text)
            wrongly_different.append(text);
        else if (code() != "enu" && translated == text && !allowed.contains(text))
            unexpectedly_same.append(text);
    }
    EXPECT_TRUE(untranslated.isEmpty())
        << "QTranslator finds no translation for: " << Quoted(untranslated);
    EXPECT_TRUE(wrongly_different.isEmpty())
        << "enu must map each text to itself: " << Quoted(wrongly_different);
    EXPECT_TRUE(unexpectedly_same.isEmpty())
        << unexpectedly_same.size() << " texts left in English in " << code().toStdString()
        << " (translate them, or list them for this language in kSameAsEnglish): "
        << Quoted(unexpectedly_same);
    for (const QString& text : allowed) {
        EXPECT_TRUE(DistinctTableTexts().contains(text))
            << "exception list names a text not in the table: " << text.toStdString();
    }
}

// lrelease packs translations marked unfinished as if they were done, so the source must say
// that every message is final.
TEST_P(TranslationFile, SourceHasNoUnfinishedMessages)
{
    QFile ts(tsPath());
    ASSERT_TRUE(ts.open(QIODevice::ReadOnly))
        << "language " << code().toStdString() << " is missing: " << tsPath().toStdString()
        << ": " << ts.errorString().toStdString();
    QXmlStreamReader xml(&ts);
    QString source;
    QStringList not_final;
    int message_count = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("message")) {
            ++message_count;
        } else if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            if (!xml.attributes().value("type").isEmpty())
                not_final.append(source);
            xml.skipCurrentElement();
        }
    }
    ASSERT_FALSE(xml.hasError()) << tsPath().toStdString() << ": "
                                 << xml.errorString().toStdString() << " at line "
                                 << xml.lineNumber();
    EXPECT_EQ(message_count, kDistinctTexts);
    EXPECT_TRUE(not_final.isEmpty())
        << "translations marked unfinished, obsolete or vanished: " << Quoted(not_final);
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationFile, ::testing::ValuesIn(kLanguageCodes),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

} // namespace
