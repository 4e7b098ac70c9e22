// The upgrade service: installation paths, version files and the upgrade transaction.
// Backup and rollback are renames to sibling names inside the per-user installation, so they
// cost the same for any size of application and never copy anything.

#include "skelda-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QString>
#include <QVariant>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "extractor.h"
#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "service_debug";
const int kBackupAttempts = 10;  // APP_tmp, APP_tmp1 ... APP_tmp9

ustring FromQString(const QString& text) {
    return ustring(text.toUtf8().constData());
}

// Whether the version file at path can be read. One that is there but cannot be (no read
// permission, a FIFO or a folder in its place) reads as a file without keys, as a missing one
// does; unlike a missing one it is worth a warning: the upgrade it hides is skipped for good.
bool CanReadVersionFile(const ustring& path) {
    const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0 && errno == ENOENT)
        return false;
    struct stat st;
    const char* why = fd < 0 || fstat(fd, &st) != 0 ? std::strerror(errno)
                      : !S_ISREG(st.st_mode)        ? "not a regular file"
                                                    : nullptr;
    if (fd >= 0)
        close(fd);
    if (why)
        SKLOG(WARNING, kComponent, "cannot read version file '%s': %s\n", path.c_str(), why);
    return !why;
}

// Sets each field of info whose key is present in the "Version" group of the ini file at
// path; the other fields keep their values. A missing file and one that cannot be read have
// no keys. The file is read as UTF-8 under every Qt: Qt 6 knows no other encoding for ini
// files, while Qt 5 would read bytes beyond ASCII as Latin-1 and so could find another build
// in the same file (a byte-order mark before the number, say).
void ReadVersionFile(const ustring& path, VerInfo& info) {
    if (!CanReadVersionFile(path))
        return;
    QSettings settings(QString::fromUtf8(path.c_str()), QSettings::IniFormat);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    settings.setIniCodec("UTF-8");
#endif
    settings.beginGroup(QStringLiteral("Version"));
    const struct {
        const char* key;
        ustring* field;
    } fields[] = {
        {"major_version", &info.major_version},
        {"minor_version", &info.minor_version},
        {"build_version", &info.build_version},
        {"icon_overlay_version", &info.icon_overlay_version},
    };
    for (const auto& f : fields) {
        const QString key = QString::fromLatin1(f.key);
        if (settings.contains(key))
            *f.field = FromQString(settings.value(key, QVariant()).toString());
    }
}

// Backup folder name for an attempt: app_path + "_tmp" for 0, then "_tmp1" ... "_tmp9".
ustring GetAppBackupDir(const ustring& app_path, int attempt) {
    ustring base = app_path + "_tmp";
    if (attempt == 0)
        return base;
    char postfix[8];
    if (std::snprintf(postfix, sizeof postfix, "%d", attempt) < 0) {
        SKLOG(ERROR, kComponent, "snprintf failed (continuing without postfix)");
        postfix[0] = '\0';
    }
    return base + postfix;
}

}  // namespace

Service::~Service() = default;

void Service::SetTimeout(int value) {
    timeout = value;
}

ustring Service::GetUserInstallPath() {
    return FromQString(QDir::homePath());
}

ustring Service::GetRootSkeldaInstallPath() {
    return FromQString(QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                       QStringLiteral("/") + QStringLiteral("../..")));
}

ustring Service::GetRootSkeldaResourceInstallPath() {
    return GetRootSkeldaInstallPath() + "/Contents/Resources";
}

ustring Service::GetUserSkeldaInstallPath() {
    return GetUserInstallPath() + "/" + ".SkeldaBackup";
}

ustring Service::GetUserSkeldaAppInstallPath() {
    return GetUserSkeldaInstallPath() + "/" + "Skelda.app";
}

ustring Service::GetUserSkeldaDataInstallPath() {
    return GetUserSkeldaInstallPath() + "/" + "data";
}

int32_t LeadingNumber(const ustring& text) {
    const long long value = std::strtoll(text.c_str(), nullptr, 10);
    return static_cast<int32_t>(std::clamp<long long>(value, std::numeric_limits<int32_t>::min(),
                                                      std::numeric_limits<int32_t>::max()));
}

void Service::LoadTargetVersion() {
    const ustring path = GetRootSkeldaResourceInstallPath() + "/" + "INFO";
    ReadVersionFile(path, target_version);
    SKLOG(INFO, kComponent, "target_version = (%s, %s, %s, %s)\n",
          target_version.major_version.c_str(), target_version.minor_version.c_str(),
          target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

void Service::LoadSourceVersion() {
    const ustring path = GetUserSkeldaAppInstallPath() + "/Contents/Resources" + "/" + "INFO";
    if (!IsFileExist(path, false)) {
        SKLOG(INFO, kComponent, "source does not exist\n");
        return;
    }
    ReadVersionFile(path, source_version);
    SKLOG(INFO, kComponent, "source_version = (%s, %s, %s, %s)\n",
          source_version.major_version.c_str(), source_version.minor_version.c_str(),
          source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
}

int Service::PrepareUserEnv() {
    const ustring app = user_app_path;
    ustring backup;
    int n = 0;

    if (IsFileExist(app, false)) {
        for (n = 0; n < kBackupAttempts; ++n) {
            backup = GetAppBackupDir(app, n);
            if (FSRename(app, backup, false) == 0)
                break;
            SKLOG(ERROR, kComponent, "failed to backup app from '%s' -> '%s'\n", app.c_str(),
                  backup.c_str());
        }
        if (n == kBackupAttempts) {
            SKLOG(ERROR, kComponent,
                  "failed to backup app from '%s' -> '%s' at max retries, exiting\n",
                  app.c_str(), backup.c_str());
            return -1;
        }
    }

    // The move aside is made durable before anything is written at APP: a power cut during
    // the extraction must find the old application under its backup name, not half a tree of
    // names. A flush that fails counts as a failed extraction.
    const ustring folder = FSParentPath(app);
    if ((!backup.empty() && FSSyncPath(folder) != 0) || ExtractPackage() != 0) {
        if (backup.empty()) {
            SKLOG(ERROR, kComponent,
                  "Failed to extract package, and no old installation to rollback\n");
            // A partial client would be started now and read as current on every later run
            // (and, on a full disk, keep the disk full): nothing of it stays.
            FSRemove(app, false);
            return -1;
        }
        SKLOG(ERROR, kComponent, "Failed to extract package, rollback to old installation\n");
        FSRemove(app, false);
        FSRename(backup, app, false);
        FSSyncPath(folder);
        return -1;
    }

    // Extract succeeded only once the new application is durable: only now may the old go.
    SKLOG(INFO, kComponent, "user installation is ready, removing backup app\n");
    // Also removes the leftovers that blocked the earlier attempts.
    for (int j = 0; j <= n; ++j)
        FSRemove(GetAppBackupDir(app, j), false);
    return 0;
}

int Service::ExtractPackage() {
    const ustring package = GetRootSkeldaResourceInstallPath() + "/package/skelda.vpk";
    const ustring destination = GetUserSkeldaAppInstallPath();
    if (FSMKDir(destination, true) < 0) {
        SKLOG(ERROR, kComponent, "failed to create folder: '%s'\n", destination.c_str());
        return -1;
    }
    SKLOG(INFO, kComponent, "extract package: '%s' -> '%s'\n", package.c_str(),
          destination.c_str());
    Extractor extractor;
    extractor.archive_path = package;
    extractor.dest_dir = destination;
    return extractor.Extract();
}

void Service::RemoveAgedFolders() {
    const ustring path = GetUserSkeldaInstallPath() + "/app";
    SKLOG(INFO, kComponent, "removing aged app folder %s\n", path.c_str());
    FSRemove(path, false);
}

int Service::FSCopyPath(const ustring& src, const ustring& dst) {
    SKLOG(DEBUG, kComponent, "copy from '%s' to '%s'\n", src.c_str(), dst.c_str());
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) < 0) {
        SKLOG(ERROR, kComponent, "FSCopyPath: failed to stat source '%s'\n", src.c_str());
        return -1;
    }
    if (!info.exists) {
        SKLOG(ERROR, kComponent, "FSCopyPath: source path '%s' does not exist\n", src.c_str());
        return -1;
    }
    if (info.type != FT_DIR)
        return FSCopy(src, dst, false) < 0 ? -1 : 0;

    if (FSMKDir(dst, true) < 0) {
        SKLOG(ERROR, kComponent, "FSCopyPath: failed to create dest folder '%s'\n", dst.c_str());
        return -1;
    }
    DIR_HANDLE handle;
    if (FSOpenDir(src, 0, handle) < 0) {
        // The folder counts as copied: dst stays as an empty folder.
        SKLOG(WARNING, kComponent, "FSCopyPath: failed to create handle  for src '%s' failed\n",
              src.c_str());
        return 0;
    }
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) > 0) {
        if (entry.name == ".." || entry.name == ".")
            continue;
        const ustring child_src = src + "/" + entry.name;
        const ustring child_dst = dst + "/" + entry.name;
        const int rc = entry.type == FT_DIR ? FSCopyPath(child_src, child_dst)
                                            : FSCopy(child_src, child_dst, false);
        if (rc < 0) {
            SKLOG(ERROR, kComponent, "FSCopyPath: failed to copy from '%s' to '%s'\n",
                  child_src.c_str(), child_dst.c_str());
            FSCloseDir(handle);
            return -1;
        }
    }
    FSCloseDir(handle);
    return 0;
}
