// Removing a file, a link or a whole tree.

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "file/file-op.h"
#include "file-op-internal.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";

// The folder `name` relative to at, opened for a listing without following a link; path
// names it in the message. A descriptor, or -1 (logged as the listing's opening logs it).
int OpenFolder(int at, const char* name, const ustring& path) {
    const int fd = openat(at, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        SKLOG(ERROR, kComponent, "FSOpenDir: Failed to open directory '%s'. %s\n", path.c_str(),
              strerror(errno));
    return fd;
}

// Removes everything below the open folder dir_fd, which it takes over. Each entry is
// removed relative to its open folder, by the type the listing gives (a lookup only where the
// file system gives none), so a tree of 100,000 files costs one unlink each and no path is
// looked up again. Links are removed themselves, and a folder swapped for a link meanwhile is
// not entered (O_NOFOLLOW). path names the folder in messages. 0 or -3.
int RemoveBelow(int dir_fd, const ustring& path) {
    DIR* dir = fdopendir(dir_fd);
    if (!dir) {
        close(dir_fd);
        return -3;
    }
    int rc = 0;
    for (;;) {
        errno = 0;
        const struct dirent* ent = readdir(dir);
        if (!ent) {
            // A read error ends the listing like its end; the folder's removal then tells.
            if (errno != 0)
                SKLOG(ERROR, kComponent, "FSOpenDir: Failed to read directory '%s'. %s\n",
                      path.c_str(), strerror(errno));
            break;
        }
        const char* name = ent->d_name;
        if (IsDotEntry(name))
            continue;
        bool is_dir = ent->d_type == DT_DIR;
        struct stat st;
        if (ent->d_type == DT_UNKNOWN && fstatat(dir_fd, name, &st, AT_SYMLINK_NOFOLLOW) == 0)
            is_dir = S_ISDIR(st.st_mode);
        if (!is_dir) {
            if (unlinkat(dir_fd, name, 0) != 0) {
                rc = -3;
                break;
            }
            continue;
        }
        const ustring child = path + "/" + name;
        const int child_fd = OpenFolder(dir_fd, name, child);
        if (child_fd < 0 || RemoveBelow(child_fd, child) != 0 ||
            unlinkat(dir_fd, name, AT_REMOVEDIR) != 0) {
            rc = -3;
            break;
        }
    }
    closedir(dir);
    return rc;
}

}  // namespace

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

    // A folder that cannot be opened is left alone, and that counts as done.
    const int dir_fd = OpenFolder(AT_FDCWD, path.c_str(), path);
    if (dir_fd < 0)
        return 0;
    if (RemoveBelow(dir_fd, path) != 0)
        return -3;
    return rmdir(path.c_str()) == 0 ? 0 : -3;
}
