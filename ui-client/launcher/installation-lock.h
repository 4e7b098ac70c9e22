#pragma once
// One upgrade at a time per installation. Every copy of the application that a user starts
// (an old and a new one, or one download seen at several paths) shares the per-user
// installation, while the single-instance lock only keeps one launcher per executable path.
// The worker holds this lock from before the upgrade decision until the client has been
// started, so a second launcher decides afresh from what the first one left.

#include "ustring/ustring.h"

class InstallationLock {
public:
    // Creates the folder if it is missing, then takes an exclusive flock on the file
    // "upgrade.lock" in it (opened without following a link, mode 0600, never removed),
    // waiting for another run that holds it; that wait is logged once at INFO. A file system
    // that cannot lock is logged at WARNING, and the run goes on without the lock.
    explicit InstallationLock(const ustring& folder);
    // Closing the file releases the lock (the kernel also does when the process dies).
    ~InstallationLock();

    InstallationLock(const InstallationLock&) = delete;
    InstallationLock& operator=(const InstallationLock&) = delete;

private:
    int fd_ = -1;
};
