// Copying the bytes of one file.

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";
const int kChunkSize = 32 * 1024 * 1024;  // one allocation per call, few system calls

// Copies all of in to out through buf. Returns 0, -1, or -2 for a full disk or quota.
int CopyBytes(int in, int out, char* buf) {
    for (;;) {
        ssize_t got = read(in, buf, kChunkSize);
        if (got < 0) {
            int err = errno;
            SKLOG(ERROR, kComponent, "CopyFile: read: %s (%d)\n", strerror(err), err);
            return -1;
        }
        if (got == 0)
            return 0;
        for (ssize_t done = 0; done < got;) {
            ssize_t put = write(out, buf + done, static_cast<size_t>(got - done));
            if (put <= 0) {
                int err = errno;
                SKLOG(ERROR, kComponent, "CopyFile: write: %s (%d)\n", strerror(err), err);
                return err == ENOSPC || err == EDQUOT ? -2 : -1;
            }
            done += put;
        }
    }
}

}  // namespace

int FSCopy(const ustring& src, const ustring& dst, bool remove_source) {
    int in = open(src.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0) {
        int err = errno;
        SKLOG(ERROR, kComponent, "CopyFile: open(%s): %s (%d)\n", src.c_str(), strerror(err), err);
        return -1;
    }
    int out = open(dst.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (out < 0) {
        int err = errno;
        SKLOG(ERROR, kComponent, "CopyFile: open(%s): %s (%d)\n", dst.c_str(), strerror(err), err);
        close(in);
        return -1;
    }
    int rc = -1;
    char* buf = static_cast<char*>(std::malloc(kChunkSize));
    if (!buf) {
        int err = errno;
        SKLOG(ERROR, kComponent, "FSCopy: malloc(%d): %s (%d)\n", kChunkSize, strerror(err), err);
    } else {
        rc = CopyBytes(in, out, buf);
    }
    if (rc == 0 && remove_source) {
        close(in);
        in = -1;
        if (unlink(src.c_str()) != 0)
            rc = -1;
    }
    if (in >= 0)
        close(in);
    fsync(out);
    close(out);
    std::free(buf);
    return rc;
}
