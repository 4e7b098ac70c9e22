#pragma once
// File operations of the support library: inspection, path strings, directory listing, small
// wrappers around single system calls, and the changing operations (folders, copy, move,
// remove). Paths are ustring values handed to the system in their UTF-8 form.
//
// Results: 0 for success and a negative code for failure (codes per operation below);
// predicates answer false on failure; a listing returns 1 per entry and 0 at the end.
// Failures are logged once, where they happen, under the component "file_op_debug".

#include <dirent.h>

#include <cstdint>

#include "ustring/ustring.h"

// File type codes of _FILE_INFO_tag::type and DIR_ENTRY::type. Code 4 is not used.
enum {
    FT_NONE = 0,  // missing, or a directory entry type we do not know
    FT_REG = 1,
    FT_DIR = 2,
    FT_LNK = 3,
    FT_DEV = 5,  // character or block device
    FT_FIFO = 6,
    FT_SOCK = 7,
};

// Bit of DIR_HANDLE::flags: fill mtime and size of every listed entry (costs an FSStat each).
enum { DIR_WITH_INFO = 1 };

struct _FILE_INFO_tag {
    // For an existing file the path as the file system spells it (never ending in "/");
    // for a missing one the argument unchanged.
    ustring path;
    ustring name;  // last component of path
    int32_t type = FT_NONE;
    int32_t mtime = 0;  // low 32 bits of the modification time, seconds since 1970
    int64_t size = 0;   // as lstat reports it, for every type
    bool exists = false;  // a symbolic link exists even when its target does not
    uint32_t uid = 0;
    uint32_t gid = 0;
    uint32_t mode = 0;  // full lstat mode: type and permission bits
    int64_t dev = 0;
};
typedef _FILE_INFO_tag FILE_INFO;

// Compares exists, size, mtime, type, path and name (in that order); uid, gid, mode and dev
// do not take part.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

// An open listing; the caller owns it and closes it with FSCloseDir.
struct DIR_HANDLE {
    ustring path;
    int32_t flags = 0;
    DIR* dir = nullptr;
};

struct DIR_ENTRY {
    ustring name;  // "." and ".." included
    int32_t type = FT_NONE;  // from the entry's own type field, no stat
    int32_t mtime = 0;  // only with DIR_WITH_INFO, else 0
    int64_t size = 0;   // only with DIR_WITH_INFO, else 0
};

// ---- Information and existence ----

// lstat-based record of path (a link is described, not followed). A missing path is success
// with exists false. For an existing path, info.path becomes the stored spelling (letter case,
// Unicode composition and parent links as on disk). 0 or -1.
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);
// -1 for an empty path; a path that IsFileExist rejects sets only info.exists = false and
// returns 0; otherwise 0 when GetFileInfo succeeds and -2 when it fails.
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool case_sensitive);
// case_sensitive: the path must match the stored spelling byte for byte after NFC, so other
// letter case, relative paths, linked parents and a trailing "/" count as missing.
bool IsFileExist(const ustring& path, bool case_sensitive);

// ---- Path strings (no file-system access) ----

// Text before the last "/", or "/" when that "/" is the first byte or there is none.
ustring FSParentPath(const ustring& path);
// Text after the last "/" (empty when path ends in "/"), or the whole path without "/".
ustring FSBaseName(const ustring& path);
// Byte-wise prefix test on a component boundary: /a is a parent of /a and /a/b, not of /ab.
bool FSIsParentFolder(const ustring& parent, const ustring& child);
// Replaces path by its stored spelling with every link resolved, the last one included.
// 0, or -1 with path unchanged.
int FSGetRealPath(ustring& path);

// ---- Directory listing ----

int FSOpenDir(const ustring& path, int flags, DIR_HANDLE& handle);  // 0 or -1
// 1 with the next entry, 0 at the end, -1 on an error (the listing may go on after a failed
// DIR_WITH_INFO lookup).
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
void FSCloseDir(DIR_HANDLE& handle);  // only for a handle FSOpenDir opened

// ---- Single-call wrappers ----

bool FSTimeEqual(long a, long b);
int FSUTime(const ustring& path, long atime, long mtime);  // lutimes: a link itself
int FSChown(const ustring& path, unsigned int uid, unsigned int gid);  // lchown
int FSCreateSymbolicLink(const ustring& target, const ustring& link);
// Fails (-1) for a target of 1024 bytes or more.
int FSReadSymbolicLink(const ustring& path, ustring& target);
// access(path, mode) failing with EACCES or EPERM; any other outcome is "not locked".
bool isFileLocked(const ustring& path, int mode);
// false only when access(path, mode) fails with EACCES or EPERM (a missing file is permitted).
bool hasFilePermission(const ustring& path, int mode);
// true on a network file system ("nfs", "smbfs", "afpfs").
bool isMountPoint(const ustring& path);
// true on an "msdos" (FAT) file system.
bool IsMSDOS(const ustring& path);
// Creates dir/XXXXXX with mkstemp, mode 0644; path receives its name. 0 or -1.
int FSMktemp(const ustring& dir, ustring& path);
// path = a fresh random name inside dir; nothing is created. 0 or -1.
int FSCreateTempPath(const ustring& dir, ustring& path);

// ---- Creating folders, copying, moving, removing ----

// mode of FSMKDirP meaning "0777 under the process umask".
enum { FS_MKDIR_DEFAULT_MODE = 0xFFFF };

// Creates every missing level of path. replace_files: a non-folder in the way is removed and
// replaced by a folder. Any other mode than FS_MKDIR_DEFAULT_MODE is applied exactly. stop_at
// (may be null) receives the position in path.c_str() where the walk stopped. 0 or -1.
int FSMKDirP(const ustring& path, char** stop_at, bool replace_files, unsigned short mode);
// 0 the folder exists (made or found); -1 empty path, information failure or something other
// than a folder in the way (a link to a folder included); -2 creation failed.
int FSMKDir(const ustring& path, bool recursive);
// Creates, one level at a time, the levels of target below root. 0 or -1.
int FSMKDirFromRoot(const ustring& target, const ustring& root);
// Copies the bytes of one file (not its permissions, owner or times) and fsyncs dst.
// 0; -1 failure; -2 the destination is full or over quota. A failed copy leaves dst behind.
int FSCopy(const ustring& src, const ustring& dst, bool remove_source);
// rename(), falling back to a tree-by-tree move between file systems (links, devices, FIFOs
// and sockets are then left where they are). 0; -1 empty argument; -2 source missing or
// unreadable; -3 the move failed; -100 a name too long.
int FSRename(const ustring& src, const ustring& dst, bool case_sensitive);
// Removes a file, a link (never its target) or a whole tree; the bool is ignored, removal is
// always recursive. 0 removed or nothing there; -1 empty path or information failure;
// -3 removal failed.
int FSRemove(const ustring& path, bool recursive);

// ---- Durability ----

// A batch of new files is made durable in two steps: FSSyncNewFile on each file once it is
// complete, then FSSyncVolume on any path of the same volume, after which every file of the
// batch and every name change made so far survive a power cut. FSSyncPath makes one file's
// data, or the names in one folder (a rename into or out of it), durable on its own.
// 0, or -1 with the system's reason logged.
int FSSyncNewFile(const ustring& path);
int FSSyncVolume(const ustring& path);
int FSSyncPath(const ustring& path);
