#pragma once
// Writes real archives for tests and benchmarks with libarchive's own writer.
//
//   using namespace skelda_test;
//   std::string err = WriteArchive(dir + "/pkg.tgz", ArchiveFormat::TarGz,
//       {ArchiveEntry::Folder("Contents"),
//        ArchiveEntry::File("Contents/INFO", "[Version]\nbuild_version=7\n"),
//        ArchiveEntry::Symlink("Contents/current", "INFO")},
//       {/*last_entry=*/"Contents"});
//   ASSERT_EQ(err, "");
//
// Entries are written in the order given, except that ArchiveOptions::last_entry (when it
// names an entry) is moved to the end: handy when a test needs one particular entry to be
// the one that a truncation or a failure reaches last.
//
// Names are stored exactly as given (no normalisation), so a test can write hostile
// names such as "../escape" or "/abs". Formats: POSIX pax tar, the same gzip-compressed,
// and zip (deflate). Zip cannot hold hard links: libarchive writes one as an empty file.
// For big archives use ArchiveWriter directly and stream entries without holding them all.

#include <string>
#include <vector>

struct archive;

namespace skelda_test {

enum class ArchiveFormat { Tar, TarGz, Zip };

// A short name for test parameter names and file suffixes: "tar", "tgz", "zip".
const char* ArchiveFormatName(ArchiveFormat format);
// All formats, for INSTANTIATE_TEST_SUITE_P(..., ::testing::ValuesIn(AllArchiveFormats())).
const std::vector<ArchiveFormat>& AllArchiveFormats();

struct ArchiveEntry {
    enum class Kind { File, Folder, Symlink, Hardlink };

    std::string name;
    Kind kind = Kind::File;
    std::string data;  // the file's content, or the link's target
    int mode = 0;      // permission bits; 0 picks 0644 for files, 0755 for folders, 0777 links

    static ArchiveEntry File(std::string name, std::string content, int mode = 0);
    static ArchiveEntry Folder(std::string name, int mode = 0);
    static ArchiveEntry Symlink(std::string name, std::string target);
    static ArchiveEntry Hardlink(std::string name, std::string target);
};

struct ArchiveOptions {
    std::string last_entry;  // name of the entry to write last; empty keeps the given order
};

// Streaming writer. Every operation returns "" on success or libarchive's error text.
class ArchiveWriter {
public:
    ArchiveWriter() = default;
    ~ArchiveWriter();  // closes and frees the archive if Close() was not called
    ArchiveWriter(const ArchiveWriter&) = delete;
    ArchiveWriter& operator=(const ArchiveWriter&) = delete;

    std::string Open(const std::string& path, ArchiveFormat format);
    std::string Add(const ArchiveEntry& entry);
    // A regular file of `size` bytes produced chunk by chunk, never held whole. The content
    // alternates 2 KiB of noise (from `seed`) with 2 KiB of repeated text, so it compresses
    // to about half, like a real application bundle.
    std::string AddGeneratedFile(const std::string& name, size_t size, unsigned seed);
    std::string Close();  // writes the trailer; the file is complete only after this

private:
    std::string Fail(const char* what);
    archive* a_ = nullptr;
};

// One call: writes `entries` to `path` in `format`. Returns "" or the error text.
std::string WriteArchive(const std::string& path, ArchiveFormat format,
                         const std::vector<ArchiveEntry>& entries,
                         const ArchiveOptions& options = {});

// Writes `bytes` gzip-compressed as one intact stream (libarchive's raw format): wraps a
// damaged tar so that the damage sits in the tar layer, not in the compression.
std::string WriteGzipFile(const std::string& path, const std::string& bytes);

}  // namespace skelda_test
