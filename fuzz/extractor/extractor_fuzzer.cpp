// Feeds arbitrary bytes to Extractor::Extract as the package, extracting into a scratch
// folder. Checks, beyond the sanitizers: Extract answers 0 or -1, and for archives without
// links nothing appears beside the destination folder.
//
// Inputs holding symbolic or hard links are only counted, never extracted: the extraction
// options deliberately leave link checks off, so such an archive may write anywhere a link
// points, and fuzzers tend to run as root.
#include <archive.h>
#include <archive_entry.h>

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>

#include "extractor.h"
#include "log/log.h"
#include "str-table.h"

namespace fs = std::filesystem;

namespace {

struct Scratch {
    fs::path root;
    fs::path work;  // holds only "pkg" and "dest" between runs
    fs::path pkg;
    fs::path dest;
};

Scratch& TheScratch() {
    static Scratch s = [] {
        std::string tmpl = (fs::temp_directory_path() / "skelda-fuzz-XXXXXX").string();
        if (!mkdtemp(tmpl.data()))
            std::abort();
        Scratch made;
        made.root = tmpl;
        fs::create_directories(fs::path(tmpl) / "work");
        fs::create_directories(fs::path(tmpl) / "log");
        made.work = fs::path(tmpl) / "work";
        made.pkg = made.work / "pkg";
        made.dest = made.work / "dest";
        // The log lives outside the checked folder; rotation keeps it small.
        if (Logger::Initialize(Logger::LOGFILE, (fs::path(tmpl) / "log/extractor.log").c_str(),
                               ustring(), 2) != 0)
            std::abort();
        return made;
    }();
    return s;
}

void RemoveScratch() {
    Logger::Destroy();
    std::error_code ec;
    fs::remove_all(TheScratch().root, ec);
}

// Reads every header the extraction could reach (warnings do not stop it here, they do
// stop Extract) and says whether one of them is a link.
bool HasLinks(const std::string& file) {
    archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    bool links = false;
    if (archive_read_open_filename(a, file.c_str(), 10240) == ARCHIVE_OK) {
        archive_entry* e = nullptr;
        int r;
        while (!links && ((r = archive_read_next_header(a, &e)) == ARCHIVE_OK ||
                          r == ARCHIVE_WARN)) {
            links = archive_entry_hardlink(e) || archive_entry_symlink(e) ||
                    archive_entry_filetype(e) == AE_IFLNK;
        }
    }
    archive_read_free(a);
    return links;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    StrTable::InitStrTable();
    // A decompression bomb must not fill the disk: file writes beyond the limit fail
    // with EFBIG instead of ending the process.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{64 << 20, 64 << 20};
    setrlimit(RLIMIT_FSIZE, &limit);
    TheScratch();
    std::atexit(RemoveScratch);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Scratch& s = TheScratch();
    {
        std::ofstream out(s.pkg, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    std::error_code ec;
    fs::create_directory(s.dest, ec);

    Extractor ex;
    ex.dest_dir = s.dest.c_str();
    ex.archive_path = s.pkg.c_str();
    const bool links = HasLinks(s.pkg.string());
    const int r = links ? (ex.Count() >= 0 ? 0 : -1) : ex.Extract();
    if (r != 0 && r != -1)
        __builtin_trap();

    if (!links) {
        for (const fs::directory_entry& e : fs::directory_iterator(s.work)) {
            if (e.path() != s.pkg && e.path() != s.dest) {
                std::fprintf(stderr, "written outside the destination: %s\n",
                             e.path().c_str());
                __builtin_trap();
            }
        }
    }
    // Extracted folders may lack write permission; as root that does not matter, and a
    // non-root run makes them writable first.
    for (auto it = fs::recursive_directory_iterator(s.dest, ec);
         !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
        if (it->is_directory(ec) && !it->is_symlink(ec))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
    }
    fs::remove_all(s.dest, ec);
    return 0;
}
