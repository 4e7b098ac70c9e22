// Extractor and Notify_Adapter: what lands below dest, the dialog's reports, the error lines.
#include <QSignalSpy>
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>
#include <locale.h>

#include <numeric>
#include <regex>

#include "archive_maker.h"
#include "extractor.h"
#include "log/log.h"
#include "notify-adapter.h"
#include "temp_dir.h"

namespace skelda_test {
namespace {

using E = ArchiveEntry;
const std::string kLabel = "Skelda Backup is initializing...";

// The dialog label once, then one (total, done) report per entry.
void ExpectReports(const QSignalSpy& label, const QSignalSpy& progress, int total, int done) {
    EXPECT_TRUE(label.count() == 1 && label[0][0].toString().toStdString() == kLabel);
    ASSERT_EQ(progress.count(), done);
    for (int n = 1; n <= done; ++n)
        EXPECT_EQ(progress[n - 1], (QVariantList{total, n}));
}

std::string Err(const std::string& text) { return "[ERROR] extractor.cpp: " + text + "\n"; }

class FormatTest : public TempDirTest, public ::testing::WithParamInterface<ArchiveFormat> {
protected:
    void SetUp() override {
        TempDirTest::SetUp();
        ASSERT_EQ(Logger::Initialize(Logger::LOGFILE, path("log"), "", 5), 0);  // errors only
        MakeDirs(dest = path("dest"));
    }
    ~FormatTest() override { Logger::Destroy(); }
    Extractor For(const std::string& pkg) { return {dest, pkg}; }
    std::string Make(ArchiveFormat kind, const std::vector<E>& entries, const std::string& name = "pkg") {
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

TEST_P(FormatTest, EntriesReplaceFilesInTheWayAndStayBelowDestUntilADotDotEntryFails) {
    WriteFile(dest + "/client", "old build, longer than the new one");
    WriteFile(dest + "/Resources", "a file where the folder goes");
    const std::string abs = path("outside"), pkg = Make(GetParam(), {E::File("client", "new"),
        E::Folder("Resources"), E::File("Resources/INFO", "info"), E::Symlink("Resources/current", "INFO"),
        E::File(abs, "abs"), E::File("a/../../escape", "x"), E::File("after", "2")});
    QSignalSpy label(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText),
        progress(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    EXPECT_EQ(For(pkg).Extract(), -1);
    EXPECT_TRUE(ReadFile(dest + "/client") == "new" && ReadFile(dest + "/Resources/current") == "info");
    EXPECT_EQ(ReadFile(dest + abs), "abs");
    EXPECT_FALSE(Exists(abs) || Exists(path("escape")) || Exists(dest + "/after"));
    ExpectReports(label, progress, 7, 5);
    EXPECT_EQ(Log(), Err("archive_read_extract2 failed: 'Path contains '..''"));
}

TEST_P(FormatTest, DamagedHeaderEndsTheCountAndFailsTheExtractionThere) {
    const bool zip = GetParam() == ArchiveFormat::Zip;
    const std::vector<E> entries{E::File("first", "1st"), E::File("second", "2nd"), E::File("third", "3rd")};
    const std::string whole = ReadFile(Make(zip ? ArchiveFormat::Zip : ArchiveFormat::Tar, entries, "whole"));
    // tar: the name opens the 512-byte header; zip: it follows 30 fixed header bytes.
    const std::string cut = whole.substr(0, whole.find("third") + (zip ? 4 : 100));
    WriteFile(path("pkg"), cut);
    if (GetParam() == ArchiveFormat::TarGz)  // the tar is cut, then gzipped whole
        Make(ArchiveFormat::RawGz, {E::File("t", cut)});
    EXPECT_EQ(For(path("pkg")).Count(), 2);
    QSignalSpy label(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText),
        progress(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    EXPECT_EQ(For(path("pkg")).Extract(), -1);
    EXPECT_TRUE(ReadFile(dest + "/first") + ReadFile(dest + "/second") == "1st2nd" && !Exists(dest + "/third"));
    ExpectReports(label, progress, 2, 2);
    const std::string why = zip ? "ZIP file header" : "tar archive";
    EXPECT_EQ(Log(), Err("archive_read_next_header failed: 'Truncated " + why + "'"));
}

// The version file is the installation's commit record: wherever it stands in the package,
// it reaches the disk after every other entry. Reports come when the percentage changes.
TEST_P(FormatTest, TheVersionFileLandsLastAndReportsFollowThePercentage) {
    std::vector<E> entries{E::File("./Contents/Resources/INFO", "build=200"), E::Folder("Contents/MacOS")};
    for (int i = 0; i < 248; ++i)
        entries.push_back(E::File("Contents/MacOS/f" + std::to_string(i), "x"));
    const std::string pkg = Make(GetParam(), entries), info = dest + "/Contents/Resources/INFO";
    std::vector<int> reports, seen_info;
    QObject::connect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, [&](int total, int n) {
        EXPECT_EQ(total, 250);
        reports.push_back(n * 100 / total);
        if (Exists(info))
            seen_info.push_back(n);
    });
    EXPECT_EQ(For(pkg).Extract(), 0);
    QObject::disconnect(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress, nullptr, nullptr);
    EXPECT_EQ(ReadFile(info), "build=200");
    EXPECT_EQ(seen_info, std::vector<int>{}) << "reports made while the version file was on disk";
    std::vector<int> every_percent(101);
    std::iota(every_percent.begin(), every_percent.end(), 0);
    EXPECT_EQ(reports, every_percent);
    EXPECT_EQ(Log(), "");
}

// Beside Extract: the entry names on standard output, and one entry's data copied block by
// block into a writer of the caller's.
TEST_P(FormatTest, ListPrintsTheNamesAndCopyDataCopiesEveryBlock) {
    const std::string big(100000, 'b'), pkg = Make(GetParam(), {E::File("a", "1st"), E::File("dir/b", big)});
    const locale_t caller = uselocale(static_cast<locale_t>(nullptr));
    ::testing::internal::CaptureStdout();
    EXPECT_EQ(For(pkg).List(), 0);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "a\ndir/b\n");
    EXPECT_EQ(uselocale(static_cast<locale_t>(nullptr)), caller) << "names read as UTF-8, then the locale given back";
    std::unique_ptr<archive, int (*)(archive*)> r(archive_read_new(), archive_read_free),
        w(archive_write_disk_new(), archive_write_free);
    archive_read_support_filter_all(r.get()), archive_read_support_format_all(r.get());
    ASSERT_EQ(archive_read_open_filename(r.get(), pkg.c_str(), 10240), ARCHIVE_OK);
    archive_entry* entry = nullptr;
    while (archive_read_next_header(r.get(), &entry) == ARCHIVE_OK) {
        archive_entry_set_pathname(entry, (dest + "/" + archive_entry_pathname(entry)).c_str());
        ASSERT_EQ(archive_write_header(w.get(), entry), ARCHIVE_OK) << archive_error_string(w.get());
        EXPECT_EQ(For(pkg).copy_data(r.get(), w.get()), 0);
        archive_write_finish_entry(w.get());
    }
    EXPECT_TRUE(ReadFile(dest + "/a") == "1st" && ReadFile(dest + "/dir/b") == big);
    EXPECT_TRUE(For(pkg).copy_data(nullptr, w.get()) == -1 && For("").List() == -1);
    EXPECT_EQ(Log(), Err("Invalid Argument") + Err("Invalid argument"));
}

INSTANTIATE_TEST_SUITE_P(Formats, FormatTest,
                         ::testing::Values(ArchiveFormat::Tar, ArchiveFormat::TarGz, ArchiveFormat::Zip),
                         [](const auto& info) { return "tar\0tgz\0zip" + 4 * int(info.param); });

}  // namespace
}  // namespace skelda_test
