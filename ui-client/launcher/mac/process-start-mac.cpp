#include "mac/process-start.h"

#include <sys/stat.h>
#include <sys/sysctl.h>

// The process table records each process's start as a wall-clock time.
bool ProcessStartTime(pid_t pid, timespec* start) {
    int mib[4] = {CTL_KERN, KERN_PROC, KERN_PROC_PID, pid};
    struct kinfo_proc info;
    size_t size = sizeof info;
    if (sysctl(mib, 4, &info, &size, nullptr, 0) != 0 || size == 0 ||
        info.kp_proc.p_stat == SZOMB)
        return false;
    start->tv_sec = info.kp_proc.p_starttime.tv_sec;
    start->tv_nsec = info.kp_proc.p_starttime.tv_usec * 1000;
    return true;
}

bool FileModifiedTime(const char* path, timespec* mtime) {
    struct stat st;
    if (stat(path, &st) != 0)
        return false;
    *mtime = st.st_mtimespec;
    return true;
}
