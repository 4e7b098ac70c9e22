// The launcher's dialog and whole runs in-process. This binary lives in Run.app/Contents/MacOS,
// so its runs see the root installation (build 7) that the bundle tool makes around it.

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>
#include <QApplication>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <memory>

#include "launcher.h"
#include "log/log.h"
#include "processing-progress-dialog.h"
#include "temp_dir.h"

namespace skelda_test {
namespace {

const char kClient[] = "#!/bin/sh\ntouch \"$HOME/started\"\n";

class LauncherTest : public TempDirTest {
protected:
    // Parallel processes each make a bundle; the first to rename its resources in place wins.
    static void SetUpTestSuite() {
        const std::string root = QCoreApplication::applicationDirPath().toStdString() + "/../..";
        const std::string tmp = root + "/../tmp" + std::to_string(getpid());
        WriteFile(tmp + ".sh", kClient);
        const std::string make = std::string(getenv("SKELDA_TOOLS_DIR")) + "/make-bundle.sh " +
                                 "--launcher /bin/true --version 1.0.7 --client " + tmp +
                                 ".sh --out " + tmp + ".app >/dev/null";
        ASSERT_EQ(std::system(make.c_str()), 0);
        rename((tmp + ".app/Contents/Resources").c_str(), (root + "/Contents/Resources").c_str());
        RemoveTree(tmp + ".app");
        RemoveTree(tmp + ".sh");
    }
    void SetUp() override {
        TempDirTest::SetUp();
        launcher = std::make_unique<Launcher>();
        for (QWidget* w : QApplication::topLevelWidgets())
            dialog = dialog ? dialog : qobject_cast<ProcessingProgressDialog*>(w);
        ASSERT_NE(dialog, nullptr) << "the Launcher made no dialog";
        QObject::connect(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                         [this](int v) { values.push_back(v); });
    }
    int Run() {  // as main drives it; a hung run ends with 99
        launcher->Run();
        launcher->Start();
        QTimer::singleShot(60000, [] { QCoreApplication::exit(99); });
        return QApplication::exec();
    }
    bool ClientStarted() const {  // clients start detached and end by themselves
        for (int i = 0; i < 200 && !Exists(home() + "/started"); ++i)
            QTest::qWait(25);
        return Exists(home() + "/started");
    }

    std::vector<int> values;
    std::unique_ptr<Launcher> launcher;
    ProcessingProgressDialog* dialog = nullptr;
};

// The worker's first act is its DEBUG "running" line: holding the logger's lock keeps it busy
// while the dialog is closed and escaped in every way and the last window closes.
TEST_F(LauncherTest, FirstInstallationSurvivesCloseRequestsAndEndsReady) {
    WriteFile(path("levels"), "launcher_debug=7\n");
    ASSERT_EQ(Logger::Initialize(Logger::STDERR, "", path("levels").c_str(), 50), 0);
    bool held = false, visible_while_held = false;
    QWidget other;
    Logger::Lock();
    QTimer::singleShot(0, [&] {
        dialog->show();
        dialog->close();
        dialog->windowHandle()->close();
        QTest::keyClick(dialog, Qt::Key_Escape);
        other.show();
        other.close();
        QTimer::singleShot(300, [&] {
            held = true;
            visible_while_held = dialog->isVisible();
            Logger::Unlock();
        });
    });
    const int result = Run();
    if (!held)
        Logger::Unlock();  // the loop ended early; let the worker finish

    EXPECT_TRUE(held) << "the event loop ended while the worker ran";
    EXPECT_TRUE(visible_while_held);
    EXPECT_EQ(result, 0);
    EXPECT_EQ(values, (std::vector<int>{20, 40, 60, 80, 100})) << "five package entries";
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Skelda Backup is ready."));
    EXPECT_FALSE(dialog->isVisible()) << "LaunchDone hides it";
    EXPECT_TRUE(ClientStarted());
}

// Qt 6's quit() gives up while a visible window refuses to close, as this dialog always does.
TEST_F(LauncherTest, RunEndsWhileAWindowRefusesToClose) {
    ProcessingProgressDialog refusing;
    refusing.show();
    EXPECT_EQ(Run(), 0) << "the event loop did not end";
}

TEST_F(LauncherTest, DialogHasTheShippedAppearanceAndACurrentInstallationNeverShowsIt) {
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Skelda Backup"));
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Skelda Backup is initializing..."));
    EXPECT_EQ(int(dialog->windowFlags() & ~Qt::WindowType_Mask), 0x3000) << "title, menu only";
    EXPECT_EQ(std::make_pair(dialog->minimumWidth(), dialog->maximumWidth()),
              std::make_pair(400, 400));
    EXPECT_EQ(dialog->styleSheet(), QStringLiteral(" QProgressDialog { background-color: "
                                                   "WhiteSmoke; \n  vertical-align: middle } "));
    EXPECT_EQ(dialog->font().family(), QStringLiteral("Arial"));
    EXPECT_TRUE(dialog->windowModality() == Qt::WindowModal && dialog->value() == 0);
    EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty()) << "no cancel button";
    const std::string app = home() + "/.SkeldaBackup/Skelda.app/Contents";
    MakeDirs(app + "/MacOS");
    MakeDirs(app + "/Resources");
    WriteFile(app + "/Resources/INFO", "[Version]\nbuild_version=7\n");
    WriteFile(app + "/MacOS/skelda-backup-ui", kClient);
    ASSERT_EQ(chmod((app + "/MacOS/skelda-backup-ui").c_str(), 0755), 0);

    EXPECT_EQ(Run(), 0);
    EXPECT_EQ(dialog->windowHandle(), nullptr) << "the dialog was shown";
    EXPECT_TRUE(ClientStarted());
}

// Deleting a running QThread aborts the process: the Worker joins its thread when deleted.
TEST_F(LauncherTest, DeletedWhileItsThreadRunsItEndsCleanly) {
    launcher->Run();
    launcher.reset();
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << "the dialog goes with it";
}

}  // namespace
}  // namespace skelda_test
