// Extraction that must fail, and how: hostile names, missing and empty archives, missing
// paths. Nothing written before the failure is removed; the caller rolls back.
#include <QSignalSpy>
#include <gmock/gmock.h>

#include "extractor.h"
#include "extractor_fixture.h"
#include "notify-adapter.h"

namespace skelda_test {
namespace {

using ::testing::ElementsAre;

class ExtractFailureTest : public ExtractorTest,
                           public ::testing::WithParamInterface<ArchiveFormat> {};

TEST_P(ExtractFailureTest, DotDotEntryStopsTheRunAndKeepsWhatCameBefore) {
    const std::string pkg = MakeArchive("pkg", GetParam(),
        {ArchiveEntry::File("first", "1"), ArchiveEntry::File("sub/../../escape", "x"),
         ArchiveEntry::File("after", "2")});
    RelayRecorder relay;

    EXPECT_EQ(ExtractorFor(pkg).Extract(), -1);

    EXPECT_EQ(ReadFile(dest + "/first"), "1");
    EXPECT_FALSE(Exists(path("escape")));
    EXPECT_FALSE(Exists(dest + "/after"));
    EXPECT_THAT(relay.events,
                ElementsAre(std::string("label:") + kPreparingLabel, "progress:3,1"));
    EXPECT_THAT(LogMessages(),
                ElementsAre(DecompressLine(pkg),
                            Msg("ERROR", "archive_read_extract2 failed: 'Path contains '..''\n")));
}

TEST_P(ExtractFailureTest, ArchiveWithoutEntriesIsRefused) {
    const std::string pkg = MakeArchive("empty", GetParam(), {});
    RelayRecorder relay;

    EXPECT_EQ(ExtractorFor(pkg).Extract(), -1);

    EXPECT_THAT(relay.events, ElementsAre(std::string("label:") + kPreparingLabel));
    EXPECT_THAT(LogMessages(),
                ElementsAre(DecompressLine(pkg),
                            Msg("ERROR", "Failed to calculate total file numbers, ret: 0\n")));
}

INSTANTIATE_TEST_SUITE_P(Formats, ExtractFailureTest, ::testing::ValuesIn(AllArchiveFormats()),
                         [](const auto& info) { return ArchiveFormatName(info.param); });

TEST_F(ExtractorTest, MissingArchiveFailsWhileCounting) {
    const std::string missing = path("no-such.vpk");
    RelayRecorder relay;

    EXPECT_EQ(ExtractorFor(missing).Extract(), -1);

    // The label goes out before the count; the count's own failure is logged, then the
    // extraction gives up before it opens a reader and a writer of its own.
    EXPECT_THAT(relay.events, ElementsAre(std::string("label:") + kPreparingLabel));
    EXPECT_THAT(LogMessages(),
                ElementsAre(DecompressLine(missing),
                            Msg("ERROR", "archive_read_open_filename failed: 'Failed to open '" +
                                             missing + "''\n"),
                            Msg("ERROR", "Failed to calculate total file numbers, ret: -1\n")));
}

// Each operation, with one or both paths empty: -1, one exact message, no signal.
struct EmptyPathCase {
    const char* name;
    bool dest_set;
    bool archive_set;
    int (Extractor::*op)();
    const char* message;
};

class EmptyPathTest : public ExtractorTest, public ::testing::WithParamInterface<EmptyPathCase> {};

TEST_P(EmptyPathTest, IsRefusedWithItsMessage) {
    const EmptyPathCase& c = GetParam();
    const std::string pkg = MakeArchive("pkg", ArchiveFormat::Tar, {ArchiveEntry::File("a", "")});
    Extractor ex;
    if (c.dest_set)
        ex.dest_dir = dest.c_str();
    if (c.archive_set)
        ex.archive_path = pkg.c_str();
    RelayRecorder relay;

    EXPECT_EQ((ex.*c.op)(), -1);

    EXPECT_TRUE(relay.events.empty());
    EXPECT_THAT(LogMessages(), ElementsAre(Msg("ERROR", c.message)));
    EXPECT_FALSE(Exists(dest + "/a"));
}

INSTANTIATE_TEST_SUITE_P(
    Operations, EmptyPathTest,
    ::testing::Values(
        EmptyPathCase{"ExtractNoDest", false, true, &Extractor::Extract, "Invalid Argument\n"},
        EmptyPathCase{"ExtractNoArchive", true, false, &Extractor::Extract, "Invalid Argument\n"},
        EmptyPathCase{"ExtractNeither", false, false, &Extractor::Extract, "Invalid Argument\n"},
        EmptyPathCase{"CountNoDest", false, true, &Extractor::Count, "Invalid argument\n"},
        EmptyPathCase{"CountNoArchive", true, false, &Extractor::Count, "Invalid argument\n"},
        EmptyPathCase{"ListNoDest", false, true, &Extractor::List, "Invalid argument\n"},
        EmptyPathCase{"ListNoArchive", true, false, &Extractor::List, "Invalid argument\n"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace skelda_test
