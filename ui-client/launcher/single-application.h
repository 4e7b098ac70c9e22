#pragma once
// The launcher's application object: a QApplication that also knows whether another
// launcher already runs for the same user and the same executable.
//
// The identity is a lock file named from a hash of the absolute path of the running
// executable, in a folder of the user's own (mac/private-folder.h) that is checked to be a
// real folder owned by the user and closed to everyone else, so nothing another account
// creates or holds can refuse a run. The first instance holds an exclusive flock() on it for
// the life of the process. The kernel drops the lock when the process ends in any way, a
// crash or SIGKILL included, so no stale state survives, and taking the lock is atomic, so
// launchers started together cannot both win. A copy of the launcher at another path has a
// lock of its own.

#include <QApplication>

class SingleApplication : public QApplication {
    Q_OBJECT

public:
    // `gui` is kept for the shape of the call sites; a QApplication always has a GUI.
    SingleApplication(int& argc, char** argv, bool gui = true);
    ~SingleApplication() override;

    // True when another process already held the lock when this one was constructed.
    bool isRunning() const { return running_; }

private:
    int lock_fd_ = -1;
    bool running_ = false;
};
