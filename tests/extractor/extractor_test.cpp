// Extractor and Notify_Adapter: what lands below dest, the dialog's reports, the error lines.
#include <QCoreApplication>
#include <QSignalSpy>
#include <QThread>
#include <gtest/gtest.h>

#include <regex>

#include "archive_maker.h"
#include "extractor.h"
#include "log/log.h"
#include "notify-adapter.h"
#include "str-table.h"
#include "temp_dir.h"

namespace skelda_test {
namespace {

using Events = std::vector<std::string>;
using Kind = ArchiveFormat;
using E = ArchiveEntry;
const std::string kLabel = "Skelda Backup is initializing...";

// Labels and "total,current" reports in arrival order; lives on the main thread.
struct Recorder : QObject {
    Events events;
    Recorder() {
        auto* ad = Notify_Adapter::GetInstance();
        connect(ad, &Notify_Adapter::sigUpdateProgress, this, [this](int t, int n) {
            events.push_back(std::to_string(t) + "," + std::to_string(n));
        });
        connect(ad, &Notify_Adapter::sigUpdateDialogText, this,
                [this](const QString& s) { events.push_back(s.toStdString()); });
    }
};

std::string Err(const std::string& text) { return "[ERROR] extractor.cpp: " + text + "\n"; }

class ExtractorTest : public TempDirTest {
protected:
    void SetUp() override {
        TempDirTest::SetUp();
        ASSERT_EQ(Logger::Initialize(Logger::LOGFILE, path("log"), "", 5), 0);  // errors only
        MakeDirs(dest = path("dest"));
    }
    ~ExtractorTest() override { Logger::Destroy(); }
    Extractor For(std::string pkg, bool to_dest = true) { return {to_dest ? dest : "", pkg}; }
    std::string Make(Kind kind, const std::vector<E>& entries, const std::string& name = "pkg") {
        EXPECT_EQ(WriteArchive(path(name), kind, entries), "");
        return path(name);
    }
    // The log without time stamps and source lines: "[ERROR] extractor.cpp: text\n"...
    std::string Log() const {
        static const std::regex stamp(R"(.{16}(\[[A-Z]+\] extractor\.cpp)\(\d+\))");
        return std::regex_replace(ReadFile(path("log")), stamp, "$1");
    }
    std::string dest;
};

class FormatTest : public ExtractorTest, public ::testing::WithParamInterface<Kind> {
protected:
    void SetUp() override {
        ExtractorTest::SetUp();
        whole = ReadFile(Make(GetParam() == Kind::Zip ? Kind::Zip : Kind::Tar, noise, "whole"));
    }
    std::string Cut(size_t length) {  // for tgz the tar is cut, then gzipped whole
        if (GetParam() == Kind::TarGz)
            return Make(Kind::RawGz, {E::File("t", whole.substr(0, length))}, "cut");
        WriteFile(path("cut"), whole.substr(0, length));
        return path("cut");
    }
    static std::string Noise(size_t n, unsigned x) {  // incompressible: cuts land in zip data too
        std::string s(n, '\0');
        for (char& c : s)
            c = char((x = x * 1103515245u + 12345u) >> 24);
        return s;
    }
    const std::vector<E> noise{E::File("first", Noise(3000, 1)), E::File("second", Noise(2000, 2)),
                               E::File("third", Noise(1000, 3))};
    std::string whole;
};

// As in the launcher: Extract on a worker thread, the dialog's receiver on the main thread.
TEST_P(FormatTest, ThreeEntriesReportTheLabelOnceThenEachEntryQueuedToTheMainThread) {
    const std::string pkg = Make(GetParam(), {E::Folder("app"), E::File("app/INFO", "v=42\n"),
                                              E::Symlink("app/current", "INFO")});
    QSignalSpy progress(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    Recorder r;
    int result = 1;
    Notify_Adapter* on_worker = nullptr;
    QThread* worker = QThread::create([&] {
        on_worker = Notify_Adapter::GetInstance();
        result = For(pkg).Extract();
    });
    worker->start();
    worker->wait();
    delete worker;
    ASSERT_EQ(result, 0);
    EXPECT_EQ(on_worker, Notify_Adapter::GetInstance()) << "one adapter for every thread";
    EXPECT_EQ(progress, (QList<QVariantList>{{3, 1}, {3, 2}, {3, 3}}));
    EXPECT_TRUE(r.events.empty()) << "delivered on the worker instead of queued";
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(r.events, (Events{kLabel, "3,1", "3,2", "3,3"}));
    EXPECT_EQ(ReadFile(dest + "/app/INFO"), "v=42\n");
}

TEST_P(FormatTest, EntriesReplaceFilesInTheWayAndStayBelowDestUntilADotDotEntryFails) {
    WriteFile(dest + "/client", "old build, longer than the new one");
    WriteFile(dest + "/Resources", "a file where the folder goes");
    const std::string abs = path("outside");
    const std::string pkg =
        Make(GetParam(), {E::File("client", "new"), E::Folder("Resources"),
                          E::File("Resources/INFO", "info"), E::File(abs, "abs"),
                          E::File("a/../../escape", "x"), E::File("after", "2")});
    Recorder r;
    EXPECT_EQ(For(pkg).Extract(), -1);
    EXPECT_EQ(ReadFile(dest + "/client"), "new");
    EXPECT_EQ(ReadFile(dest + "/Resources/INFO"), "info");
    EXPECT_EQ(ReadFile(dest + abs), "abs");
    EXPECT_FALSE(Exists(abs) || Exists(path("escape")) || Exists(dest + "/after"));
    EXPECT_EQ(r.events, (Events{kLabel, "6,1", "6,2", "6,3", "6,4"}));
    EXPECT_EQ(Log(), Err("archive_read_extract2 failed: 'Path contains '..''"));
}

TEST_P(FormatTest, DamagedHeaderEndsTheCountAndFailsTheExtractionThere) {
    // tar: the name opens the 512-byte header; zip: it follows 30 fixed header bytes.
    const std::string pkg = Cut(whole.find("third") + (GetParam() == Kind::Zip ? 4 : 100));
    EXPECT_EQ(For(pkg).Count(), 2);
    Recorder r;
    EXPECT_EQ(For(pkg).Extract(), -1);
    EXPECT_EQ(ReadFile(dest + "/first"), noise[0].data);
    EXPECT_EQ(ReadFile(dest + "/second"), noise[1].data);
    EXPECT_FALSE(Exists(dest + "/third"));
    EXPECT_EQ(r.events, (Events{kLabel, "2,1", "2,2"}));
    const std::string why = GetParam() == Kind::Zip ? "ZIP file header" : "tar archive";
    EXPECT_EQ(Log(), Err("archive_read_next_header failed: 'Truncated " + why + "'"));
}

TEST_P(FormatTest, ArchiveCutAnywhereFailsCleanlyOrExtractsEverything) {
    for (size_t length = 0; length < whole.size(); length += 13) {
        SCOPED_TRACE("cut at " + std::to_string(length) + " of " + std::to_string(whole.size()));
        const std::string pkg = Cut(length);
        WriteFile(path("log"), "");
        Recorder r;
        const int result = For(pkg).Extract();
        ASSERT_TRUE(result == 0 || (result == -1 && Log().find("[ERROR] ") == 0))
            << result << Log();
        ASSERT_TRUE(result == -1 || r.events.back() == "3,3");
        for (size_t i = 0; result == 0 && i < noise.size(); ++i)
            ASSERT_EQ(ReadFile(dest + "/" + noise[i].name), noise[i].data) << noise[i].name;
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, FormatTest, ::testing::Values(Kind::Tar, Kind::TarGz, Kind::Zip),
                         [](const auto& info) { return ArchiveFormatName(info.param); });

TEST_F(ExtractorTest, MissingEmptyOrUnsetArchiveFailsBeforeAnyEntry) {
    const std::string missing = path("missing.tar"), empty = Make(Kind::TarGz, {});
    Recorder r;
    EXPECT_EQ(For(missing).Extract(), -1);
    EXPECT_EQ(For(empty).Extract(), -1);
    std::string log = Err("archive_read_open_filename failed: 'Failed to open '" + missing + "''") +
                      Err("Failed to calculate total file numbers, ret: -1") +
                      Err("Failed to calculate total file numbers, ret: 0");
    for (int (Extractor::*op)() : {&Extractor::Extract, &Extractor::Count, &Extractor::List})
        for (int set = 0; set < 3; ++set) {  // neither path, dest only, archive only
            EXPECT_EQ((For(set == 2 ? empty : "", set == 1).*op)(), -1) << "paths set: " << set;
            log += Err(op == &Extractor::Extract ? "Invalid Argument" : "Invalid argument");
        }
    EXPECT_EQ(r.events, (Events{kLabel, kLabel}));
    EXPECT_EQ(Log(), log);
}

}  // namespace
}  // namespace skelda_test

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();  // the label comes from the string table
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
