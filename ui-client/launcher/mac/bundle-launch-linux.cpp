#include "mac/bundle-launch.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStringList>

// Linux keeps no database of application bundles, so there is nothing to unregister. The
// result still follows the macOS tool: success for an existing bundle, failure when the
// bundle is missing, so the caller's error handling is exercised the same way on both systems.
int UnregisterBundle(const QString& app_path) {
    return QFileInfo(app_path).isDir() ? 0 : 1;
}

// Without Launch Services the bundle is opened by starting its client executable directly,
// detached, in the user's home folder (where a launched application starts on macOS too).
bool OpenBundle(const QString& app_path) {
    const QString client = app_path + QStringLiteral("/Contents/MacOS/skelda-backup-ui");
    return QProcess::startDetached(client, QStringList(), QDir::homePath());
}
