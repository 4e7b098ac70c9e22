#include "mac/bundle-launch.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <signal.h>
#include <spawn.h>

#include "mac/running-client.h"

extern char** environ;

// Linux keeps no database of application bundles, so there is nothing to unregister. The
// result still follows the macOS tool: success for an existing bundle, failure when the
// bundle is missing, so the caller's error handling is exercised the same way on both systems.
int UnregisterBundle(const QString& app_path) {
    return QFileInfo(app_path).isDir() ? 0 : 1;
}

// Without Launch Services the bundle is opened by starting its client executable directly,
// in its own session and in the user's home folder (where a launched application starts on
// macOS too), without waiting for it. Opening an application that already runs only brings
// it forward on macOS, so a client that still runs (the one that wrote the pid file beside
// the bundle) counts as opened and no second copy is started. posix_spawn rather than fork:
// this runs on the worker thread while the main thread is busy, and a forked child of a
// threaded process must not allocate, which QProcess::startDetached does (it hung under
// AddressSanitizer). glibc's posix_spawn reports a failed exec as its result.
// The client gets what a program started afresh gets: no signal blocked, and every signal at
// its default disposition (POSIX_SPAWN_SETSIGDEF with the full set), whatever the launcher
// changed (it ignores SIGPIPE, main.cpp): an ignored signal would otherwise stay ignored
// across the exec. (glibc's own signals 32 and 33, below SIGRTMIN, which no caller can name,
// are left ignored by glibc's posix_spawn itself; a program on glibc sets them up anew.) Its
// descriptors are 0 to 2 alone: everything the launcher opens is close-on-exec, and the rest
// is closed in the child.
bool OpenBundle(const QString& app_path) {
    const QByteArray pid_file = QFile::encodeName(QFileInfo(app_path).path() + "/ui.pid");
    if (RunningClient(pid_file.constData()) > 0)
        return true;
    const QByteArray client =
        QFile::encodeName(app_path + QStringLiteral("/Contents/MacOS/skelda-backup-ui"));
    const QByteArray home = QFile::encodeName(QDir::homePath());
    char* const argv[] = {const_cast<char*>(client.constData()), nullptr};

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, home.constData());
    // Whatever a library holds open at this moment without close-on-exec (Qt's font engine
    // reading a font for the dialog on the main thread) stays with the launcher too.
    posix_spawn_file_actions_addclosefrom_np(&actions, 3);
    posix_spawnattr_t attr;
    posix_spawnattr_init(&attr);
    sigset_t sigs;
    sigemptyset(&sigs);
    posix_spawnattr_setsigmask(&attr, &sigs);
    sigfillset(&sigs);
    posix_spawnattr_setsigdefault(&attr, &sigs);
    posix_spawnattr_setflags(&attr, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK |
                                        POSIX_SPAWN_SETSIGDEF);
    pid_t pid = 0;
    const int rc = posix_spawn(&pid, client.constData(), &actions, &attr, argv, environ);
    posix_spawnattr_destroy(&attr);
    posix_spawn_file_actions_destroy(&actions);
    return rc == 0;
}
