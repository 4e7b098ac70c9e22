// macOS: the stored spelling comes from CoreServices file references, which know the
// on-disk letter case and Unicode composition of case-insensitive volumes; flushes go past
// the drive's cache.

#include "fs-platform.h"

#include <CoreServices/CoreServices.h>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/param.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

// The FSRef calls are deprecated since macOS 10.8 yet still give what is needed here: the
// on-disk spelling of a path, links in the parents resolved and the leaf link optionally not.
// Only their deprecation warning is silenced, and only here, so that -Werror builds pass.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"
int StoredSpelling(const char* path, bool follow_leaf, char* buf, size_t size) {
    std::memset(buf, 0, size);
    FSRef ref;
    OSStatus status = follow_leaf
        ? FSPathMakeRef(reinterpret_cast<const UInt8*>(path), &ref, nullptr)
        : FSPathMakeRefWithOptions(reinterpret_cast<const UInt8*>(path),
                                   kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr);
    if (status != noErr)
        return static_cast<int>(status);
    return static_cast<int>(FSRefMakePath(&ref, reinterpret_cast<UInt8*>(buf),
                                          static_cast<UInt32>(size)));
}
#pragma clang diagnostic pop

int FileSystemTypeName(const char* path, std::string& name) {
    struct statfs fs;
    if (statfs(path, &fs) != 0)
        return -1;
    name = fs.f_fstypename;
    return 0;
}

namespace {

int OpenToFlush(const char* path) {
    // Not blocking: a FIFO in the way must not stop the flush.
    return open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
}

// fcntl(fd, command), or plain fsync where the file system refuses the command (ENOTSUP,
// EINVAL: network and FAT volumes). 0 or errno.
int FcntlSync(const char* path, int command) {
    const int fd = OpenToFlush(path);
    if (fd < 0)
        return errno;
    int rc = fcntl(fd, command) == -1 ? errno : 0;
    if (rc == ENOTSUP || rc == EINVAL)
        rc = fsync(fd) == 0 ? 0 : errno;
    close(fd);
    return rc;
}

}  // namespace

// macOS: fsync stops at the drive's own cache, which may write back in any order and lose
// what it holds at a power cut; only F_FULLFSYNC empties it, at the cost of a full drive
// flush. So each new file gets F_BARRIERFSYNC (its data handed to the drive, ordered before
// what follows) and the batch one F_FULLFSYNC at the end, as Apple advises for many files.
int StartWriteback(const char* path) {
    return FcntlSync(path, F_BARRIERFSYNC);
}

int FlushVolume(const char* path) {
    return FcntlSync(path, F_FULLFSYNC);
}

int FlushOne(const char* path) {
    return FcntlSync(path, F_FULLFSYNC);
}
