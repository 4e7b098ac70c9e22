#include "archive_maker.h"

#include <archive.h>
#include <archive_entry.h>

#include <algorithm>
#include <cstdint>
#include <memory>

namespace skelda_test {

namespace {

// A fixed time keeps archives of the same entries byte-identical between runs.
constexpr time_t kEntryTime = 1700000000;

using EntryPtr = std::unique_ptr<archive_entry, decltype(&archive_entry_free)>;

EntryPtr NewEntry(const std::string& name, mode_t type, int perm) {
    EntryPtr e(archive_entry_new(), &archive_entry_free);
    archive_entry_set_pathname(e.get(), name.c_str());
    archive_entry_set_filetype(e.get(), type);
    archive_entry_set_perm(e.get(), perm);
    archive_entry_set_mtime(e.get(), kEntryTime, 0);
    return e;
}

}  // namespace

const char* ArchiveFormatName(ArchiveFormat format) {
    switch (format) {
    case ArchiveFormat::Tar: return "tar";
    case ArchiveFormat::TarGz: return "tgz";
    case ArchiveFormat::Zip: return "zip";
    }
    return "unknown";
}

const std::vector<ArchiveFormat>& AllArchiveFormats() {
    static const std::vector<ArchiveFormat> all{ArchiveFormat::Tar, ArchiveFormat::TarGz,
                                                ArchiveFormat::Zip};
    return all;
}

ArchiveEntry ArchiveEntry::File(std::string name, std::string content, int mode) {
    return {std::move(name), Kind::File, std::move(content), mode};
}
ArchiveEntry ArchiveEntry::Folder(std::string name, int mode) {
    return {std::move(name), Kind::Folder, {}, mode};
}
ArchiveEntry ArchiveEntry::Symlink(std::string name, std::string target) {
    return {std::move(name), Kind::Symlink, std::move(target), 0};
}
ArchiveEntry ArchiveEntry::Hardlink(std::string name, std::string target) {
    return {std::move(name), Kind::Hardlink, std::move(target), 0};
}

ArchiveWriter::~ArchiveWriter() {
    if (a_)
        archive_write_free(a_);  // also closes
}

std::string ArchiveWriter::Fail(const char* what) {
    const char* text = a_ ? archive_error_string(a_) : nullptr;
    return std::string(what) + ": " + (text ? text : "unknown error");
}

std::string ArchiveWriter::Open(const std::string& path, ArchiveFormat format) {
    if (a_)
        return "archive already open";
    a_ = archive_write_new();
    if (!a_)
        return "archive_write_new failed";
    int r = ARCHIVE_OK;
    switch (format) {
    case ArchiveFormat::Tar:
        r = archive_write_set_format_pax_restricted(a_);
        break;
    case ArchiveFormat::TarGz:
        r = archive_write_set_format_pax_restricted(a_);
        if (r == ARCHIVE_OK)
            r = archive_write_add_filter_gzip(a_);
        break;
    case ArchiveFormat::Zip:
        r = archive_write_set_format_zip(a_);
        break;
    }
    if (r != ARCHIVE_OK)
        return Fail("set format");
    if (archive_write_open_filename(a_, path.c_str()) != ARCHIVE_OK)
        return Fail("open");
    return "";
}

std::string ArchiveWriter::Add(const ArchiveEntry& entry) {
    if (!a_)
        return "archive not open";
    EntryPtr e(nullptr, &archive_entry_free);
    switch (entry.kind) {
    case ArchiveEntry::Kind::File:
        e = NewEntry(entry.name, AE_IFREG, entry.mode ? entry.mode : 0644);
        archive_entry_set_size(e.get(), static_cast<la_int64_t>(entry.data.size()));
        break;
    case ArchiveEntry::Kind::Folder:
        e = NewEntry(entry.name, AE_IFDIR, entry.mode ? entry.mode : 0755);
        break;
    case ArchiveEntry::Kind::Symlink:
        e = NewEntry(entry.name, AE_IFLNK, 0777);
        archive_entry_set_symlink(e.get(), entry.data.c_str());
        break;
    case ArchiveEntry::Kind::Hardlink:
        e = NewEntry(entry.name, AE_IFREG, 0644);
        archive_entry_set_hardlink(e.get(), entry.data.c_str());
        archive_entry_set_size(e.get(), 0);
        break;
    }
    if (archive_write_header(a_, e.get()) != ARCHIVE_OK)
        return Fail(("header of '" + entry.name + "'").c_str());
    if (entry.kind == ArchiveEntry::Kind::File && !entry.data.empty() &&
        archive_write_data(a_, entry.data.data(), entry.data.size()) !=
            static_cast<la_ssize_t>(entry.data.size()))
        return Fail(("data of '" + entry.name + "'").c_str());
    return "";
}

std::string ArchiveWriter::AddGeneratedFile(const std::string& name, size_t size,
                                            unsigned seed) {
    if (!a_)
        return "archive not open";
    EntryPtr e = NewEntry(name, AE_IFREG, 0644);
    archive_entry_set_size(e.get(), static_cast<la_int64_t>(size));
    if (archive_write_header(a_, e.get()) != ARCHIVE_OK)
        return Fail(("header of '" + name + "'").c_str());
    static const char kText[] = "Skelda Backup keeps your files safe. ";
    uint32_t noise = seed * 2654435761u + 1;
    char chunk[65536];
    for (size_t done = 0; done < size;) {
        size_t n = std::min(sizeof chunk, size - done);
        for (size_t i = 0; i < n; ++i) {
            size_t at = done + i;
            if ((at >> 11) & 1) {
                chunk[i] = kText[at % (sizeof kText - 1)];
            } else {
                noise = noise * 1103515245u + 12345u;
                chunk[i] = static_cast<char>(noise >> 24);
            }
        }
        if (archive_write_data(a_, chunk, n) != static_cast<la_ssize_t>(n))
            return Fail(("data of '" + name + "'").c_str());
        done += n;
    }
    return "";
}

std::string ArchiveWriter::Close() {
    if (!a_)
        return "archive not open";
    std::string err = archive_write_close(a_) == ARCHIVE_OK ? "" : Fail("close");
    archive_write_free(a_);
    a_ = nullptr;
    return err;
}

std::string WriteArchive(const std::string& path, ArchiveFormat format,
                         const std::vector<ArchiveEntry>& entries,
                         const ArchiveOptions& options) {
    std::vector<const ArchiveEntry*> order;
    const ArchiveEntry* last = nullptr;
    for (const ArchiveEntry& e : entries) {
        if (!last && !options.last_entry.empty() && e.name == options.last_entry)
            last = &e;
        else
            order.push_back(&e);
    }
    if (last)
        order.push_back(last);

    ArchiveWriter w;
    std::string err = w.Open(path, format);
    for (size_t i = 0; err.empty() && i < order.size(); ++i)
        err = w.Add(*order[i]);
    if (!err.empty())
        return err;
    return w.Close();
}

std::string WriteGzipFile(const std::string& path, const std::string& bytes) {
    using WritePtr = std::unique_ptr<archive, decltype(&archive_write_free)>;
    WritePtr a(archive_write_new(), &archive_write_free);
    if (!a)
        return "archive_write_new failed";
    auto fail = [&](const char* what) {
        const char* text = archive_error_string(a.get());
        return std::string(what) + ": " + (text ? text : "unknown error");
    };
    if (archive_write_set_format_raw(a.get()) != ARCHIVE_OK ||
        archive_write_add_filter_gzip(a.get()) != ARCHIVE_OK)
        return fail("set format");
    if (archive_write_open_filename(a.get(), path.c_str()) != ARCHIVE_OK)
        return fail("open");
    EntryPtr e = NewEntry("data", AE_IFREG, 0644);
    archive_entry_set_size(e.get(), static_cast<la_int64_t>(bytes.size()));
    if (archive_write_header(a.get(), e.get()) != ARCHIVE_OK)
        return fail("header");
    if (!bytes.empty() && archive_write_data(a.get(), bytes.data(), bytes.size()) !=
                              static_cast<la_ssize_t>(bytes.size()))
        return fail("data");
    return archive_write_close(a.get()) == ARCHIVE_OK ? "" : fail("close");
}

}  // namespace skelda_test
