// Damaged packages: a header that cannot be read ends the count there and fails the
// extraction there; and an archive cut at any length fails cleanly or, when the cut only
// lost the end marker, extracts everything intact. Never a crash, never a half success.
#include <gmock/gmock.h>
#include <unistd.h>

#include "extractor.h"
#include "extractor_fixture.h"

namespace skelda_test {
namespace {

using ::testing::ElementsAre;
using ::testing::MatchesRegex;

// Incompressible content, so that a cut in a compressed archive lands where it is aimed.
std::string NoiseBytes(size_t size, unsigned seed) {
    std::string s(size, '\0');
    unsigned x = seed * 2654435761u + 1;
    for (char& c : s) {
        x = x * 1103515245u + 12345u;
        c = static_cast<char>(x >> 24);
    }
    return s;
}

class TruncationTest : public ExtractorTest, public ::testing::WithParamInterface<ArchiveFormat> {
protected:
    void SetUp() override {
        ExtractorTest::SetUp();
        entries = {ArchiveEntry::File("first.bin", NoiseBytes(3000, 1)),
                   ArchiveEntry::File("second.bin", NoiseBytes(2000, 2)),
                   ArchiveEntry::File("third.bin", NoiseBytes(1000, 3))};
    }
    // The complete archive's bytes; a tgz is made from the tar's bytes by WriteCut.
    std::string WholeBytes() {
        ArchiveFormat f = GetParam() == ArchiveFormat::Zip ? ArchiveFormat::Zip : ArchiveFormat::Tar;
        return ReadFile(MakeArchive("whole", f, entries));
    }
    std::string WriteCut(const std::string& whole, size_t length) {
        const std::string file = path("cut." + std::string(ArchiveFormatName(GetParam())));
        if (GetParam() == ArchiveFormat::TarGz)
            EXPECT_EQ(WriteGzipFile(file, whole.substr(0, length)), "");
        else
            WriteFile(file, whole.substr(0, length));
        return file;
    }

    std::vector<ArchiveEntry> entries;
};

TEST_P(TruncationTest, UnreadableHeaderEndsCountAndFailsExtractionThere) {
    const std::string whole = WholeBytes();
    const size_t name_at = whole.find("third.bin");
    ASSERT_NE(name_at, std::string::npos);
    // tar: the name opens the 512-byte header; zip: it follows the 30 fixed header bytes.
    const size_t cut = GetParam() == ArchiveFormat::Zip ? name_at + 4 : name_at + 100;
    const std::string pkg = WriteCut(whole, cut);
    Extractor ex = ExtractorFor(pkg);

    EXPECT_EQ(ex.Count(), 2);
    EXPECT_TRUE(LogMessages().empty()) << "the count stops silently";

    RelayRecorder relay;
    EXPECT_EQ(ex.Extract(), -1);

    EXPECT_EQ(ReadFile(dest + "/first.bin"), entries[0].data);
    EXPECT_EQ(ReadFile(dest + "/second.bin"), entries[1].data);
    EXPECT_FALSE(Exists(dest + "/third.bin"));
    EXPECT_THAT(relay.events, ElementsAre(std::string("label:") + kPreparingLabel,
                                          "progress:2,1", "progress:2,2"));
    const std::vector<std::string> log = LogMessages();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0], DecompressLine(pkg));
    // libarchive's own reason, read from the reader.
    const std::string reason = GetParam() == ArchiveFormat::Zip ? "Truncated ZIP file header"
                                                                : "Truncated tar archive";
    EXPECT_EQ(log[1], Msg("ERROR", "archive_read_next_header failed: '" + reason + "'\n"));
}

TEST_P(TruncationTest, EveryCutFailsCleanlyOrYieldsEverything) {
    // dest is reused: a success rewrites every entry, so what an earlier cut left there
    // cannot pass for a complete extraction.
    const std::string whole = WholeBytes();
    for (size_t length = 0; length < whole.size(); length += 13) {
        SCOPED_TRACE("archive cut at " + std::to_string(length) + " of " +
                     std::to_string(whole.size()) + " bytes");
        const std::string pkg = WriteCut(whole, length);
        ASSERT_EQ(truncate(path("launcher.log").c_str(), 0), 0);
        RelayRecorder relay;

        const int r = ExtractorFor(pkg).Extract();

        ASSERT_TRUE(r == 0 || r == -1) << "result " << r;
        for (size_t i = 1; i < relay.events.size(); ++i)
            ASSERT_THAT(relay.events[i],
                        MatchesRegex("progress:([1-9][0-9]*)," + std::to_string(i)))
                << "reports count up by one";
        if (r == 0) {
            for (const ArchiveEntry& e : entries)
                ASSERT_EQ(ReadFile(dest + "/" + e.name), e.data) << e.name << " intact";
            ASSERT_EQ(relay.events.back(), "progress:3,3");
        } else {
            const std::vector<std::string> log = LogMessages();
            ASSERT_FALSE(log.empty());
            ASSERT_THAT(log.back(), MatchesRegex(R"(\[ERROR\] extractor\.cpp: .+)"));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formats, TruncationTest, ::testing::ValuesIn(AllArchiveFormats()),
                         [](const auto& info) { return ArchiveFormatName(info.param); });

}  // namespace
}  // namespace skelda_test
