// macOS: the stored spelling comes from CoreServices file references, which know the
// on-disk letter case and Unicode composition of case-insensitive volumes.

#include "fs-platform.h"

#include <CoreServices/CoreServices.h>
#include <sys/mount.h>
#include <sys/param.h>

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
