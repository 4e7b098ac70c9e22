// Copying the bytes of one file.

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "file/file-op.h"
#include "fs-platform.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";
const int kChunkSize = 32 * 1024 * 1024;  // one allocation per call, few system calls

// Logs a failed write and gives FSCopy's result for it: -2 for a full disk or quota.
int WriteFailed(int err) {
    SKLOG(ERROR, kComponent, "CopyFile: write: %s (%d)\n", strerror(err), err);
    return err == ENOSPC || err == EDQUOT ? -2 : -1;
}

// One chunk read into buf and written out whole. Returns the bytes copied, 0 at the end of
// in, or FSCopy's result code (-1, -2) after logging.
ssize_t CopyChunkThroughBuffer(int in, int out, char* buf) {
    ssize_t got;
    while ((got = read(in, buf, kChunkSize)) < 0 && errno == EINTR) {
    }
    if (got < 0) {
        int err = errno;
        SKLOG(ERROR, kComponent, "CopyFile: read: %s (%d)\n", strerror(err), err);
        return -1;
    }
    for (ssize_t done = 0; done < got;) {
        ssize_t put = write(out, buf + done, static_cast<size_t>(got - done));
        if (put < 0 && errno == EINTR)
            continue;
        if (put <= 0)
            return WriteFailed(put == 0 ? ENOSPC : errno);
        done += put;
    }
    return got;
}

// Copies all of in to out: inside the kernel where the system can, else through buf.
// Returns 0, -1 or -2.
int CopyBytes(int in, int out, char* buf) {
    bool in_kernel = true;
    for (off_t copied = 0;;) {
        ssize_t got;
        if (in_kernel) {
            got = CopyInKernel(in, out, kChunkSize);
            if (got < 0 && errno == ENOSYS) {
                in_kernel = false;  // both offsets stand where the kernel stopped
                continue;
            }
            if (got < 0 && errno == EINTR)
                continue;
            // Nearly everything that fails here fails on the destination's side.
            if (got < 0)
                return WriteFailed(errno);
        } else {
            got = CopyChunkThroughBuffer(in, out, buf);
            if (got < 0)
                return static_cast<int>(got);
        }
        if (got == 0)
            return 0;
        StartWriteback(out, copied, got);
        copied += got;
    }
}

}  // namespace

int FSCopy(const ustring& src, const ustring& dst, bool remove_source) {
    int in = open(src.c_str(), O_RDONLY);
    if (in < 0) {
        int err = errno;
        SKLOG(ERROR, kComponent, "CopyFile: open(%s): %s (%d)\n", src.c_str(), strerror(err), err);
        return -1;
    }
    int out = open(dst.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    if (out < 0) {
        int err = errno;
        SKLOG(ERROR, kComponent, "CopyFile: open(%s): %s (%d)\n", dst.c_str(), strerror(err), err);
        close(in);
        return -1;
    }
    int rc = -1;
    // Untouched (so cheap) when the kernel does the copy; needed when it cannot.
    char* buf = static_cast<char*>(std::malloc(kChunkSize));
    if (!buf) {
        int err = errno;
        SKLOG(ERROR, kComponent, "FSCopy: malloc(%d): %s (%d)\n", kChunkSize, strerror(err), err);
    } else {
        rc = CopyBytes(in, out, buf);
    }
    if (rc == 0 && remove_source) {
        // The copy must be on disk before the only other copy goes away; a full disk can
        // still show up here on file systems that allocate late.
        if (fsync(out) != 0) {
            rc = WriteFailed(errno);
        } else {
            close(in);
            in = -1;
            if (unlink(src.c_str()) != 0)
                rc = -1;
        }
    }
    if (in >= 0)
        close(in);
    fsync(out);
    close(out);
    std::free(buf);
    return rc;
}
