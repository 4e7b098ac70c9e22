#include "launcher.h"

#include <QApplication>

#include "installation-lock.h"
#include "log/log.h"
#include "mac/mac-service.h"
#include "notify-adapter.h"
#include "processing-progress-dialog.h"
#include "skelda-service.h"
#include "str-table.h"

namespace {

constexpr int kPreparationDoneStr = 56;  // desc_skld_env_preparation_done
const char kLog[] = "launcher_debug";

}  // namespace

void HandlerThread::run() {
    exec();
}

Worker::Worker() : QObject(nullptr) {
    service = new MacService();
    handler_thread = new HandlerThread();
    // Before the thread starts, so that the queued HandleServicce call always runs there.
    moveToThread(handler_thread);
}

Worker::~Worker() {
    // Deleting a running QThread aborts the process; LaunchDone has normally joined already.
    QuitThread();
    JoinThread();
    delete handler_thread;
    delete service;
}

void Worker::StartThread() {
    handler_thread->start(QThread::InheritPriority);
}

void Worker::QuitThread() {
    handler_thread->quit();
}

void Worker::JoinThread() {
    handler_thread->wait();
}

void Worker::HandleServicce() {
    SKLOG(DEBUG, kLog, "running\n");
    const InstallationLock lock(Service::GetUserSkeldaInstallPath());
    service->PreUpgrade();
    if (service->IsNeedUpgrade()) {
        emit sigShowMsg();
        if (service->HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(kPreparationDoneStr));
        } else {
            SKLOG(ERROR, kLog, "Failed to upgrade package\n");
        }
    } else {
        SKLOG(DEBUG, kLog, "no need to upgrade\n");
    }
    service->RemoveAgedFolders();
    service->PostUpgrade();
    SKLOG(DEBUG, kLog, "done\n");
    emit sigServiceDone();
}

Launcher::Launcher() : QObject(nullptr) {
    worker = new Worker();
    dialog = new ProcessingProgressDialog();
    dialog->setCancelButton(nullptr);
    dialog->setAutoReset(false);
    // LaunchDone ends the event loop, after the worker thread has been joined. Closing the
    // last window must not end it earlier: main would then delete a running worker.
    QApplication::setQuitOnLastWindowClosed(false);

    Notify_Adapter* relay = Notify_Adapter::GetInstance();
    connect(this, &Launcher::sigStart, worker, &Worker::HandleServicce);
    connect(worker, &Worker::sigShowMsg, this, &Launcher::ShowMsgBox);
    connect(worker, &Worker::sigServiceDone, this, &Launcher::LaunchDone);
    connect(worker, &Worker::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(worker, &Worker::sigSetLabelText, this, &Launcher::SetLabelText);
    connect(relay, &Notify_Adapter::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(relay, &Notify_Adapter::sigUpdateDialogText, this, &Launcher::SetLabelText);
}

Launcher::~Launcher() {
    delete worker;
    delete dialog;
}

void Launcher::Run() {
    worker->StartThread();
}

void Launcher::Start() {
    emit sigStart();
}

void Launcher::LaunchDone() {
    dialog->setValue(100);
    dialog->hide();
    worker->QuitThread();
    worker->JoinThread();
    // exit(), not quit(): Qt 6's quit() first asks every window to close and is ignored while
    // a visible one refuses, as the dialog always does. The run ends here whatever is shown.
    QCoreApplication::exit(0);
}

void Launcher::UpdateProgress(int total, int steps) {
    dialog->setValue(steps * 100 / total);
}

void Launcher::SetLabelText(const QString& text) {
    dialog->setLabelText(text);
}

void Launcher::ShowMsgBox() {
    dialog->show();
}
