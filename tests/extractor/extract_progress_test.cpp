// A clean extraction in every archive format: what lands on disk, what the dialog is told
// and in which order, and what is logged.
#include <QSignalSpy>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "extractor.h"
#include "extractor_fixture.h"
#include "notify-adapter.h"

namespace skelda_test {
namespace {

using ::testing::ElementsAre;

class ExtractFormatTest : public ExtractorTest,
                          public ::testing::WithParamInterface<ArchiveFormat> {};

std::string LinkTarget(const std::string& path) {
    char buf[256];
    ssize_t n = readlink(path.c_str(), buf, sizeof buf);
    return n < 0 ? std::string() : std::string(buf, static_cast<size_t>(n));
}

TEST_P(ExtractFormatTest, ThreeEntriesLandBelowDestWithOneReportEach) {
    const std::string pkg = MakeArchive("pkg", GetParam(),
        {ArchiveEntry::Folder("Skelda.app"),
         ArchiveEntry::File("Skelda.app/INFO", "[Version]\nbuild_version=42\n"),
         ArchiveEntry::Symlink("Skelda.app/current", "INFO")});
    Extractor ex = ExtractorFor(pkg);
    QSignalSpy progress(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress);
    QSignalSpy labels(Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateDialogText);
    RelayRecorder order;

    ASSERT_EQ(ex.Extract(), 0);

    struct stat st;
    ASSERT_EQ(lstat((dest + "/Skelda.app").c_str(), &st), 0);
    EXPECT_TRUE(S_ISDIR(st.st_mode));
    EXPECT_EQ(ReadFile(dest + "/Skelda.app/INFO"), "[Version]\nbuild_version=42\n");
    EXPECT_EQ(LinkTarget(dest + "/Skelda.app/current"), "INFO");

    ASSERT_EQ(progress.count(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(progress.at(i).at(0).toInt(), 3) << "total of report " << i;
        EXPECT_EQ(progress.at(i).at(1).toInt(), i + 1) << "count of report " << i;
    }
    ASSERT_EQ(labels.count(), 1);
    EXPECT_EQ(labels.at(0).at(0).toString(), QString(kPreparingLabel));
    EXPECT_THAT(order.events, ElementsAre(std::string("label:") + kPreparingLabel,
                                          "progress:3,1", "progress:3,2", "progress:3,3"));

    EXPECT_THAT(LogMessages(),
                ElementsAre(DecompressLine(pkg)));
}

TEST_P(ExtractFormatTest, EntriesReplaceRegularFilesInTheirWay) {
    MakeDirs(dest + "/app");
    WriteFile(dest + "/app/client", "old build, longer than the new one");
    WriteFile(dest + "/app/Resources", "a file where the folder goes");
    const std::string pkg = MakeArchive("pkg", GetParam(),
        {ArchiveEntry::File("app/client", "new build"), ArchiveEntry::Folder("app/Resources"),
         ArchiveEntry::File("app/Resources/INFO", "info")});

    ASSERT_EQ(ExtractorFor(pkg).Extract(), 0);

    EXPECT_EQ(ReadFile(dest + "/app/client"), "new build");
    EXPECT_EQ(ReadFile(dest + "/app/Resources/INFO"), "info");
}

TEST_P(ExtractFormatTest, AbsoluteNamesStayBelowDest) {
    const std::string outside = path("outside");
    const std::string pkg = MakeArchive("pkg", GetParam(),
        {ArchiveEntry::File(outside, "caught")});

    ASSERT_EQ(ExtractorFor(pkg).Extract(), 0);

    EXPECT_FALSE(Exists(outside));
    EXPECT_EQ(ReadFile(dest + outside), "caught");
}

// Only an entry's own path moves below dest: a hard link's target is used as written, so
// a relative one resolves against the process's working folder. Packages must therefore
// not carry hard links; this pins the behaviour down.
TEST_F(ExtractorTest, HardLinkTargetResolvesAgainstTheWorkingFolder) {
    const std::string pkg = path("links.tar");
    ASSERT_EQ(WriteArchive(pkg, ArchiveFormat::Tar,
                           {ArchiveEntry::File("a", "inside"), ArchiveEntry::Hardlink("b", "a")}),
              "");
    WriteFile(path("a"), "outside");
    char cwd[4096];
    ASSERT_NE(getcwd(cwd, sizeof cwd), nullptr);
    ASSERT_EQ(chdir(dir().c_str()), 0);
    const int r = ExtractorFor(pkg).Extract();
    ASSERT_EQ(chdir(cwd), 0);

    ASSERT_EQ(r, 0);
    struct stat linked, outside;
    ASSERT_EQ(lstat((dest + "/b").c_str(), &linked), 0);
    ASSERT_EQ(lstat(path("a").c_str(), &outside), 0);
    EXPECT_EQ(linked.st_ino, outside.st_ino) << "b is a second name of the working folder's a";
    EXPECT_EQ(ReadFile(dest + "/a"), "inside");
}

INSTANTIATE_TEST_SUITE_P(Formats, ExtractFormatTest, ::testing::ValuesIn(AllArchiveFormats()),
                         [](const auto& info) { return ArchiveFormatName(info.param); });

}  // namespace
}  // namespace skelda_test
