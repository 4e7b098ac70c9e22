#include "archive_maker.h"

#include <archive.h>
#include <archive_entry.h>

namespace skelda_test {

std::string ArchiveWriter::Fail(const std::string& what) {
    const char* text = archive_error_string(a_.get());
    return what + ": " + (text ? text : "unknown error");
}

std::string ArchiveWriter::Open(const std::string& path, ArchiveFormat format) {
    a_ = {archive_write_new(), &archive_write_free};  // free also closes
    archive* a = a_.get();
    int r = format == ArchiveFormat::Zip     ? archive_write_set_format_zip(a)
            : format == ArchiveFormat::RawGz ? archive_write_set_format_raw(a)
                                             : archive_write_set_format_pax_restricted(a);
    if (r == ARCHIVE_OK && (format == ArchiveFormat::TarGz || format == ArchiveFormat::RawGz))
        r = archive_write_add_filter_gzip(a);
    if (r != ARCHIVE_OK)
        return Fail("set format");
    return archive_write_open_filename(a, path.c_str()) == ARCHIVE_OK ? "" : Fail("open");
}

std::string ArchiveWriter::Add(const ArchiveEntry& entry) {
    static const unsigned kTypes[] = {AE_IFREG, AE_IFDIR, AE_IFLNK};  // by ArchiveEntry::Kind
    static const int kPerms[] = {0644, 0755, 0777};
    const int kind = static_cast<int>(entry.kind);
    const bool file = entry.kind == ArchiveEntry::Kind::File;
    archive_entry* e = archive_entry_new();
    archive_entry_set_pathname(e, entry.name.c_str());
    archive_entry_set_filetype(e, kTypes[kind]);
    archive_entry_set_perm(e, kPerms[kind]);
    archive_entry_set_size(e, file ? la_int64_t(entry.data.size()) : 0);
    if (entry.kind == ArchiveEntry::Kind::Symlink)
        archive_entry_set_symlink(e, entry.data.c_str());
    archive_entry_set_mtime(e, 1700000000, 0);  // fixed, so equal entries give equal bytes
    const int r = archive_write_header(a_.get(), e);
    archive_entry_free(e);
    if (r != ARCHIVE_OK)
        return Fail("header of '" + entry.name + "'");
    if (file && !entry.data.empty() && archive_write_data(a_.get(), entry.data.data(), entry.data.size()) !=
                                           static_cast<la_ssize_t>(entry.data.size()))
        return Fail("data of '" + entry.name + "'");
    return "";
}

std::string ArchiveWriter::Close() {
    std::string err = archive_write_close(a_.get()) == ARCHIVE_OK ? "" : Fail("close");
    a_.reset();
    return err;
}

std::string WriteArchive(const std::string& path, ArchiveFormat format,
                         const std::vector<ArchiveEntry>& entries) {
    ArchiveWriter w;
    std::string err = w.Open(path, format);
    for (size_t i = 0; err.empty() && i < entries.size(); ++i)
        err = w.Add(entries[i]);
    return err.empty() ? w.Close() : err;
}

}  // namespace skelda_test
