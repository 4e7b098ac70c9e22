#pragma once
// Progress relay: lets code deep inside an upgrade (the extractor) report progress and a
// label to the user interface without knowing who shows them. The one instance lives on
// the thread of its first GetInstance() call (the main thread); emissions from a worker
// thread therefore reach receivers there as queued calls, in emission order.

#include <QObject>
#include <QString>

class Notify_Adapter : public QObject {
    Q_OBJECT

public:
    // The process-wide instance, created on first use (thread-safe static initialisation).
    static Notify_Adapter* GetInstance();

    // Emit the matching signal on the caller's thread. Arguments are (total, current).
    void UpdateProgress(int total, int current);
    void UpdateDialogText(QString text);

signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() = default;
    Q_DISABLE_COPY(Notify_Adapter)
};
