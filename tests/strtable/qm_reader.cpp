#include "qm_reader.h"

#include <QtEndian>

#include <cstring>

namespace skelda_test {

namespace {

// The .qm layout: a 16-byte magic number, then sections of (tag byte, 32-bit big-endian length,
// data). The messages section is a run of tagged fields, each message closed by an end tag.
const unsigned char kQmMagic[16] = {0x3c, 0xb8, 0x64, 0x18, 0xca, 0xef, 0x9c, 0x95,
                                    0xcd, 0x21, 0x1c, 0xbf, 0x60, 0xa1, 0xbd, 0xdd};
const unsigned char kSectionMessages = 0x69;

enum FieldTag : unsigned char {
    kEnd = 1,
    kTranslation = 3,
    kObsolete1 = 5,
    kSourceText = 6,
    kContext = 7,
    kComment = 8,
};

class Cursor
{
public:
    Cursor(const char* data, quint32 size) : data_(data), size_(size) {}

    bool atEnd() const { return pos_ >= size_; }
    quint32 pos() const { return pos_; }
    bool has(quint32 n) const { return size_ - pos_ >= n; }

    unsigned char byte() { return static_cast<unsigned char>(data_[pos_++]); }
    quint32 u32()
    {
        quint32 v = qFromBigEndian<quint32>(data_ + pos_);
        pos_ += 4;
        return v;
    }
    const char* take(quint32 n)
    {
        const char* p = data_ + pos_;
        pos_ += n;
        return p;
    }

private:
    const char* data_;
    quint32 size_;
    quint32 pos_ = 0;
};

QString ReadMessages(Cursor cur, QVector<QmMessage>* messages)
{
    QmMessage msg;
    while (!cur.atEnd()) {
        const quint32 at = cur.pos();
        const unsigned char tag = cur.byte();
        if (tag == kEnd) {
            messages->append(msg);
            msg = QmMessage();
            continue;
        }
        if (tag == kObsolete1) {
            if (!cur.has(4))
                return QString("obsolete field cut short at %1").arg(at);
            cur.u32();
            continue;
        }
        if (tag != kTranslation && tag != kSourceText && tag != kContext && tag != kComment)
            return QString("unknown message field tag %1 at %2").arg(tag).arg(at);
        if (!cur.has(4))
            return QString("field length cut short at %1").arg(at);
        const quint32 len = cur.u32();
        if (tag == kTranslation && len == 0xffffffffu) {  // a null translation
            msg.translations.append(QString());
            continue;
        }
        if (!cur.has(len))
            return QString("field of %1 bytes overruns the section at %2").arg(len).arg(at);
        const char* bytes = cur.take(len);
        switch (tag) {
        case kTranslation: {
            if (len % 2 != 0)
                return QString("odd UTF-16 length %1 at %2").arg(len).arg(at);
            QString text;  // UTF-16, big-endian
            text.reserve(int(len / 2));
            for (quint32 i = 0; i < len; i += 2)
                text.append(QChar(qFromBigEndian<quint16>(bytes + i)));
            msg.translations.append(text);
            break;
        }
        case kSourceText:
            msg.source = QByteArray(bytes, len);
            break;
        case kContext:
            msg.context = QByteArray(bytes, len);
            break;
        default:
            msg.comment = QByteArray(bytes, len);
            break;
        }
    }
    return QString();
}

}  // namespace

QString ReadQmMessages(const QByteArray& qm, QVector<QmMessage>* messages)
{
    messages->clear();
    if (qm.size() < 16 || std::memcmp(qm.constData(), kQmMagic, 16) != 0)
        return "not a .qm file (bad magic number)";
    Cursor file(qm.constData(), quint32(qm.size()));
    file.take(16);
    bool seen_messages = false;
    while (!file.atEnd()) {
        if (!file.has(5))
            return QString("section header cut short at %1").arg(file.pos());
        const unsigned char section = file.byte();
        const quint32 len = file.u32();
        if (!file.has(len))
            return QString("section %1 of %2 bytes overruns the file").arg(section).arg(len);
        const char* data = file.take(len);
        if (section != kSectionMessages)
            continue;
        seen_messages = true;
        const QString error = ReadMessages(Cursor(data, len), messages);
        if (!error.isEmpty())
            return error;
    }
    return seen_messages ? QString() : QString("no messages section");
}

}  // namespace skelda_test
