// The helpers beside Extract: counting, listing names, copying one entry's data blocks.
#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>

#include <memory>

#include "extractor.h"
#include "extractor_fixture.h"

namespace skelda_test {
namespace {

using ::testing::ElementsAre;
using ReadPtr = std::unique_ptr<archive, decltype(&archive_read_free)>;
using WritePtr = std::unique_ptr<archive, decltype(&archive_write_free)>;

class CountListTest : public ExtractorTest, public ::testing::WithParamInterface<ArchiveFormat> {
protected:
    const std::vector<ArchiveEntry> entries{ArchiveEntry::File("one", "1"),
                                            ArchiveEntry::File("dir/two", std::string(5000, 'x')),
                                            ArchiveEntry::Symlink("three", "one")};
};

TEST_P(CountListTest, CountsEveryEntryAndWritesNothing) {
    Extractor ex = ExtractorFor(MakeArchive("pkg", GetParam(), entries));
    EXPECT_EQ(ex.Count(), 3);
    EXPECT_FALSE(Exists(dest + "/one"));
}

TEST_P(CountListTest, ListPrintsOneNamePerLine) {
    Extractor ex = ExtractorFor(MakeArchive("pkg", GetParam(), entries));
    ::testing::internal::CaptureStdout();
    const int r = ex.List();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), "one\ndir/two\nthree\n");
    EXPECT_EQ(r, 0);
}

INSTANTIATE_TEST_SUITE_P(Formats, CountListTest, ::testing::ValuesIn(AllArchiveFormats()),
                         [](const auto& info) { return ArchiveFormatName(info.param); });

TEST_F(ExtractorTest, CountAndListReportAnUnopenableArchive) {
    const std::string missing = path("missing.tar");
    Extractor ex = ExtractorFor(missing);
    const std::string line =
        Msg("ERROR", "archive_read_open_filename failed: 'Failed to open '" + missing + "''\n");

    EXPECT_EQ(ex.Count(), -1);
    EXPECT_EQ(ex.List(), -1);
    EXPECT_THAT(LogMessages(), ElementsAre(line, line));
}

// copy_data between a reader positioned on an entry and a disk writer given its header.
class CopyDataTest : public ExtractorTest {
protected:
    void OpenOn(const std::string& archive_file) {
        ASSERT_EQ(archive_read_support_filter_all(reader.get()), ARCHIVE_OK);
        ASSERT_EQ(archive_read_support_format_all(reader.get()), ARCHIVE_OK);
        ASSERT_EQ(archive_read_open_filename(reader.get(), archive_file.c_str(), 10240),
                  ARCHIVE_OK)
            << archive_error_string(reader.get());
        archive_entry* entry = nullptr;
        ASSERT_EQ(archive_read_next_header(reader.get(), &entry), ARCHIVE_OK)
            << archive_error_string(reader.get());
        archive_entry_set_pathname(entry, (dest + "/copied").c_str());
        ASSERT_EQ(archive_write_header(writer.get(), entry), ARCHIVE_OK)
            << archive_error_string(writer.get());
    }

    ReadPtr reader{archive_read_new(), &archive_read_free};
    WritePtr writer{archive_write_disk_new(), &archive_write_free};
    Extractor ex;
};

TEST_F(CopyDataTest, CopiesEveryBlockOfTheEntry) {
    // Larger than the reader's blocks, so several blocks are copied.
    std::string content;
    for (int i = 0; i < 5000; ++i)
        content += std::to_string(i) + ",";
    OpenOn(MakeArchive("pkg", ArchiveFormat::TarGz, {ArchiveEntry::File("f", content)}));

    EXPECT_EQ(ex.copy_data(reader.get(), writer.get()), 0);
    ASSERT_EQ(archive_write_finish_entry(writer.get()), ARCHIVE_OK);
    EXPECT_EQ(ReadFile(dest + "/copied"), content);
}

TEST_F(CopyDataTest, ReportsAReadFailureWithTheReadersText) {
    const std::string whole =
        ReadFile(MakeArchive("pkg", ArchiveFormat::Tar,
                             {ArchiveEntry::File("f", std::string(20000, 'd'))}));
    WriteFile(path("cut.tar"), whole.substr(0, 512 + 7000));
    OpenOn(path("cut.tar"));

    EXPECT_EQ(ex.copy_data(reader.get(), writer.get()), -1);
    EXPECT_THAT(LogMessages(), ElementsAre(Msg("ERROR", std::string("archive_read_data_block failed: '") +
                                                            archive_error_string(reader.get()) +
                                                            "'\n")));
}

TEST_F(CopyDataTest, ReportsAWriteFailureWithTheWritersText) {
    OpenOn(MakeArchive("pkg", ArchiveFormat::Tar, {ArchiveEntry::File("f", "data")}));
    // A writer that has already finished its entry refuses further data.
    ASSERT_EQ(archive_write_finish_entry(writer.get()), ARCHIVE_OK);
    ASSERT_EQ(archive_write_free(writer.release()), ARCHIVE_OK);
    writer.reset(archive_write_disk_new());

    EXPECT_EQ(ex.copy_data(reader.get(), writer.get()), -1);
    EXPECT_THAT(LogMessages(), ElementsAre(Msg("ERROR", std::string("archive_write_data_block failed: '") +
                                                            archive_error_string(writer.get()) +
                                                            "'\n")));
}

TEST_F(ExtractorTest, CopyDataRefusesMissingArchives) {
    Extractor ex;
    ReadPtr reader{archive_read_new(), &archive_read_free};
    WritePtr writer{archive_write_disk_new(), &archive_write_free};
    EXPECT_EQ(ex.copy_data(nullptr, writer.get()), -1);
    EXPECT_EQ(ex.copy_data(reader.get(), nullptr), -1);
    const std::string line = Msg("ERROR", "Invalid Argument\n");
    EXPECT_THAT(LogMessages(), ElementsAre(line, line));
}

}  // namespace
}  // namespace skelda_test
