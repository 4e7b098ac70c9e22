// The launcher's entry: process-wide set-up in a fixed order, the single-instance refusal,
// then the Launcher and the event loop. The order matters: the plug-in folder is set before
// the application object exists; the log is set up before the single-instance test, so a
// refused second instance writes into the same log as the running one; the translator and
// the string table are complete before the Launcher builds its dialog and starts the
// worker thread, which then only reads them. Before all of it, the process is made safe for
// whatever it was started with: no signal from a pipe, and descriptors 0 to 2 open.

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>

#include <QDir>
#include <QStringList>
#include <QTranslator>

#include "launcher.h"
#include "log/log.h"
#include "single-application.h"
#include "skelda-service.h"
#include "str-table.h"
#include "varn-locale.h"

namespace {

// Descriptors 0, 1 and 2 that the starter left closed are opened on /dev/null, before
// anything else opens a file: otherwise the first file opened (the log, a lock) would take
// the lowest free number, so the launcher's own output would land in it, and the client,
// which inherits 0 to 2, would write into the launcher's files. open() takes the lowest
// free number, which is the one tested: all below it are open by then.
void OpenClosedStandardDescriptors() {
    for (int fd = 0; fd <= 2; ++fd) {
        if (fcntl(fd, F_GETFD) != -1 || errno != EBADF)
            continue;
        const int null = open("/dev/null", fd == 0 ? O_RDONLY : O_WRONLY);
        if (null >= 0 && null != fd)
            close(null);
    }
}

}  // namespace

int main(int argc, char* argv[]) {
    // First of all, before any output: a pipe that nobody reads (`skelda-launcher | true`,
    // a parent gone) must not end the run, above all not in the middle of an upgrade. A write
    // there fails with EPIPE and is dropped. The client starts with every signal at its
    // default all the same (mac/bundle-launch-linux.cpp).
    signal(SIGPIPE, SIG_IGN);
    OpenClosedStandardDescriptors();
    setlocale(LC_ALL, "");
    Q_INIT_RESOURCE(texts);

    // The executable's path as given, not resolved: a relative path gives a relative folder.
    const QString plugin_dir = QDir::cleanPath(QString::fromLocal8Bit(argv[0]) +
                                               QStringLiteral("/../../Frameworks/plugins"));
    QCoreApplication::setLibraryPaths(QStringList(plugin_dir));
    printf("lib path = '%s'\n", plugin_dir.toUtf8().constData());
    // Out before the client, which shares this output, can write anything.
    fflush(stdout);

    SingleApplication app(argc, argv, true);

    const ustring debug_file = Service::GetRootSkeldaInstallPath() + "/log/launcher.debug";
    const ustring log_dir = Service::GetUserSkeldaInstallPath() + "/log";
    if (QDir().mkpath(QString::fromUtf8(log_dir.c_str())))
        Logger::Initialize(Logger::LOGFILE, log_dir + "/launcher.log", debug_file, 50);

    if (app.isRunning()) {
        SKLOG(DEBUG, "launcher_debug", "app has already launched, return\n");
        return 0;
    }

    QTranslator translator(nullptr);
    const QString code = VarnLocale::getInstance()->getDefaultLanguage();
    if (translator.load(QStringLiteral(":/") + code + QStringLiteral(".qm"), QString(), QString(),
                        QString()) &&
        !translator.isEmpty())
        QCoreApplication::installTranslator(&translator);

    StrTable::InitStrTable();

    Launcher* launcher = new Launcher();
    launcher->Run();
    launcher->Start();
    const int result = app.exec();
    delete launcher;
    return result;
}
