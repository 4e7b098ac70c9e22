#pragma once
// The macOS upgrade service: the upgrade decision, stopping the running client through its
// pid file, and starting the per-user client (through the platform layer in bundle-launch.h).

#include "skelda-service.h"

class MacService : public Service {
public:
    // timeout 10000, user_app_path = GetUserSkeldaAppInstallPath().
    MacService();
    ~MacService() override;

    // Ends the client whose id stands in USER/ui.pid: SIGTERM, up to five probes one second
    // apart, then SIGKILL. Only the user's own client that wrote the file is ever signalled.
    void StopService() override;
    int HandlePackageUpgrade() override;
    // LaunchPerUserBin(), logging a failure.
    void PostUpgrade() override;
    void PreUpgrade() override;
    // True when the client executable is missing or the target build is greater than the
    // source build (signed comparison).
    bool IsNeedUpgrade() override;

    // True when APP/Contents/MacOS/skelda-backup-ui exists (existence only).
    bool PerUserBinPathExist();
    // Unregisters APP from Launch Services, then opens it. 0 when it was opened, else -1.
    int LaunchPerUserBin();
    void LoadSourceVerInfo();
    void LoadTargetVerInfo();

    // A process-wide instance, built on first use. The launcher's worker owns its own one.
    static MacService* GetInstace();
};
