#include "mac/process-start.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>

namespace {

// The boot time in whole seconds since 1970 ("btime" of /proc/stat), rounded down.
bool BootTime(long long* seconds) {
    FILE* f = std::fopen("/proc/stat", "re");
    if (!f)
        return false;
    char line[256];
    bool found = false;
    while (!found && std::fgets(line, sizeof line, f))
        found = std::sscanf(line, "btime %lld", seconds) == 1;
    std::fclose(f);
    return found;
}

// /proc/PID/name, open for reading; null when there is no such process.
FILE* OpenProcFile(pid_t pid, const char* name) {
    char path[64];
    std::snprintf(path, sizeof path, "/proc/%d/%s", static_cast<int>(pid), name);
    return std::fopen(path, "re");
}

// The real user id: the first number of the "Uid:" line of /proc/PID/status.
bool RealUid(pid_t pid, uid_t* owner) {
    FILE* f = OpenProcFile(pid, "status");
    if (!f)
        return false;
    char line[256];
    bool found = false;
    unsigned long uid = 0;
    while (!found && std::fgets(line, sizeof line, f))
        found = std::sscanf(line, "Uid: %lu", &uid) == 1;
    std::fclose(f);
    *owner = static_cast<uid_t>(uid);
    return found;
}

}  // namespace

// /proc/PID/stat gives the start in clock ticks after boot. Both that count and the boot time
// are rounded down, so the result is never later than the true start.
bool ProcessStart(pid_t pid, time_t* started, uid_t* owner) {
    FILE* f = OpenProcFile(pid, "stat");
    if (!f)
        return false;
    char stat[1024];
    const size_t n = std::fread(stat, 1, sizeof stat - 1, f);
    std::fclose(f);
    stat[n] = '\0';
    // The command name stands in parentheses and may hold blanks and ')': the fields go on
    // after the last ')', with the state (field 3) first and the start time as field 22.
    const char* rest = std::strrchr(stat, ')');
    char state = 0;
    unsigned long long ticks = 0;
    long long boot = 0;
    if (!rest ||
        std::sscanf(rest + 1, " %c %*d %*d %*d %*d %*d %*u %*u %*u %*u %*u %*u %*u %*d %*d %*d "
                              "%*d %*d %*d %llu",
                    &state, &ticks) != 2 ||
        state == 'Z' || state == 'X' || !BootTime(&boot) || !RealUid(pid, owner))
        return false;
    *started = static_cast<time_t>(boot + static_cast<long long>(ticks / sysconf(_SC_CLK_TCK)));
    return true;
}
