// Writes a synthetic package for the extraction benchmark:
//   make_package <file> <tar|tgz|zip> <entries> <megabytes>
// One folder per 50 entries, the rest files whose sizes vary around the mean and add up
// to the requested total. Each file is built in memory before it is written.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "archive_maker.h"

using namespace skelda_test;

namespace {

// `size` bytes alternating 2 KiB of noise from `seed` and 2 KiB of text: compresses to half.
std::string GeneratedData(size_t size, unsigned seed) {
    static const char kText[] = "Skelda Backup keeps your files safe. ";
    uint32_t noise = seed * 2654435761u + 1;
    std::string data(size, '\0');
    for (size_t at = 0; at < size; ++at)
        data[at] = (at >> 11) & 1 ? kText[at % (sizeof kText - 1)]
                                  : char((noise = noise * 1103515245u + 12345u) >> 24);
    return data;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fprintf(stderr, "usage: %s <file> <tar|tgz|zip> <entries> <megabytes>\n", argv[0]);
        return 2;
    }
    const std::string kind = argv[2];
    ArchiveFormat format = ArchiveFormat::Tar;
    if (kind == "tgz")
        format = ArchiveFormat::TarGz;
    else if (kind == "zip")
        format = ArchiveFormat::Zip;
    else if (kind != "tar")
        return 2;
    const long entries = std::atol(argv[3]);
    const unsigned long long total = std::strtoull(argv[4], nullptr, 10) << 20;
    if (entries < 2)
        return 2;

    const long folders = entries / 50 + 1;
    const long files = entries - folders;
    const unsigned long long mean = total / static_cast<unsigned long long>(files);
    unsigned long long written = 0;
    ArchiveWriter w;
    std::string err = w.Open(argv[1], format);
    std::string folder;
    for (long i = 0, f = 0; err.empty() && i < entries; ++i) {
        if (i % 50 == 0) {
            folder = "Skelda.app/Contents/part" + std::to_string(f++);
            err = w.Add(ArchiveEntry::Folder(folder));
            continue;
        }
        // Sizes between half and one and a half times the mean; the last file evens out.
        const bool last = i == entries - 1;
        unsigned long long size = mean / 2 + (static_cast<unsigned long long>(i) * 7919) % (mean + 1);
        if (last || written + size > total)
            size = total > written ? total - written : 0;
        written += size;
        err = w.Add(ArchiveEntry::File(folder + "/file" + std::to_string(i),
                                       GeneratedData(size, static_cast<unsigned>(i))));
    }
    if (err.empty())
        err = w.Close();
    if (!err.empty()) {
        std::fprintf(stderr, "make_package: %s\n", err.c_str());
        return 1;
    }
    return 0;
}
