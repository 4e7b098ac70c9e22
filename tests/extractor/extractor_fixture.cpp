#include "extractor_fixture.h"

#include <cctype>

#include "log/log.h"
#include "notify-adapter.h"

namespace skelda_test {

const char kPreparingLabel[] = "Skelda Backup is initializing...";

RelayRecorder::RelayRecorder() {
    Notify_Adapter* ad = Notify_Adapter::GetInstance();
    progress_ = QObject::connect(ad, &Notify_Adapter::sigUpdateProgress, [this](int t, int n) {
        events.push_back("progress:" + std::to_string(t) + "," + std::to_string(n));
    });
    label_ = QObject::connect(ad, &Notify_Adapter::sigUpdateDialogText, [this](QString text) {
        events.push_back("label:" + text.toStdString());
    });
}

RelayRecorder::~RelayRecorder() {
    QObject::disconnect(progress_);
    QObject::disconnect(label_);
}

void ExtractorTest::SetUp() {
    TempDirTest::SetUp();
    WriteFile(path("launcher.debug"), "extractor_debug=7\n");
    ASSERT_EQ(Logger::Initialize(Logger::LOGFILE, path("launcher.log").c_str(),
                                 path("launcher.debug").c_str(), 5),
              0);
    dest = path("dest");
    MakeDirs(dest);
}

void ExtractorTest::TearDown() {
    Logger::Destroy();
    TempDirTest::TearDown();
}

Extractor ExtractorTest::ExtractorFor(const std::string& archive) const {
    Extractor ex;
    ex.dest_dir = dest.c_str();
    ex.archive_path = archive.c_str();
    return ex;
}

std::string ExtractorTest::MakeArchive(const std::string& name, ArchiveFormat format,
                                       const std::vector<ArchiveEntry>& entries) {
    std::string file = path(name + "." + ArchiveFormatName(format));
    std::string err = WriteArchive(file, format, entries);
    EXPECT_EQ(err, "") << "writing " << file;
    return file;
}

namespace {

// The logger's time stamp, "Mon DD HH:MM:SS ", at text[at].
bool IsStamp(const std::string& text, size_t at) {
    static const char shape[] = "Abb 00 00:00:00 ";  // A upper, b lower, 0 digit or blank
    if (text.size() - at < sizeof shape - 1)
        return false;
    for (size_t i = 0; i + 1 < sizeof shape; ++i) {
        const unsigned char c = static_cast<unsigned char>(text[at + i]);
        const bool ok = shape[i] == 'A'   ? std::isupper(c)
                        : shape[i] == 'b' ? std::islower(c)
                        : shape[i] == '0' ? std::isdigit(c) || (i == 4 && c == ' ')
                                          : c == static_cast<unsigned char>(shape[i]);
        if (!ok)
            return false;
    }
    return true;
}

// "[LEVEL] file.cpp(123): text" -> "[LEVEL] file.cpp: text".
std::string DropLineNumber(std::string m) {
    const size_t open = m.find('(');
    const size_t close = m.find("): ", open);
    if (open == std::string::npos || close == std::string::npos || close == open + 1)
        return m;
    for (size_t i = open + 1; i < close; ++i)
        if (!std::isdigit(static_cast<unsigned char>(m[i])))
            return m;
    return m.erase(open, close + 1 - open);
}

}  // namespace

std::vector<std::string> ExtractorTest::LogMessages() const {
    // A message starts behind a time stamp and runs to the next one; looking for stamps
    // anywhere keeps a message without a line end apart from the one after it.
    const std::string text = ReadFile(path("launcher.log"));
    std::vector<size_t> starts;
    for (size_t at = 0; at < text.size(); ++at)
        if (IsStamp(text, at))
            starts.push_back(at);
    std::vector<std::string> messages;
    for (size_t i = 0; i < starts.size(); ++i) {
        const size_t begin = starts[i] + 16;
        const size_t end = i + 1 < starts.size() ? starts[i + 1] : text.size();
        messages.push_back(DropLineNumber(text.substr(begin, end - begin)));
    }
    return messages;
}

std::string ExtractorTest::DecompressLine(const std::string& archive) const {
    return Msg("DEBUG", "decompress from '" + archive + "' to '" + dest + "'\n");
}

std::string Msg(const std::string& level, const std::string& text) {
    return "[" + level + "] extractor.cpp: " + text;
}

}  // namespace skelda_test
