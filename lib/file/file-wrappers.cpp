// Thin wrappers around single system calls: times, owner, links, access, file-system type,
// temporary files.

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "fs-platform.h"
#include "file/file-op.h"
#include "log/log.h"
#include "tmp_name_gen/tmp_name_gen.h"

namespace {

const char kComponent[] = "file_op_debug";
const int kLinkBufferSize = 1024;
const size_t kTempPatternSize = 4096;

bool AccessDenied(const ustring& path, int mode) {
    return access(path.c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

// The file-system type name of path, empty (and logged for the caller `who`) when unknown.
std::string TypeName(const ustring& path, const char* who) {
    std::string type;
    if (FileSystemTypeName(path.c_str(), type) != 0) {
        SKLOG(ERROR, kComponent, "%s: Failed to get file system info '%s'. %s\n", who,
              path.c_str(), strerror(errno));
        type.clear();
    }
    return type;
}

}  // namespace

bool FSTimeEqual(long a, long b) {
    return a == b;
}

int FSUTime(const ustring& path, long atime, long mtime) {
    struct timeval times[2] = {};
    times[0].tv_sec = atime;
    times[1].tv_sec = mtime;
    return lutimes(path.c_str(), times) == 0 ? 0 : -1;
}

int FSChown(const ustring& path, unsigned int uid, unsigned int gid) {
    if (lchown(path.c_str(), uid, gid) == 0)
        return 0;
    int err = errno;
    SKLOG(ERROR, kComponent, "FSChown: Failed to chown '%s' (code: %d, msg: %s)\n", path.c_str(),
          err, strerror(err));
    return -1;
}

int FSCreateSymbolicLink(const ustring& target, const ustring& link) {
    if (symlink(target.c_str(), link.c_str()) == 0)
        return 0;
    int err = errno;
    SKLOG(ERROR, kComponent,
          "FSCreateSymbolicLink: Failed to create symbolic link '%s' -> '%s' (code: %d, msg: %s)\n",
          target.c_str(), link.c_str(), err, strerror(err));
    return -1;
}

int FSReadSymbolicLink(const ustring& path, ustring& target) {
    char buf[kLinkBufferSize] = {};
    ssize_t n = readlink(path.c_str(), buf, sizeof(buf));
    if (n < 0) {
        int err = errno;
        SKLOG(ERROR, kComponent,
              "FSReadSymbolicLink: Failed to read symbolic link '%s' (code: %d, msg: %s)\n",
              path.c_str(), err, strerror(err));
        return -1;
    }
    // A full buffer may be a cut-off target: refuse rather than hand out a wrong path.
    if (n >= kLinkBufferSize) {
        SKLOG(ERROR, kComponent, "FSReadSymbolicLink: path of '%s' is more than %d\n",
              path.c_str(), kLinkBufferSize);
        return -1;
    }
    target.assign(buf, static_cast<size_t>(n));
    return 0;
}

bool isFileLocked(const ustring& path, int mode) {
    return AccessDenied(path, mode);
}

bool hasFilePermission(const ustring& path, int mode) {
    return !AccessDenied(path, mode);
}

bool isMountPoint(const ustring& path) {
    const std::string type = TypeName(path, "isMountPoint");
    return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(const ustring& path) {
    if (TypeName(path, "IsSupportLargeFile") != "msdos")
        return false;
    SKLOG(WARNING, kComponent, "Detect a MSDOS platform for path '%s'.\n", path.c_str());
    return true;
}

int FSMktemp(const ustring& dir, ustring& path) {
    char pattern[kTempPatternSize];
    std::snprintf(pattern, sizeof(pattern), "%s/XXXXXX", dir.c_str());
    char made[kTempPatternSize];
    std::memcpy(made, pattern, sizeof(made));  // mkostemp rewrites it even when it fails
    int fd = mkostemp(made, O_CLOEXEC);
    if (fd < 0) {
        SKLOG(ERROR, kComponent, "mkstemp(%s): %s\n", pattern, strerror(errno));
        return -1;
    }
    close(fd);
    path = made;
    chmod(made, 0644);  // mkstemp makes 0600; the file is meant to be shared like others
    return 0;
}

int FSCreateTempPath(const ustring& dir, ustring& path) {
    path = TmpNameGen::getInstance()->getTmpPath(dir);
    return path.empty() ? -1 : 0;
}
