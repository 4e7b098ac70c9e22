// Directory listing.

#include <cerrno>
#include <cstring>

#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";

int TypeFromDirent(unsigned char d_type) {
    switch (d_type) {
    case DT_REG: return FT_REG;
    case DT_DIR: return FT_DIR;
    case DT_LNK: return FT_LNK;
    case DT_CHR:
    case DT_BLK: return FT_DEV;
    case DT_FIFO: return FT_FIFO;
    case DT_SOCK: return FT_SOCK;
    default: return FT_NONE;  // DT_UNKNOWN, DT_WHT and anything newer
    }
}

}  // namespace

int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle) {
    DIR* dir = opendir(path.c_str());
    if (!dir) {
        SKLOG(ERROR, kComponent, "FSOpenDir: Failed to open directory '%s'. %s\n", path.c_str(),
              strerror(errno));
        return -1;
    }
    handle.dir = dir;
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
    // readdir on a stream of its own is thread-safe (readdir_r is deprecated for that
    // reason); errno tells an error from the end of the listing.
    errno = 0;
    struct dirent* ent = readdir(handle.dir);
    if (!ent) {
        if (errno == 0)
            return 0;
        SKLOG(ERROR, kComponent, "FSOpenDir: Failed to read directory '%s'. %s\n",
              handle.path.c_str(), strerror(errno));
        return -1;
    }
    entry.mtime = 0;
    entry.size = 0;
    if (handle.flags & DIR_WITH_INFO) {
        ustring full = handle.path + "/" + ent->d_name;
        _FILE_INFO_tag info;
        if (FSStat(full, info, true) < 0) {
            SKLOG(ERROR, kComponent, "FSOpenDir: Failed to get info for '%s'\n", full.c_str());
            return -1;
        }
        entry.mtime = info.mtime;
        entry.size = info.size;
    }
    entry.name = ent->d_name;
    entry.type = TypeFromDirent(ent->d_type);
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
    if (handle.dir)
        closedir(handle.dir);
    handle.dir = nullptr;
    handle.path.clear();
}
