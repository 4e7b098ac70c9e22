#include "mac/bundle-launch.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStringList>
#include <QUrl>

namespace {
const char kLaunchServicesTool[] =
    "/System/Library/Frameworks/CoreServices.framework/Frameworks/LaunchServices.framework"
    "/Support/lsregister";
}

int UnregisterBundle(const QString& app_path) {
    return QProcess::execute(QString::fromLatin1(kLaunchServicesTool),
                             QStringList() << QStringLiteral("-u") << app_path);
}

// The launcher's process state is not passed on here, so nothing needs resetting (unlike the
// Linux opening, which spawns the client and gives it default signal dispositions): Launch
// Services has the application started by launchd, as the Finder or the Dock would, not as a
// child of the launcher. The client therefore inherits neither the launcher's ignored SIGPIPE
// (main.cpp) nor its signal mask nor any of its descriptors. lsregister, above, is our child
// (QProcess) and may keep SIGPIPE ignored: a short-lived tool whose output we do not read,
// which then gets EPIPE instead of dying on a dead standard output.
bool OpenBundle(const QString& app_path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(app_path));
}
