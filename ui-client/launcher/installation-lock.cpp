#include "installation-lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "launcher_debug";

int Flock(int fd, int operation) {
    int rc;
    do {
        rc = flock(fd, operation);
    } while (rc != 0 && errno == EINTR);
    return rc;
}

}  // namespace

InstallationLock::InstallationLock(const ustring& folder) {
    const ustring path = folder + "/upgrade.lock";
    if (FSMKDir(folder, true) == 0)
        fd_ = open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0600);
    int rc = fd_ < 0 ? -1 : Flock(fd_, LOCK_EX | LOCK_NB);
    if (rc != 0 && fd_ >= 0 && errno == EWOULDBLOCK) {
        SKLOG(INFO, kComponent, "another run is changing the installation, waiting for '%s'\n",
              path.c_str());
        rc = Flock(fd_, LOCK_EX);
    }
    if (rc != 0) {
        const int err = errno;
        SKLOG(WARNING, kComponent, "cannot lock '%s': %s, going on without the lock\n",
              path.c_str(), std::strerror(err));
        if (fd_ >= 0)
            close(fd_);
        fd_ = -1;
    }
}

InstallationLock::~InstallationLock() {
    if (fd_ >= 0)
        close(fd_);
}
