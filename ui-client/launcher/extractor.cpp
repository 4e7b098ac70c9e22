#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>
#include <locale.h>
// The per-thread locale calls below (newlocale, uselocale, duplocale, freelocale) are declared
// in <locale.h> on Linux and in <xlocale.h> on macOS; Linux has no <xlocale.h>. The one test of
// the platform outside the platform layer: a pair of platform files for a single include would
// be more to keep, and the fuzzer compiles this file on its own.
#if defined(__APPLE__)
#include <xlocale.h>
#endif

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

#include "file/file-op.h"
#include "log/log.h"
#include "notify-adapter.h"
#include "str-table.h"

namespace {

const char kComponent[] = "extractor_debug";

// libarchive reads the file in blocks of this size.
constexpr size_t kBlockSize = 10240;

// An existing file in the way is replaced, names with ".." are refused, macOS metadata is
// restored. Owner, permissions, times, ACLs, flags, xattrs and symlink checks stay off:
// the package is our own and is written by and for the logged-in user.
constexpr int kExtractFlags = ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT |
                              ARCHIVE_EXTRACT_MAC_METADATA;
static_assert(kExtractFlags == 8720, "extraction options changed");

// The text of the string table's row 57 ("desc_skld_env_preparing").
constexpr int kPreparingStrId = 57;

// The package's version file, relative to the application, and the most of it that is held
// in memory. It is the installation's commit record: a run that finds it believes the
// application whole and upgrades nothing, so it is written only once every other entry is
// durable, and made durable itself last. A power cut at any moment then leaves either no
// version file, and the next run upgrades again, or a whole application.
const char kVersionEntry[] = "Contents/Resources/INFO";
constexpr la_int64_t kVersionFileMax = 1 << 20;

// Owners that free their libarchive object on every path out of an operation.
struct ReadFree {
    void operator()(archive* a) const { archive_read_free(a); }
};
struct WriteFree {
    void operator()(archive* a) const { archive_write_free(a); }
};
struct EntryFree {
    void operator()(archive_entry* e) const { archive_entry_free(e); }
};
using Reader = std::unique_ptr<archive, ReadFree>;
using Writer = std::unique_ptr<archive, WriteFree>;

// The version file's entry and bytes, kept back until the rest is on disk.
struct HeldFile {
    std::unique_ptr<archive_entry, EntryFree> entry;
    std::string data;
};

// Package entry names are UTF-8, and libarchive converts them to the character set of the
// current locale, failing for a name such as "Préférences.strings" under "C" or without any
// LANG. While one of these lives, this thread's character set is UTF-8 (everything else of
// the locale stays), so the names land on disk byte for byte under every locale.
class Utf8Names {
public:
    Utf8Names() {
        const locale_t base = duplocale(uselocale(static_cast<locale_t>(nullptr)));
        if (base == static_cast<locale_t>(nullptr))
            return;
        utf8_ = newlocale(LC_CTYPE_MASK, "C.UTF-8", base);
        if (utf8_ == static_cast<locale_t>(nullptr))
            utf8_ = newlocale(LC_CTYPE_MASK, "UTF-8", base);  // macOS spells it so
        if (utf8_ == static_cast<locale_t>(nullptr))
            freelocale(base);  // not taken over: keep the locale as it is
        else
            saved_ = uselocale(utf8_);
    }
    ~Utf8Names() {
        if (utf8_ != static_cast<locale_t>(nullptr)) {
            uselocale(saved_);
            freelocale(utf8_);
        }
    }
    Utf8Names(const Utf8Names&) = delete;
    Utf8Names& operator=(const Utf8Names&) = delete;

private:
    locale_t utf8_ = static_cast<locale_t>(nullptr);
    locale_t saved_ = static_cast<locale_t>(nullptr);
};

// libarchive's text for the last failure of a, followed by the system's reason where there is
// one: a full disk comes as "Write failed" with ENOSPC. EILSEQ is libarchive's code for
// damaged input, whose text already says all.
std::string ErrorText(archive* a) {
    const char* text = archive_error_string(a);
    std::string out = text ? text : "";
    const int err = archive_errno(a);
    if (err > 0 && err != EILSEQ)
        out += (out.empty() ? "" : ": ") + std::string(std::strerror(err));
    return out;
}

// The older name of archive_read_support_filter_all, kept by the extraction path on
// purpose; libarchive marks it deprecated.
int EnableAllCompressions(archive* a) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return archive_read_support_compression_all(a);
#pragma GCC diagnostic pop
}

// Opens the archive for a pass over its headers, as Count and List read it. Logs and gives
// an empty reader when a path is missing or the archive cannot be opened.
Reader OpenHeaderPass(const ustring& dest_dir, const ustring& archive_path) {
    if (dest_dir.empty() || archive_path.empty()) {
        SKLOG(ERROR, kComponent, "Invalid argument\n");
        return nullptr;
    }
    Reader reader(archive_read_new());
    if (!reader) {
        SKLOG(ERROR, kComponent, "Allocate archive failed\n");
        return nullptr;
    }
    archive_read_support_filter_all(reader.get());
    archive_read_support_format_all(reader.get());
    if (archive_read_open_filename(reader.get(), archive_path.c_str_utf8(), kBlockSize) !=
        ARCHIVE_OK) {
        SKLOG(ERROR, kComponent, "archive_read_open_filename failed: '%s'\n",
              ErrorText(reader.get()).c_str());
        return nullptr;
    }
    return reader;
}

// Hands each data block of the reader's current entry to take(buffer, size, offset), which
// answers false to stop. 0 at the end of the entry; -1 when a block cannot be read (logged)
// or take stopped.
template <typename Take>
int ReadDataBlocks(archive* reader, Take take) {
    for (;;) {
        const void* buffer = nullptr;
        size_t size = 0;
        la_int64_t offset = 0;
        const int r = archive_read_data_block(reader, &buffer, &size, &offset);
        if (r == ARCHIVE_EOF)
            return 0;
        if (r != ARCHIVE_OK) {
            SKLOG(ERROR, kComponent, "archive_read_data_block failed: '%s'\n",
                  ErrorText(reader).c_str());
            return -1;
        }
        if (!take(buffer, size, offset))
            return -1;
    }
}

// Whether the entry named `name` in the package is the version file as a plain file (a link
// or a folder of that name is extracted in its place like any other entry).
bool IsVersionFile(const char* name, archive_entry* entry) {
    if (std::strncmp(name, "./", 2) == 0)
        name += 2;
    return std::strcmp(name, kVersionEntry) == 0 && archive_entry_filetype(entry) == AE_IFREG &&
           !archive_entry_hardlink(entry);
}

// Reads the current entry's data into held, in place of extracting it. true, or false logged.
bool HoldBack(archive* reader, archive_entry* entry, HeldFile& held) {
    held.entry.reset(archive_entry_clone(entry));
    held.data.clear();
    if (!held.entry) {
        SKLOG(ERROR, kComponent, "Allocate extractor failed\n");
        return false;
    }
    const auto keep = [&](const void* buffer, size_t size, la_int64_t offset) {
        if (offset < 0 || offset + static_cast<la_int64_t>(size) > kVersionFileMax) {
            SKLOG(ERROR, kComponent, "version file '%s' is larger than %lld bytes\n",
                  archive_entry_pathname(entry), static_cast<long long>(kVersionFileMax));
            return false;
        }
        const size_t end = static_cast<size_t>(offset) + size;
        if (held.data.size() < end)
            held.data.resize(end);  // a hole reads as zeros
        std::memcpy(&held.data[static_cast<size_t>(offset)], buffer, size);
        return true;
    };
    return ReadDataBlocks(reader, keep) == 0;
}

// Makes every entry written so far durable, then writes the held version file, if any, and
// makes it and its folder durable. 0, or -1 logged.
int Commit(archive* writer, const HeldFile& held, const ustring& dest_dir) {
    if (FSSyncVolume(dest_dir) != 0)
        return -1;
    if (!held.entry)
        return 0;
    archive_entry* entry = held.entry.get();
    if (archive_write_header(writer, entry) != ARCHIVE_OK ||
        archive_write_data(writer, held.data.data(), held.data.size()) !=
            static_cast<la_ssize_t>(held.data.size()) ||
        archive_write_finish_entry(writer) != ARCHIVE_OK) {
        SKLOG(ERROR, kComponent, "writing '%s' failed: '%s'\n", archive_entry_pathname(entry),
              ErrorText(writer).c_str());
        return -1;
    }
    const ustring path(archive_entry_pathname(entry));
    return FSSyncPath(path) == 0 && FSSyncPath(FSParentPath(path)) == 0 ? 0 : -1;
}

// Sends (total, n) on when the percentage it shows changes, and always for the first and the
// last entry: the bar has 101 positions, and a report per entry would wake the main thread
// once per file, 100,000 times for a large client.
class Progress {
public:
    explicit Progress(int total) : total_(total) {}
    void Done(int n) {
        const int percent = static_cast<int>(static_cast<long long>(n) * 100 / total_);
        if (n != 1 && n != total_ && percent == shown_)
            return;
        shown_ = percent;
        Notify_Adapter::GetInstance()->UpdateProgress(total_, n);
    }

private:
    const int total_;
    int shown_ = -1;
};

}  // namespace

int Extractor::Count() {
    const Utf8Names names;
    Reader reader = OpenHeaderPass(dest_dir, archive_path);
    if (!reader)
        return -1;
    // The first result other than OK (end, warning or damage) ends the count silently.
    int count = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(reader.get());
    }
    return count;
}

int Extractor::List() {
    const Utf8Names names;
    Reader reader = OpenHeaderPass(dest_dir, archive_path);
    if (!reader)
        return -1;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const char* name = archive_entry_pathname(entry);
        std::printf("%s\n", name ? name : "");
        std::fflush(stdout);
        archive_read_data_skip(reader.get());
    }
    archive_read_close(reader.get());
    return 0;
}

int Extractor::Extract() {
    if (archive_path.empty() || dest_dir.empty()) {
        SKLOG(ERROR, kComponent, "Invalid Argument\n");
        return -1;
    }
    SKLOG(DEBUG, kComponent, "decompress from '%s' to '%s'\n", archive_path.c_str_utf8(),
          dest_dir.c_str_utf8());
    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(kPreparingStrId));
    const Utf8Names names;

    // An empty archive fails here too, so an empty package never replaces an installation.
    const int total = Count();
    if (total < 1) {
        SKLOG(ERROR, kComponent, "Failed to calculate total file numbers, ret: %d\n", total);
        return -1;
    }

    Reader reader(archive_read_new());
    if (!reader) {
        SKLOG(ERROR, kComponent, "Allocate extractor failed\n");
        return -1;
    }
    Writer writer(archive_write_disk_new());
    if (!writer) {
        SKLOG(ERROR, kComponent, "Allocate extractor failed\n");
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kExtractFlags);
    EnableAllCompressions(reader.get());
    archive_read_support_format_all(reader.get());
    if (archive_read_open_filename(reader.get(), archive_path.c_str_utf8(), kBlockSize) !=
        ARCHIVE_OK) {
        SKLOG(ERROR, kComponent, "Failed to read file '%s' ('%s')\n",
              archive_path.c_str_utf8(), ErrorText(reader.get()).c_str());
        return -1;
    }

    Progress progress(total);
    HeldFile version_file;
    for (int n = 1;; ++n) {
        archive_entry* entry = nullptr;
        const int r = archive_read_next_header(reader.get(), &entry);
        if (r == ARCHIVE_EOF)
            return Commit(writer.get(), version_file, dest_dir);
        // Warnings count as failures: a package must read cleanly.
        if (r != ARCHIVE_OK) {
            SKLOG(ERROR, kComponent, "archive_read_next_header failed: '%s'\n",
                  ErrorText(reader.get()).c_str());
            return -1;
        }
        const char* name = archive_entry_pathname(entry);
        if (!name) {
            SKLOG(ERROR, kComponent, "archive_entry_pathname failed");
            return -1;
        }
        // Only the entry's own path moves below dest_dir; a hard-link target is left as is.
        const bool is_version_file = IsVersionFile(name, entry);  // name dies with the rename
        ustring target = dest_dir;
        target += "/";
        target += name;
        archive_entry_set_pathname(entry, target.c_str_utf8());

        if (is_version_file) {
            if (!HoldBack(reader.get(), entry, version_file))
                return -1;
            progress.Done(n);
            continue;
        }
        if (archive_read_extract2(reader.get(), entry, writer.get()) != ARCHIVE_OK) {
            // libarchive moves the writer's failure onto the reader here.
            SKLOG(ERROR, kComponent, "archive_read_extract2 failed: '%s'\n",
                  ErrorText(reader.get()).c_str());
            return -1;
        }
        progress.Done(n);
        if (archive_write_finish_entry(writer.get()) != ARCHIVE_OK) {
            SKLOG(ERROR, kComponent, "archive_write_finish_entry failed: '%s'\n",
                  ErrorText(writer.get()).c_str());
            return -1;
        }
        if (archive_entry_filetype(entry) == AE_IFREG && FSSyncNewFile(target) != 0)
            return -1;
    }
}

int Extractor::copy_data(archive* reader, archive* writer) {
    if (!reader || !writer) {
        SKLOG(ERROR, kComponent, "Invalid Argument\n");
        return -1;
    }
    return ReadDataBlocks(reader, [writer](const void* buffer, size_t size, la_int64_t offset) {
        if (archive_write_data_block(writer, buffer, size, offset) == ARCHIVE_OK)
            return true;
        SKLOG(ERROR, kComponent, "archive_write_data_block failed: '%s'\n",
              ErrorText(writer).c_str());
        return false;
    });
}
