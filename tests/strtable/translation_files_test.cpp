// The translation check: each of the 20 compiled translations in the resource collection
// "texts" holds, in context "global", one message per distinct English text of the string table,
// translated (enu: to itself).

#include "str-table.h"

#include <gtest/gtest.h>

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QMap>
#include <QResource>

void PrintTo(const QString& text, std::ostream* os);  // in str_table_test.cpp

namespace {

const QStringList kLanguageCodes = {"chs", "cht", "csy", "dan", "enu", "fre", "ger",
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

struct QmMessage { QByteArray context, source, comment; QStringList translations; };

// A .qm file: a 16-byte magic number, then sections (tag byte, length-prefixed data); section
// 0x69 is a run of fields (tag byte, value), each message closed by tag 1. Lengths are 32-bit
// big-endian and texts UTF-16, just as QDataStream reads a QByteArray or a QString.
bool ReadQm(const QByteArray& qm, QVector<QmMessage>* messages)
{
    const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
    QDataStream file(qm.mid(16));
    while (qm.startsWith(magic) && !file.atEnd()) {
        quint8 section = 0;
        QByteArray data;
        file >> section >> data;
        QDataStream in(data);
        for (QmMessage msg; section == 0x69 && !in.atEnd();) {
            quint8 tag = 0;
            quint32 obsolete = 0;
            QString translation;
            in >> tag;
            switch (tag) {
            case 1: messages->append(msg); msg = QmMessage(); break;
            case 3: in >> translation; msg.translations.append(translation); break;
            case 5: in >> obsolete; break;
            case 6: in >> msg.source; break;
            case 7: in >> msg.context; break;
            case 8: in >> msg.comment; break;
            default: return false;
            }
        }
        if (file.status() != QDataStream::Ok || in.status() != QDataStream::Ok)
            return false;
    }
    return !messages->isEmpty();
}

// The distinct English texts of the table, in first-appearance order.
QStringList DistinctTableTexts()
{
    QStringList texts;
    for (const char* text : StrTable::stab)
        texts.append(QString::fromUtf8(text));
    texts.removeDuplicates();
    return texts;
}

// The texts of list that are not in except, quoted.
std::string Quoted(const QStringList& list, const QStringList& except = {})
{
    QStringList quoted;
    for (const QString& text : list) {
        if (!except.contains(text))
            quoted.append('"' + text + '"');
    }
    return quoted.join(", ").toStdString();
}

TEST(TranslationResources, RootHoldsTheTwentyFilesUncompressed)
{
    const QStringList present = QDir(":/").entryList({"*.qm"}, QDir::Files, QDir::Name);
    EXPECT_EQ(present.join(' ').toStdString(), (kLanguageCodes.join(".qm ") + ".qm").toStdString());
    for (const QString& name : present)  // so that QTranslator maps the data as it is
        EXPECT_EQ(QResource(":/" + name).compressionAlgorithm(), QResource::NoCompression);
}

class TranslationFile : public ::testing::TestWithParam<QString> {};

TEST_P(TranslationFile, TranslatesEachTableTextOnceInContextGlobal)
{
    const QString code = GetParam();
    QFile file(":/" + code + ".qm");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "language not built: " << code.toStdString();
    QVector<QmMessage> messages;
    ASSERT_TRUE(ReadQm(file.readAll(), &messages)) << "malformed " << code.toStdString() << ".qm";

    const QStringList table = DistinctTableTexts();
    const QStringList allowed = kSameInEveryLanguage + kSameAsEnglish.value(code);
    QStringList sources, badly_formed, wrong;
    for (const QmMessage& msg : messages) {
        const QString source = QString::fromUtf8(msg.source);
        const QString text = msg.translations.value(0);
        sources.append(source);
        if (msg.context != "global" || !msg.comment.isEmpty() || msg.translations.size() != 1
            || text.isEmpty())
            badly_formed.append(source);
        else if (code == "enu" ? text != source : text == source && !allowed.contains(source))
            wrong.append(source);
    }
    EXPECT_EQ(messages.size(), 297);
    EXPECT_EQ(Quoted(table, sources), "") << "table texts without a message";
    EXPECT_EQ(Quoted(badly_formed), "")
        << "messages outside context \"global\", with a comment, plurals or no translation";
    EXPECT_EQ(Quoted(wrong), "") << (code == "enu" ? "enu must map each text to itself"
                                                    : "left in English (or in kSameAsEnglish)");
    EXPECT_EQ(Quoted(allowed, table), "") << "kSameAsEnglish names texts not in the table";
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslationFile, ::testing::ValuesIn(kLanguageCodes),
                         [](const auto& info) { return info.param.toStdString(); });

} // namespace
