#include "single-application.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>

namespace {

// The per-user runtime folder when the session has one, else the shared temporary folder
// (the uid in the file name keeps users apart there).
QString LockFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QFileInfo(runtime).isDir())
        return runtime;
    return QStringLiteral("/tmp");
}

QString LockFilePath() {
    const QByteArray exe = QDir::cleanPath(QCoreApplication::applicationFilePath()).toUtf8();
    const QByteArray hash = QCryptographicHash::hash(exe, QCryptographicHash::Sha1).toHex();
    return LockFolder() + QStringLiteral("/skelda-launcher-%1-%2.lock")
                              .arg(getuid())
                              .arg(QString::fromLatin1(hash.left(16)));
}

}  // namespace

SingleApplication::SingleApplication(int& argc, char** argv, bool /*gui*/)
    : QApplication(argc, argv) {
    const QByteArray path = QFile::encodeName(LockFilePath());
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
