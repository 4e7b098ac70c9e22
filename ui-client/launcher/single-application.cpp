#include "single-application.h"

#include <QCryptographicHash>
#include <QDir>

#include "mac/private-folder.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>

namespace {

// A real folder (not a link) of this user's, which no one else may enter or write.
bool IsPrivateFolder(const QByteArray& folder) {
    struct stat st;
    return !folder.isEmpty() && lstat(folder.constData(), &st) == 0 && S_ISDIR(st.st_mode) &&
           st.st_uid == getuid() && (st.st_mode & 077) == 0;
}

QByteArray LockFileName() {
    const QByteArray exe = QDir::cleanPath(QCoreApplication::applicationFilePath()).toUtf8();
    return "/launcher-" + QCryptographicHash::hash(exe, QCryptographicHash::Sha1).toHex().left(16) +
           ".lock";
}

}  // namespace

SingleApplication::SingleApplication(int& argc, char** argv, bool /*gui*/)
    : QApplication(argc, argv) {
    const QByteArray folder = UserPrivateFolder();
    if (!IsPrivateFolder(folder)) {
        // Someone else's folder, or one open to others: a lock there could be held against
        // us. Running twice is better than never running.
        qWarning("single instance: '%s' is not private to this user, no lock taken",
                 folder.constData());
        return;
    }
    const QByteArray path = folder + LockFileName();
    // Close-on-exec: the client that the launcher starts must not inherit the lock, or it
    // would keep the launcher "running" for as long as the client lives.
    lock_fd_ = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (lock_fd_ < 0) {
        // Without a lock file we cannot tell; running twice is better than never running.
        qWarning("single instance: cannot open '%s': %s", path.constData(), strerror(errno));
        return;
    }
    int rc;
    do {
        rc = flock(lock_fd_, LOCK_EX | LOCK_NB);
    } while (rc != 0 && errno == EINTR);
    if (rc != 0) {
        running_ = errno == EWOULDBLOCK;
        close(lock_fd_);
        lock_fd_ = -1;
    }
    // The file itself is never removed: unlinking it while another launcher has it open
    // but not yet locked would let two instances hold locks on two different files.
}

SingleApplication::~SingleApplication() {
    if (lock_fd_ >= 0)
        close(lock_fd_);
}
