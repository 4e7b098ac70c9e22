// File information records and existence tests.

#include <sys/stat.h>

#include <cerrno>

#include "fs-platform.h"
#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";
const size_t kSpellingBufferSize = 4096;

int TypeFromMode(mode_t mode) {
    switch (mode & S_IFMT) {
    case S_IFREG: return FT_REG;
    case S_IFDIR: return FT_DIR;
    case S_IFLNK: return FT_LNK;
    case S_IFCHR:
    case S_IFBLK: return FT_DEV;
    case S_IFIFO: return FT_FIFO;
    case S_IFSOCK: return FT_SOCK;
    default: return -1;
    }
}

// Fills info from lstat, path and name as given. A missing path is success with exists
// false; any other lstat failure is -1 with info untouched; an unknown type is -1.
int LstatFileInfo(const ustring& path, _FILE_INFO_tag& info) {
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        if (errno != ENOENT)
            return -1;
        info = _FILE_INFO_tag();
        info.path = path;
        info.name = FSBaseName(path);
        return 0;
    }
    info.exists = true;
    // Only the low 32 bits of the time are kept.
    info.mtime = static_cast<int32_t>(static_cast<uint32_t>(st.st_mtime));
    info.name = FSBaseName(path);
    info.path = path;
    info.size = st.st_size;
    info.uid = st.st_uid;
    info.gid = st.st_gid;
    info.mode = st.st_mode;
    info.dev = static_cast<int64_t>(st.st_dev);
    int type = TypeFromMode(st.st_mode);
    if (type < 0)
        return -1;
    info.type = type;
    return 0;
}

}  // namespace

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime &&
           a.type == b.type && a.path == b.path && a.name == b.name;
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return !(a == b);
}

int GetFileInfo(const ustring& path, _FILE_INFO_tag& info) {
    if (&path == &info.path || &path == &info.name)  // the record is rewritten below
        return GetFileInfo(ustring(path), info);
    if (LstatFileInfo(path, info) != 0)
        return -1;
    if (!info.exists)
        return 0;
    SKLOG(DEBUG, kComponent, "Input file path = [%s].\n", path.c_str());
    char spelling[kSpellingBufferSize];
    if (int status = StoredSpelling(path.c_str(), false, spelling, sizeof(spelling))) {
        SKLOG(ERROR, kComponent, "FSPathMakeRef: %d\n", status);
        return -1;
    }
    SKLOG(DEBUG, kComponent, "FSRefMakePath outTargetPath path = [%s].\n", spelling);
    info.path = spelling;
    info.name = FSBaseName(info.path);
    return 0;
}

bool IsFileExist(const ustring& path, bool case_sensitive) {
    if (path.empty())
        return false;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0 || !info.exists)
        return false;
    if (!case_sensitive)
        return true;
    // Composition may differ between what was typed and what is stored; letter case may not.
    return ustring::normalize(info.path, ustring::NFC) == ustring::normalize(path, ustring::NFC);
}

int FSStat(const ustring& path, _FILE_INFO_tag& info, bool case_sensitive) {
    if (path.empty())
        return -1;
    if (!IsFileExist(path, case_sensitive)) {
        info.exists = false;
        return 0;
    }
    return GetFileInfo(path, info) == 0 ? 0 : -2;
}

int FSGetRealPath(ustring& path) {
    SKLOG(DEBUG, kComponent, " org path [%s]\n", path.c_str());
    char real[kSpellingBufferSize];
    if (StoredSpelling(path.c_str(), true, real, sizeof(real)) != 0)
        return -1;
    path = real;
    SKLOG(DEBUG, kComponent, " get full path [%s]\n", path.c_str());
    return 0;
}
