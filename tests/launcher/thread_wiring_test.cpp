// The two threads of a run: the worker's affinity and signals, the relay's queued delivery
// to the dialog, and a whole run that ends the event loop only through LaunchDone, also
// when the dialog is closed while the worker is still busy.
//
// HOME is an empty temporary folder and the test binary's bundle folder holds no package,
// so every run here needs an upgrade and the upgrade fails: that is the run under test.

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <thread>

#include "launcher.h"
#include "launcher_probe.h"
#include "log/log.h"
#include "notify-adapter.h"
#include "processing-progress-dialog.h"
#include "temp_dir.h"

namespace skelda_test {
namespace {

constexpr int kSafetyMs = 60000;  // a hung run fails the test instead of blocking it

using ThreadWiringTest = TempDirTest;

// Ends a loop that a run should have ended by itself, with a code the run never uses.
void ArmSafetyExit() {
    QTimer::singleShot(kSafetyMs, [] { QCoreApplication::exit(99); });
}

TEST_F(ThreadWiringTest, WorkerRunsOnItsOwnThreadAndReportsAFailedUpgrade) {
    Worker worker;
    QThread* worker_thread = worker.thread();
    ASSERT_NE(worker_thread, QThread::currentThread()) << "moved to its thread when built";

    QSignalSpy shown(&worker, &Worker::sigShowMsg);
    QSignalSpy progress(&worker, &Worker::sigUpdateProgress);
    QSignalSpy label(&worker, &Worker::sigSetLabelText);
    QSignalSpy done(&worker, &Worker::sigServiceDone);
    QThread* emitted_on = nullptr;
    QObject::connect(
        &worker, &Worker::sigServiceDone, &worker,
        [&emitted_on] { emitted_on = QThread::currentThread(); }, Qt::DirectConnection);

    QEventLoop loop;
    QObject::connect(&worker, &Worker::sigServiceDone, &loop, &QEventLoop::quit);
    QTimer::singleShot(kSafetyMs, &loop, [&loop] { loop.exit(99); });
    worker.StartThread();
    QMetaObject::invokeMethod(&worker, "HandleServicce", Qt::QueuedConnection);
    EXPECT_EQ(loop.exec(), 0) << "sigServiceDone never reached the main thread";
    worker.QuitThread();
    worker.JoinThread();

    // Read only after the join: the spies were written on the worker thread.
    EXPECT_EQ(emitted_on, worker_thread);
    EXPECT_EQ(shown.count(), 1) << "an upgrade was needed, so the dialog is shown";
    EXPECT_EQ(progress.count(), 0) << "no 100 percent after a failed upgrade";
    EXPECT_EQ(label.count(), 0) << "no 'ready' label after a failed upgrade";
    EXPECT_EQ(done.count(), 1);
}

TEST_F(ThreadWiringTest, RelayReportsFromAnotherThreadReachTheDialogQueued) {
    Launcher launcher;
    ProcessingProgressDialog* dialog = FindLauncherDialog();
    ASSERT_NE(dialog, nullptr);

    std::thread reporter([] {
        Notify_Adapter::GetInstance()->UpdateProgress(3, 1);
        Notify_Adapter::GetInstance()->UpdateDialogText(QStringLiteral("Unpacking"));
    });
    reporter.join();
    EXPECT_EQ(dialog->value(), 0) << "delivered directly on the reporting thread";

    QCoreApplication::processEvents();
    EXPECT_EQ(dialog->value(), 33);
    EXPECT_EQ(dialog->labelText(), QStringLiteral("Unpacking"));
}

TEST_F(ThreadWiringTest, AFailedRunShowsTheDialogAndEndsTheLoopThroughLaunchDone) {
    Launcher launcher;
    ProcessingProgressDialog* dialog = FindLauncherDialog();
    ASSERT_NE(dialog, nullptr);
    DialogRecorder recorder(dialog);
    QSignalSpy started(&launcher, &Launcher::sigStart);

    launcher.Run();
    launcher.Start();
    ArmSafetyExit();
    EXPECT_EQ(QApplication::exec(), 0);

    EXPECT_EQ(started.count(), 1);
    EXPECT_EQ(recorder.shows, 1);
    EXPECT_FALSE(dialog->isVisible()) << "LaunchDone hides the dialog";
    EXPECT_EQ(recorder.value_at_hide, 100);
    EXPECT_EQ(recorder.label_at_hide, QStringLiteral("Skelda Backup is initializing..."))
        << "a failed upgrade leaves the label as it was";
}

TEST_F(ThreadWiringTest, ClosingTheDialogWhileTheWorkerRunsEndsNeitherTheRunNorTheLoop) {
    // The worker's first act is its "running" log line. With DEBUG on for the launcher and
    // the logger's lock held here, the worker stops right there: it is provably still
    // running while the dialog is closed in every way the window system can.
    const std::string levels = path("launcher.debug");
    WriteFile(levels, "launcher_debug=7\n");
    ASSERT_EQ(Logger::Initialize(Logger::STDERR, ustring(), ustring(levels.c_str()), 50), 0);

    Launcher launcher;
    ProcessingProgressDialog* dialog = FindLauncherDialog();
    ASSERT_NE(dialog, nullptr);
    DialogRecorder recorder(dialog);

    bool loop_alive_while_held = false;
    bool visible_while_held = false;
    Logger::Lock();
    launcher.Run();
    launcher.Start();
    QTimer::singleShot(0, [&] {
        dialog->show();
        dialog->close();
        if (dialog->windowHandle())
            dialog->windowHandle()->close();
        QTest::keyClick(dialog, Qt::Key_Escape);
        QTimer::singleShot(300, [&] {
            loop_alive_while_held = true;
            visible_while_held = dialog->isVisible();
            Logger::Unlock();
        });
    });
    ArmSafetyExit();
    const int result = QApplication::exec();
    if (!loop_alive_while_held)
        Logger::Unlock();  // the loop ended early; let the worker finish before tear-down

    EXPECT_TRUE(loop_alive_while_held) << "the event loop ended while the worker ran";
    EXPECT_TRUE(visible_while_held) << "the dialog went away while the worker ran";
    EXPECT_EQ(result, 0);
    EXPECT_FALSE(dialog->isVisible()) << "only LaunchDone hides it, at the end";
    EXPECT_EQ(recorder.value_at_hide, 100);
}

}  // namespace
}  // namespace skelda_test
