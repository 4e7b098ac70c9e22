// The upgrade service as a process of its own, as the launcher's worker runs it, for tests and
// scripts/kill-upgrade-trials.sh, which place it in a bundle of their making (the root is two
// folders above the executable). "paths" prints two path getters; "decide" prints need=0|1;
// "upgrade" then upgrades when needed, removes the aged folder, prints rc=N and exits with 1
// when the upgrade failed. Log: USER/log/launcher.log, thresholds in ROOT/log/launcher.debug.

#include <QCoreApplication>
#include <QDir>

#include <cstdio>
#include <string>

#include "log/log.h"
#include "mac/mac-service.h"
#include "str-table.h"

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    StrTable::InitStrTable();
    const std::string mode = argc > 1 ? argv[1] : "";
    const ustring user = Service::GetUserSkeldaInstallPath();
    if (mode == "paths")  // those that no run of the upgrade shows in its log
        return std::printf("root=%s\ndata=%s\n", Service::GetRootSkeldaInstallPath().c_str(),
                           Service::GetUserSkeldaDataInstallPath().c_str()) < 0;
    QDir().mkpath(QString::fromUtf8((user + "/log").c_str()));
    Logger::Initialize(Logger::LOGFILE, user + "/log/launcher.log",
                       Service::GetRootSkeldaInstallPath() + "/log/launcher.debug", 50);
    MacService service;
    service.PreUpgrade();
    const bool need = service.IsNeedUpgrade();
    std::printf("need=%d\n", need ? 1 : 0);
    if (mode != "upgrade")
        return 0;
    const int rc = need ? service.HandlePackageUpgrade() : 0;
    std::printf("rc=%d\n", rc);
    service.RemoveAgedFolders();
    return rc == 0 ? 0 : 1;
}
