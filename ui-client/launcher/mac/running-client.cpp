#include "mac/running-client.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>

#include "config/config.h"
#include "log/log.h"
#include "mac/process-start.h"

#undef SKLOG_SOURCE_NAME
#define SKLOG_SOURCE_NAME "mac/running-client.cpp"

namespace {

const char kComponent[] = "service_debug";

// Reads the pid file into config. Opened without blocking, so that a FIFO in its place cannot
// hold the launcher up; only a regular file is read. The file's modification time goes to
// written. False (logged) when the file is there but cannot be used.
bool ReadPidFile(const ustring& path, Config& config, time_t* written) {
    const int fd = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) {
        if (errno != ENOENT)
            SKLOG(NOTE, kComponent, "Failed to read pid file '%s', not exist ?\n", path.c_str());
        return false;
    }
    struct stat st;
    if (fstat(fd, &st) != 0 || !S_ISREG(st.st_mode)) {
        SKLOG(NOTE, kComponent, "pid file '%s' not trusted: not a regular file\n", path.c_str());
        close(fd);
        return false;
    }
    *written = st.st_mtime;
    FILE* fp = fdopen(fd, "r");
    if (!fp) {
        close(fd);
        return false;
    }
    const int rc = config.read(fp);
    std::fclose(fp);
    if (rc < 0)
        SKLOG(NOTE, kComponent, "Failed to read pid file '%s', not exist ?\n", path.c_str());
    return rc == 0;
}

}  // namespace

pid_t RunningClient(const ustring& path) {
    Config config;
    time_t written = 0;
    if (!ReadPidFile(path, config, &written))
        return 0;
    // 0 and negative ids would address whole process groups, the launcher's own among them.
    const pid_t pid = config.get_int("pid");
    if (pid <= 0)
        return 0;
    // A clock set back after the file was written: every process would look older than it.
    // Read from the fine clock: a file's time may come from it, and time() reads a coarse
    // clock that can lag it by a tick, so a file written just now could look dated ahead.
    struct timespec now = {};
    clock_gettime(CLOCK_REALTIME, &now);
    if (written > now.tv_sec) {
        SKLOG(NOTE, kComponent, "pid file '%s' not trusted: dated in the future\n", path.c_str());
        return 0;
    }
    time_t started = 0;
    uid_t owner = 0;
    if (!ProcessStart(pid, &started, &owner))
        return 0;  // the client has ended
    // A client started by another account (with sudo, say), or a number that went to another
    // account's program, is not this user's client: never signalled, never counted.
    if (owner != getuid()) {
        SKLOG(NOTE, kComponent, "pid file '%s' not trusted: process %d is another account's\n",
              path.c_str(), static_cast<int>(pid));
        return 0;
    }
    // A pid file outlives its client (a crash, a power cut, a restart), and its number may
    // since have gone to another program: one that started after the file was written
    // cannot have written it.
    if (started > written) {
        SKLOG(NOTE, kComponent,
              "pid file '%s' not trusted: process %d started after it was written\n",
              path.c_str(), static_cast<int>(pid));
        return 0;
    }
    return pid;
}
