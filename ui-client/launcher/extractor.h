#pragma once
// Unpacks the package archive below a folder with libarchive, reporting progress entry by
// entry through Notify_Adapter. Holds no libarchive objects between calls: every operation
// opens and frees its own reader (and writer) on every path out. Failures are logged under
// "extractor_debug" and answered with -1.

#include "ustring/ustring.h"

struct archive;

class Extractor {
public:
    ustring dest_dir;      // every entry is written below this folder, which must exist
    ustring archive_path;  // the archive to read, in any format libarchive recognises

    // Number of entries whose headers read cleanly, or -1. Both paths must be set.
    int Count();
    // Writes each entry's name, one per line, to standard output. 0 or -1.
    int List();
    // Extracts every entry below dest_dir: sets the dialog label, then reports (total, n)
    // after an entry whenever the percentage changes, and after the first and the last.
    // The version file Contents/Resources/INFO is written last, once every other entry is
    // durable, and made durable itself: 0 means the whole application survives a power cut.
    // -1 at the first failure, a failed flush included (entries already written stay on
    // disk; the caller rolls back). An archive without entries fails.
    int Extract();
    // Copies the current entry's data blocks from reader to writer. 0 or -1.
    int copy_data(archive* reader, archive* writer);
};
