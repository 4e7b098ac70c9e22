#pragma once
// Fixture of the extractor tests: a fresh folder with an existing destination "dest", the
// logger writing into the folder with DEBUG enabled for "extractor_debug", and a recorder
// of everything Notify_Adapter emits.

#include <QMetaObject>
#include <QString>

#include <string>
#include <vector>

#include "archive_maker.h"
#include "extractor.h"
#include "temp_dir.h"

namespace skelda_test {

// Every label and progress report, in emission order: "label:<text>", "progress:<t>,<n>".
class RelayRecorder {
public:
    RelayRecorder();
    ~RelayRecorder();
    std::vector<std::string> events;

private:
    QMetaObject::Connection progress_;
    QMetaObject::Connection label_;
};

class ExtractorTest : public TempDirTest {
protected:
    void SetUp() override;
    void TearDown() override;

    // An Extractor reading `archive` into dest.
    Extractor ExtractorFor(const std::string& archive) const;
    // Writes the archive into the test folder and returns its path.
    std::string MakeArchive(const std::string& name, ArchiveFormat format,
                            const std::vector<ArchiveEntry>& entries);
    // The log's messages without their time stamp and with the source line dropped:
    // "[ERROR] extractor.cpp: Invalid Argument\n". A message without a line end keeps none.
    std::vector<std::string> LogMessages() const;
    // The DEBUG message with which Extract starts.
    std::string DecompressLine(const std::string& archive) const;

    std::string dest;
};

// "[LEVEL] extractor.cpp: " + text, the form LogMessages() returns.
std::string Msg(const std::string& level, const std::string& text);

// The label Extract sends: the English text of the string table's row 57.
extern const char kPreparingLabel[];

}  // namespace skelda_test
