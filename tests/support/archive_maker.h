#pragma once
// Writes real archives for tests and benchmarks; names are stored as given, even "../x".

#include <memory>
#include <string>
#include <vector>

struct archive;

namespace skelda_test {

// Pax tar, the same gzip-compressed, zip (deflate); RawGz: one file's bytes gzip-compressed.
enum class ArchiveFormat { Tar, TarGz, Zip, RawGz };

struct ArchiveEntry {
    enum class Kind { File, Folder, Symlink };
    std::string name;
    Kind kind;
    std::string data;  // the file's content or the link's target
    static ArchiveEntry File(std::string n, std::string data) { return {n, Kind::File, data}; }
    static ArchiveEntry Folder(std::string n) { return {n, Kind::Folder, {}}; }
    static ArchiveEntry Symlink(std::string n, std::string to) { return {n, Kind::Symlink, to}; }
};

// Writer for archives of many entries. Every call returns "" or libarchive's error text.
class ArchiveWriter {
public:
    std::string Open(const std::string& path, ArchiveFormat format);
    std::string Add(const ArchiveEntry& entry);
    std::string Close();  // writes the trailer; the file is complete only after this

private:
    std::string Fail(const std::string& what);
    std::unique_ptr<archive, int (*)(archive*)> a_{nullptr, nullptr};  // freed with the writer
};

// One call: writes `entries` in order to `path`. Returns "" or the error text.
std::string WriteArchive(const std::string& path, ArchiveFormat format,
                         const std::vector<ArchiveEntry>& entries);

}  // namespace skelda_test
