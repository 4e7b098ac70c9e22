// Whole runs in-process against a real root installation: this test binary is built into
// the bundle folder UpgradeRun.app/Contents/MacOS, so the service finds the version file,
// the package and the icon that the fixture writes beside it. The package holds 7 entries,
// so a successful upgrade shows 14, 28, 42, 57, 71, 85 and 100 percent.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>
#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QTimer>
#include <chrono>
#include <cstring>
#include <thread>

#include "archive_maker.h"
#include "launcher.h"
#include "launcher_probe.h"
#include "processing-progress-dialog.h"
#include "temp_dir.h"

namespace skelda_test {
namespace {

const char kInfo[] =
    "[Version]\nmajor_version=1\nminor_version=0\nbuild_version=7\n"
    "icon_overlay_version=0\n";
// A client that records its pid the way the real one does and ends at once.
const char kClient[] = "#!/bin/sh\nprintf 'pid=%s\\n' \"$$\" > \"$HOME/.SkeldaBackup/ui.pid\"\n";

std::string RootInstallation() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../..").toStdString();
}

class UpgradeRunTest : public TempDirTest {
protected:
    // The root installation is shared by the cases of this binary, which CTest may run in
    // parallel processes: each file is written under a name of this process and renamed
    // into place, so a run only ever sees a complete file.
    static void SetUpTestSuite() {
        const std::string res = RootInstallation() + "/Contents/Resources";
        MakeDirs(res + "/package");
        MakeDirs(res + "/images");
        const std::string tmp = res + "/new-" + std::to_string(getpid());
        WriteFile(tmp, kInfo);
        Publish(tmp, res + "/INFO");
        WriteFile(tmp, ReadFile(SKELDA_ICON_FILE));
        Publish(tmp, res + "/images/ico_72_skelda.png");
        const std::string err =
            WriteArchive(tmp, ArchiveFormat::TarGz,
                         {ArchiveEntry::Folder("Contents"), ArchiveEntry::Folder("Contents/MacOS"),
                          ArchiveEntry::File("Contents/MacOS/skelda-backup-ui", kClient, 0755),
                          ArchiveEntry::Folder("Contents/Resources"),
                          ArchiveEntry::File("Contents/Resources/a.txt", "a"),
                          ArchiveEntry::File("Contents/Resources/b.txt", "b"),
                          ArchiveEntry::File("Contents/Resources/INFO", kInfo)});
        ASSERT_EQ(err, "");
        Publish(tmp, res + "/package/skelda.vpk");
    }

    static void Publish(const std::string& from, const std::string& to) {
        ASSERT_EQ(rename(from.c_str(), to.c_str()), 0) << to << ": " << strerror(errno);
    }

    std::string app() const { return home() + "/.SkeldaBackup/Skelda.app"; }
    std::string pid_file() const { return home() + "/.SkeldaBackup/ui.pid"; }

    // One run as main drives it; returns the event loop's result.
    static int RunLauncher(Launcher& launcher) {
        launcher.Run();
        launcher.Start();
        QTimer::singleShot(60000, [] { QCoreApplication::exit(99); });  // a hung run fails
        return QApplication::exec();
    }

    // The client is started detached; its pid file shows that it ran.
    bool ClientStarted() const {
        for (int i = 0; i < 100 && !Exists(pid_file()); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        return ReadFile(pid_file()).rfind("pid=", 0) == 0;
    }
};

TEST_F(UpgradeRunTest, FirstInstallationShowsEachEntryAndEndsReady) {
    Launcher launcher;
    ProcessingProgressDialog* dialog = FindLauncherDialog();
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->windowIcon().availableSizes().contains(QSize(72, 72)))
        << "icon from the bundle's images folder";
    DialogRecorder recorder(dialog);

    EXPECT_EQ(RunLauncher(launcher), 0);

    EXPECT_EQ(recorder.shows, 1);
    EXPECT_EQ(recorder.values, (std::vector<int>{14, 28, 42, 57, 71, 85, 100}));
    EXPECT_EQ(recorder.label_at_hide, QStringLiteral("Skelda Backup is ready."))
        << "every report of the worker arrives before LaunchDone";
    EXPECT_EQ(recorder.value_at_hide, 100);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(ReadFile(app() + "/Contents/Resources/INFO"), kInfo);
    EXPECT_TRUE(ClientStarted());
}

TEST_F(UpgradeRunTest, CurrentInstallationNeverShowsTheDialog) {
    MakeDirs(app() + "/Contents/MacOS");
    MakeDirs(app() + "/Contents/Resources");
    WriteFile(app() + "/Contents/Resources/INFO", kInfo);
    WriteFile(app() + "/Contents/MacOS/skelda-backup-ui", kClient);
    ASSERT_EQ(chmod((app() + "/Contents/MacOS/skelda-backup-ui").c_str(), 0755), 0);

    Launcher launcher;
    ProcessingProgressDialog* dialog = FindLauncherDialog();
    ASSERT_NE(dialog, nullptr);
    DialogRecorder recorder(dialog);

    EXPECT_EQ(RunLauncher(launcher), 0);

    EXPECT_EQ(recorder.shows, 0);
    EXPECT_EQ(recorder.values, std::vector<int>{100}) << "only LaunchDone's final value";
    EXPECT_TRUE(ClientStarted());
}

}  // namespace
}  // namespace skelda_test
