#include "mac/mac-service.h"

#include <QDir>
#include <QString>

#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "config/config.h"
#include "file/file-op.h"
#include "log/log.h"
#include "mac/bundle-launch.h"
#include "mac/process-start.h"

#undef SKLOG_SOURCE_NAME
#define SKLOG_SOURCE_NAME "mac/mac-service.cpp"

namespace {

const char kComponent[] = "service_debug";
const int kStopProbes = 5;

// Whether process pid can have written the pid file at path: it runs and started no later
// than the file was last written. A pid file outlives its client (a crash, a power cut, a
// restart), and its number may since have gone to another program, which must never be
// signalled: a program that started after the file was written cannot have written it.
bool WrotePidFile(pid_t pid, const ustring& path) {
    timespec start, written;
    if (!ProcessStartTime(pid, &start) || !FileModifiedTime(path.c_str(), &written))
        return false;
    if (start.tv_sec > written.tv_sec ||
        (start.tv_sec == written.tv_sec && start.tv_nsec > written.tv_nsec)) {
        SKLOG(NOTE, kComponent, "process %d started after '%s' was written: not the client\n",
              static_cast<int>(pid), path.c_str());
        return false;
    }
    return true;
}

// The positive pid of the config's "pid" key whose process wrote the file at path, else 0.
// 0 and negative ids would address whole process groups, the launcher's own among them.
pid_t ClientPid(const Config& config, const ustring& path) {
    const auto it = config.find("pid");
    const pid_t pid = it == config.end() ? 0 : LeadingNumber(it->second);
    return pid > 0 && WrotePidFile(pid, path) ? pid : 0;
}

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
    Config config;
    if (config.read(path) < 0) {
        SKLOG(NOTE, kComponent, "Failed to read pid file '%s', not exist ?\n", path.c_str());
        return;
    }
    // A missing or empty value, 0, a negative number, text, and a process that did not write
    // the file all mean "nothing to stop".
    const pid_t pid = ClientPid(config, path);
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

pid_t RunningClient(const ustring& pid_file) {
    Config config;
    return config.read(pid_file) < 0 ? 0 : ClientPid(config, pid_file);
}

void MacService::PostUpgrade() {
    if (LaunchPerUserBin() < 0)
        SKLOG(ERROR, kComponent, "Failed to launch Skelda UI\n");
}
