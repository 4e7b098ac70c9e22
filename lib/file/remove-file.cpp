// Removing a file, a link or a whole tree.

#include <unistd.h>

#include "file/file-op.h"
#include "file-op-internal.h"

int FSRemove(const ustring& path, bool /*recursive: removal is always recursive*/) {
    if (path.empty())
        return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0)
        return -1;
    if (!info.exists)
        return 0;
    if (info.type != FT_DIR)  // a link goes itself, never its target
        return unlink(path.c_str()) == 0 ? 0 : -3;

    DIR_HANDLE dir;
    if (FSOpenDir(path, 0, dir) != 0)
        return 0;
    int rc = 0;
    DIR_ENTRY entry;
    while (FSReadDir(dir, entry) == 1) {
        if (IsDotEntry(entry.name))
            continue;
        if (FSRemove(path + "/" + entry.name, false) != 0) {
            rc = -3;
            break;
        }
    }
    FSCloseDir(dir);
    if (rc != 0)
        return rc;
    return rmdir(path.c_str()) == 0 ? 0 : -3;
}
