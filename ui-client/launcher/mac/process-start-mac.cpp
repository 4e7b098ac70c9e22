#include "mac/process-start.h"

#include <sys/sysctl.h>

// The process table records each process's start as a wall-clock time, and its credentials.
bool ProcessStart(pid_t pid, time_t* started, uid_t* owner) {
    int mib[4] = {CTL_KERN, KERN_PROC, KERN_PROC_PID, pid};
    struct kinfo_proc info;
    size_t size = sizeof info;
    if (sysctl(mib, 4, &info, &size, nullptr, 0) != 0 || size == 0 ||
        info.kp_proc.p_stat == SZOMB)
        return false;
    *started = info.kp_proc.p_starttime.tv_sec;
    *owner = info.kp_eproc.e_pcred.p_ruid;
    return true;
}
