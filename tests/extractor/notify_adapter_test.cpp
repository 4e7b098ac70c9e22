// The relay between the worker thread and the main thread: one instance for the process,
// and reports emitted on a real worker thread reach a main-thread receiver queued, in order.
#include <QCoreApplication>
#include <QEventLoop>
#include <QThread>
#include <gmock/gmock.h>

#include <functional>
#include <memory>

#include "extractor.h"
#include "extractor_fixture.h"
#include "notify-adapter.h"

namespace skelda_test {
namespace {

using ::testing::ElementsAre;

// Stands in for the launcher: lives on the main thread and records each delivery together
// with the thread it arrived on.
class Receiver : public QObject {
public:
    std::vector<std::string> events;
    bool all_on_main_thread = true;

    void OnProgress(int total, int current) {
        Note("progress:" + std::to_string(total) + "," + std::to_string(current));
    }
    void OnText(QString text) { Note("label:" + text.toStdString()); }

private:
    void Note(const std::string& e) {
        all_on_main_thread &= QThread::currentThread() == QCoreApplication::instance()->thread();
        events.push_back(e);
    }
};

// Runs job on a fresh worker thread while the main thread's event loop delivers what it
// emits; returns once the thread has finished and everything queued before that arrived.
void RunOnWorker(std::function<void()> job) {
    std::unique_ptr<QThread> worker(QThread::create(std::move(job)));
    QEventLoop loop;
    QObject::connect(worker.get(), &QThread::finished, &loop, &QEventLoop::quit,
                     Qt::QueuedConnection);
    worker->start();
    loop.exec();
    worker->wait();
}

void Connect(Receiver& r) {
    Notify_Adapter* ad = Notify_Adapter::GetInstance();
    QObject::connect(ad, &Notify_Adapter::sigUpdateProgress, &r, &Receiver::OnProgress);
    QObject::connect(ad, &Notify_Adapter::sigUpdateDialogText, &r, &Receiver::OnText);
}

TEST(NotifyAdapterTest, OneInstanceForEveryThread) {
    Notify_Adapter* on_main = Notify_Adapter::GetInstance();
    Notify_Adapter* on_worker = nullptr;
    RunOnWorker([&] { on_worker = Notify_Adapter::GetInstance(); });
    EXPECT_EQ(on_main, on_worker);
    EXPECT_EQ(on_main->thread(), QCoreApplication::instance()->thread());
}

TEST(NotifyAdapterTest, WorkerReportsReachTheMainThreadQueuedAndInOrder) {
    Receiver r;
    Connect(r);
    RunOnWorker([&] {
        Notify_Adapter* ad = Notify_Adapter::GetInstance();
        ad->UpdateDialogText("working");
        ad->UpdateProgress(3, 1);
        ad->UpdateProgress(3, 2);
        ad->UpdateProgress(3, 3);
    });
    EXPECT_THAT(r.events, ElementsAre("label:working", "progress:3,1", "progress:3,2",
                                      "progress:3,3"));
    EXPECT_TRUE(r.all_on_main_thread);
}

// The whole road of an upgrade's extraction: Extract on the worker, the dialog's slots on
// the main thread.
class ExtractOnWorkerTest : public ExtractorTest {};

TEST_F(ExtractOnWorkerTest, ExtractionProgressArrivesInOrderOnTheMainThread) {
    const std::string pkg = MakeArchive("pkg", ArchiveFormat::TarGz,
        {ArchiveEntry::Folder("app"), ArchiveEntry::File("app/a", "a"),
         ArchiveEntry::File("app/b", "b")});
    Receiver r;
    Connect(r);
    int result = 1;
    RunOnWorker([&] { result = ExtractorFor(pkg).Extract(); });
    EXPECT_EQ(result, 0);
    EXPECT_THAT(r.events, ElementsAre(std::string("label:") + kPreparingLabel, "progress:3,1",
                                      "progress:3,2", "progress:3,3"));
    EXPECT_TRUE(r.all_on_main_thread);
}

}  // namespace
}  // namespace skelda_test
