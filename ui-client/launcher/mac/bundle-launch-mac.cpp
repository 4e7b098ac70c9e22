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

bool OpenBundle(const QString& app_path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(app_path));
}
