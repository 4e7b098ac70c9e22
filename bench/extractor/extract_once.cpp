// Runs one Extractor::Extract of <archive> into the existing folder <dest>, as the upgrade
// does, so that run.sh can time it and take its peak memory:  extract_once <archive> <dest>
#include <cstdio>

#include "extractor.h"
#include "str-table.h"

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s <archive> <dest>\n", argv[0]);
        return 2;
    }
    StrTable::InitStrTable();
    Extractor ex;
    ex.archive_path = argv[1];
    ex.dest_dir = argv[2];
    return ex.Extract() == 0 ? 0 : 1;
}
