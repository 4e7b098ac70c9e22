// Making what was written durable: the file layer's face of the platform's flushes, with the
// system's reason logged for a flush that fails.

#include <cstring>

#include "fs-platform.h"
#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";

int Logged(int err, const char* who, const ustring& path) {
    if (err == 0)
        return 0;
    SKLOG(ERROR, kComponent, "%s: Failed to flush '%s'. %s\n", who, path.c_str(), strerror(err));
    return -1;
}

}  // namespace

int FSSyncNewFile(const ustring& path) {
    return Logged(StartWriteback(path.c_str()), "FSSyncNewFile", path);
}

int FSSyncVolume(const ustring& path) {
    return Logged(FlushVolume(path.c_str()), "FSSyncVolume", path);
}

int FSSyncPath(const ustring& path) {
    return Logged(FlushOne(path.c_str()), "FSSyncPath", path);
}
