// Moving a file or a folder tree, across file systems where rename() cannot.

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "file-op-internal.h"
#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";

// rename() gave EXDEV for a folder: recreate it at dst and move the children one by one.
int MoveTreeAcross(const ustring& src, const ustring& dst, bool case_sensitive) {
    if (FSMKDir(dst, true) != 0)
        return -3;
    DIR_HANDLE dir;
    if (FSOpenDir(src, 0, dir) != 0)
        return -3;
    DIR_ENTRY entry;
    while (FSReadDir(dir, entry) == 1) {
        if (IsDotEntry(entry.name.c_str()))
            continue;
        if (FSRename(src + "/" + entry.name, dst + "/" + entry.name, case_sensitive) != 0) {
            FSCloseDir(dir);
            return -3;
        }
    }
    FSCloseDir(dir);
    return remove(src.c_str()) == 0 ? 0 : -3;
}

}  // namespace

int FSRename(const ustring& src, const ustring& dst, bool case_sensitive) {
    if (src.empty() || dst.empty())
        return -1;
    _FILE_INFO_tag info;
    if (FSStat(src, info, case_sensitive) < 0 || !info.exists)
        return -2;
    if (rename(src.c_str(), dst.c_str()) == 0)
        return 0;
    const int err = errno;
    if (err != EXDEV) {
        // The system's reason, which the callers' own lines (the service's) do not carry.
        SKLOG(ERROR, kComponent, "FSRename: rename('%s' -> '%s'): %s (%d)\n", src.c_str(),
              dst.c_str(), strerror(err), err);
        return err == ENAMETOOLONG ? -100 : -3;
    }
    switch (info.type) {
    case FT_DIR:
        return MoveTreeAcross(src, dst, case_sensitive);
    case FT_REG:
        return FSCopy(src, dst, true) < 0 ? -3 : 0;
    default:
        // Links, devices, FIFOs and sockets are not recreated on the other side.
        return 0;
    }
}
