#pragma once
// The upgrade service: where the root installation (the launcher's own bundle) and the
// per-user installation (HOME/.SkeldaBackup) live, which version each holds, and the upgrade
// transaction that replaces the per-user application with the packaged one.
//
// Paths are ustring values in UTF-8, joined with "/" and never normalised (only the root
// installation is cleaned once). No path is cached: every getter asks Qt again, so all
// getters of one run agree and a changed HOME is seen at once.

#include <cstdint>

#include "ustring/ustring.h"

// The four values of a version file ("INFO", Qt ini format, group "Version"). A key that is
// missing from the file leaves its field as it was (empty after construction).
struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;
    ustring icon_overlay_version;
};

class Service {
public:
    virtual ~Service();

    // Stops the running client (see MacService).
    virtual void StopService() = 0;
    // Stores the value; nothing reads it (the stop schedule is fixed).
    virtual void SetTimeout(int value);
    // Stops the client when installed, then PrepareUserEnv(). 0 for success.
    virtual int HandlePackageUpgrade() = 0;
    // Starts the per-user client.
    virtual void PostUpgrade() = 0;
    // Loads and logs the target version, then the source version.
    virtual void PreUpgrade() = 0;
    // The upgrade decision; call after PreUpgrade().
    virtual bool IsNeedUpgrade() = 0;
    // Creates APP and extracts the package of the root installation into it. 0 or -1.
    virtual int ExtractPackage();
    // Fills source_version from APP/Contents/Resources/INFO when that file exists.
    virtual void LoadSourceVersion();
    // Fills target_version from ROOT/Contents/Resources/INFO (a missing file has no keys).
    virtual void LoadTargetVersion();
    // Moves APP aside to the first free backup name, extracts the package, then removes
    // the backups (success, 0) or puts the old application back (failure, -1).
    virtual int PrepareUserEnv();

    // Deletes the aged folder USER/app, logging the attempt whether or not it exists.
    void RemoveAgedFolders();
    // Copies a file, or a folder tree depth first. 0 or -1 (entries already copied stay).
    int FSCopyPath(const ustring& src, const ustring& dst);

    // HOME, as QDir::homePath() gives it.
    static ustring GetUserInstallPath();
    // ROOT: the executable's folder + "/../..", cleaned (the bundle holding Contents/MacOS).
    // Needs the application object.
    static ustring GetRootSkeldaInstallPath();
    // ROOT/Contents/Resources.
    static ustring GetRootSkeldaResourceInstallPath();
    // USER: HOME/.SkeldaBackup.
    static ustring GetUserSkeldaInstallPath();
    // APP: USER/Skelda.app.
    static ustring GetUserSkeldaAppInstallPath();
    // USER/data (computed only; the client owns it).
    static ustring GetUserSkeldaDataInstallPath();

    int32_t timeout = 0;
    ustring user_app_path;
    VerInfo target_version;
    VerInfo source_version;
};

// The leading decimal number of text as atol reads it (leading blanks, an optional sign,
// digits up to the first other character; no digits give 0), saturated to the 32-bit range:
// an absurdly large build still compares as newer than every real one, and a huge installed
// build is never downgraded.
int32_t LeadingNumber(const ustring& text);
