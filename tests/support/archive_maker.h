#pragma once
// Writes real archives for tests and benchmarks; names are stored as given, even "../x".

#include <memory>
#include <string>
#include <vector>

struct archive;

namespace skelda_test {

// Pax tar, the same gzip-compressed, zip (deflate); RawGz is one file's bytes gzip-compressed
// with no archive around them (to wrap a damaged tar whose damage must stay in the tar).
enum class ArchiveFormat { Tar, TarGz, Zip, RawGz };
const char* ArchiveFormatName(ArchiveFormat format);  // "tar", "tgz", "zip", "gz"

struct ArchiveEntry {
    enum class Kind { File, Folder, Symlink };
    std::string name;
    Kind kind = Kind::File;
    std::string data;  // the file's content or the link's target
    int mode = 0;      // permission bits; 0 picks 0644 for files, 0755 for folders

    static ArchiveEntry File(std::string name, std::string content, int mode = 0) {
        return {std::move(name), Kind::File, std::move(content), mode};
    }
    static ArchiveEntry Folder(std::string name, int mode = 0) {
        return {std::move(name), Kind::Folder, {}, mode};
    }
    static ArchiveEntry Symlink(std::string name, std::string target) {
        return {std::move(name), Kind::Symlink, std::move(target), 0};
    }
};

// Streaming writer for big archives. Every call returns "" or libarchive's error text.
class ArchiveWriter {
public:
    std::string Open(const std::string& path, ArchiveFormat format);
    std::string Add(const ArchiveEntry& entry);
    // A file of `size` bytes made chunk by chunk: 2 KiB of noise from `seed`, then 2 KiB of
    // repeated text, and so on, so it compresses to about half like an application bundle.
    std::string AddGeneratedFile(const std::string& name, size_t size, unsigned seed);
    std::string Close();  // writes the trailer; the file is complete only after this

private:
    std::string Header(const ArchiveEntry& entry, size_t size);
    std::string Fail(const std::string& what);
    std::unique_ptr<archive, int (*)(archive*)> a_{nullptr, nullptr};  // freed with the writer
};

// One call: writes `entries` in order to `path`. Returns "" or the error text.
std::string WriteArchive(const std::string& path, ArchiveFormat format,
                         const std::vector<ArchiveEntry>& entries);

}  // namespace skelda_test
