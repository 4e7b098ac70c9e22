#pragma once
// The two threads of a run and what connects them.
//
// The main thread owns the Launcher and its progress dialog. The Worker lives on a
// HandlerThread of its own and drives the upgrade service there. The threads share nothing
// mutable: the worker reports through queued signals only (show the dialog, progress as
// (total, done), label text, done), and so does the extractor through Notify_Adapter.

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

// A thread that only runs its own event loop, until told to quit.
class HandlerThread : public QThread {
    Q_OBJECT

protected:
    void run() override;
};

class Worker : public QObject {
    Q_OBJECT

public:
    // Creates the service and the thread (not started) and moves itself onto that thread.
    Worker();
    // Waits for the thread to end before deleting it, then deletes the service.
    ~Worker() override;

    void StartThread();
    void QuitThread();
    void JoinThread();

signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int total, int steps);
    void sigSetLabelText(const QString& text);

private slots:
    // One upgrade run, on the worker thread: decide, upgrade if needed, launch the client.
    void HandleServicce();

private:
    // Connects its start signal to the private slot above.
    friend class Launcher;

    HandlerThread* handler_thread;
    Service* service;
};

class Launcher : public QObject {
    Q_OBJECT

public:
    // Creates the worker (with its thread) and the hidden dialog and wires them up.
    Launcher();
    ~Launcher() override;

    // Starts the worker thread.
    void Run();
    // Queues the upgrade run onto the worker thread.
    void Start();

signals:
    void sigStart();

private slots:
    // The run is over: hide the dialog, join the worker thread, end the event loop.
    void LaunchDone();
    // Sets the dialog to steps * 100 / total percent (total is at least 1).
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString& text);
    void ShowMsgBox();

private:
    Worker* worker;
    ProcessingProgressDialog* dialog;
};
