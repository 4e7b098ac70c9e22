#pragma once
// Reads the messages out of a compiled Qt translation (.qm) so that a test can count them and
// see their contexts and source texts, which QTranslator itself does not expose.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

namespace skelda_test {

struct QmMessage {
    QByteArray context;
    QByteArray source;   // UTF-8, as lrelease stores it
    QByteArray comment;  // the disambiguation
    QStringList translations;  // one per plural form; usually one
};

// Parses the bytes of a .qm file. Returns "" on success or what was wrong with the data.
QString ReadQmMessages(const QByteArray& qm, QVector<QmMessage>* messages);

}  // namespace skelda_test
