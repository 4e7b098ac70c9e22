#include "skelda-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QString>
#include <QVariant>

#include <cctype>
#include <cstdio>
#include <limits>

#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "service_debug";

ustring FromQString(const QString& text) {
    return ustring(text.toUtf8().constData());
}

// Sets each field of info whose key is present in the "Version" group of the ini file at
// path; the other fields keep their values. A missing file simply has no keys.
void ReadVersionFile(const ustring& path, VerInfo& info) {
    QSettings settings(QString::fromUtf8(path.c_str()), QSettings::IniFormat);
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

int32_t BuildNumberFromText(const ustring& text) {
    const char* p = text.c_str();
    while (std::isspace(static_cast<unsigned char>(*p)))
        ++p;
    const bool negative = *p == '-';
    if (*p == '-' || *p == '+')
        ++p;
    // Accumulate towards the sign's own limit so that INT32_MIN itself stays exact.
    const int64_t limit = negative ? -static_cast<int64_t>(std::numeric_limits<int32_t>::min())
                                   : std::numeric_limits<int32_t>::max();
    int64_t magnitude = 0;
    for (; *p >= '0' && *p <= '9'; ++p) {
        magnitude = magnitude * 10 + (*p - '0');
        if (magnitude >= limit) {
            magnitude = limit;
            break;
        }
    }
    return static_cast<int32_t>(negative ? -magnitude : magnitude);
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
