#include "mac/mac-service.h"

#include <QDir>
#include <QString>

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "file/file-op.h"
#include "log/log.h"
#include "mac/bundle-launch.h"
#include "mac/running-client.h"

#undef SKLOG_SOURCE_NAME
#define SKLOG_SOURCE_NAME "mac/mac-service.cpp"

namespace {

const char kComponent[] = "service_debug";
const int kStopProbes = 5;

}  // namespace

MacService::MacService() {
    timeout = 10000;
    user_app_path = GetUserSkeldaAppInstallPath();
}

MacService::~MacService() = default;

MacService* MacService::GetInstace() {
    static MacService serv;
    return &serv;
}

void MacService::PreUpgrade() {
    LoadTargetVersion();
    LoadSourceVersion();
    SKLOG(DEBUG, kComponent, "Source version: ('%s', '%s')\n",
          source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
    SKLOG(DEBUG, kComponent, "Target version: ('%s', '%s')\n",
          target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

bool MacService::PerUserBinPathExist() {
    const ustring bin = user_app_path + "/" + "Contents/MacOS" + "/" + "skelda-backup-ui";
    return access(bin.c_str(), F_OK) == 0;
}

bool MacService::IsNeedUpgrade() {
    const int32_t s = source_version.build_version.empty()
                          ? 0
                          : LeadingNumber(source_version.build_version);
    const int32_t t = target_version.build_version.empty()
                          ? 0
                          : LeadingNumber(target_version.build_version);
    SKLOG(DEBUG, kComponent, "source version = %d, target version = %d\n", s, t);
    const bool bin_exists = PerUserBinPathExist();
    return !bin_exists || t > s;
}

void MacService::LoadSourceVerInfo() {
    LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
    LoadTargetVersion();
}

int MacService::HandlePackageUpgrade() {
    if (PerUserBinPathExist()) {
        SKLOG(DEBUG, kComponent, "local appdata exist\n");
        StopService();
    }
    return PrepareUserEnv();
}

void MacService::StopService() {
    const ustring path = GetUserSkeldaInstallPath() + "/ui.pid";
    if (!IsFileExist(path, false)) {
        SKLOG(DEBUG, kComponent, "pid file '%s' does not exist, no need to terminate\n",
              path.c_str());
        return;
    }
    // Only the user's own client that wrote the file is ever signalled (see RunningClient).
    const pid_t pid = RunningClient(path);
    if (pid == 0)
        return;

    if (kill(pid, SIGTERM) != 0) {
        if (errno == ESRCH)
            return;
        const int err = errno;
        SKLOG(ERROR, kComponent, "kill: %s (%d)\n", std::strerror(err), err);
    }
    for (int probe = 0; probe < kStopProbes; ++probe) {
        if (probe > 0)
            sleep(1);
        if (kill(pid, 0) != 0 && errno == ESRCH)
            return;
    }
    sleep(1);
    kill(pid, SIGKILL);
}

int MacService::LaunchPerUserBin() {
    const QString app = QDir::homePath() + QStringLiteral("/.SkeldaBackup/Skelda.app");
    if (UnregisterBundle(app) != 0)
        SKLOG(ERROR, kComponent, "Cannot unregister bundle, %s", app.toUtf8().constData());
    return OpenBundle(app) ? 0 : -1;
}

void MacService::PostUpgrade() {
    if (LaunchPerUserBin() < 0)
        SKLOG(ERROR, kComponent, "Failed to launch Skelda UI\n");
}
