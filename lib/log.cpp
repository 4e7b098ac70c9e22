#include "log/log.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string>
#include <fcntl.h>
#include <sys/stat.h>
#include <syslog.h>
#include <unistd.h>

#include "config/config.h"

// Before Initialize the logger already works: enabled, time-stamped to standard error,
// threshold 4 for everyone.
Logger::Type Logger::log_type = Logger::STDOUT;
int32_t Logger::rotate_cnt = 50;
bool Logger::log_initialized = true;
Logger::LevelMap Logger::log_level;
FILE* Logger::log_fp = stderr;
int32_t* Logger::log_size = nullptr;
ustring Logger::log_path;
pthread_mutex_t* Logger::log_lock = nullptr;
uint64_t* Logger::log_rotated_count_shared = nullptr;
uint64_t Logger::log_rotated_count_private = 0;

namespace {

// Kinds outside 1..3 are treated as a log file, like LOGFILE itself.
bool IsFileKind(Logger::Type type) {
    return type != Logger::SYSLOG && type != Logger::STDOUT && type != Logger::STDERR;
}

// The log file opened for appending, unbuffered: each line leaves in one write, so a failed
// write (a full disk) leaves nothing behind in a buffer to be written later into the middle
// of another line. Close-on-exec: the client, started while the log is open, must not
// inherit it (O_CLOEXEC, not fopen's "e", which macOS's C library is reported to ignore).
// Every opening (the first, at rotation, the reopening) comes through here.
FILE* OpenLogFile(const ustring& path) {
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    FILE* fp = fd < 0 ? nullptr : fdopen(fd, "a");
    if (fp)
        std::setvbuf(fp, nullptr, _IONBF, 0);
    else if (fd >= 0)
        close(fd);
    return fp;
}

// Member i of the rotation set of path: "path_i".
void RotatedName(char (&buf)[1024], const ustring& path, int i) {
    std::snprintf(buf, sizeof buf, "%s_%d", path.c_str(), i);
}

}  // namespace

int Logger::Initialize(Type type, const ustring& path, const ustring& debug_file,
                       int rotate_count) {
    DestroySharedData();
    DestroyLock();
    InitializeLock();
    InitializeSharedData();
    if (!log_size || !log_rotated_count_shared)
        return -1;

    log_level[ustring("default_component")] = kDefaultThreshold;
    if (!debug_file.empty()) {
        // A missing or malformed file leaves the map as it is.
        Config levels;
        levels.read(debug_file);
        for (const auto& entry : levels)
            log_level[entry.first] = levels.get_int(entry.first);
    }

    if (!IsFileKind(type)) {
        CloseLogFile();
        log_type = type;
        log_fp = type == STDOUT ? stdout : type == STDERR ? stderr : nullptr;
        log_path.clear();
        *log_size = -1;
        *log_rotated_count_shared = log_rotated_count_private = 0;
        log_initialized = true;
        return 0;
    }

    // On failure the previous kind and stream stay, and the fresh size counter is -1, so
    // nothing is counted or rotated without an open log file.
    if (path.empty())
        return -1;
    FILE* fp = OpenLogFile(path);
    if (!fp)
        return -1;
    CloseLogFile();
    log_type = type;
    log_fp = fp;
    log_path = path;
    rotate_cnt = rotate_count;
    *log_rotated_count_shared = log_rotated_count_private = 0;
    TakeFileSize();
    log_initialized = true;
    return 0;
}

void Logger::Destroy() {
    log_initialized = false;
    if (IsFileKind(log_type)) {
        CloseLogFile();
        log_path.clear();
        log_fp = stdout;
    }
    DestroySharedData();
    DestroyLock();
}

void Logger::LogMsg(Level level, const ustring& component, const char* format, ...) {
    va_list args;
    va_start(args, format);
    Emit(level, component.c_str(), format, args);
    va_end(args);
}

void Logger::LogMsg(Level level, const char* component, const char* format, ...) {
    va_list args;
    va_start(args, format);
    Emit(level, component, format, args);
    va_end(args);
}

void Logger::LogMsg2(Level level, const ustring& component, const char* format,
                     va_list args) {
    Emit(level, component.c_str(), format, args);
}

void LogMSG_c(int level, char* component, const char* format, va_list args) {
    Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component), format, args);
}

int32_t Logger::Threshold(const char* component) {
    auto it = log_level.find(component);
    return it == log_level.end() ? kDefaultThreshold : it->second;
}

void Logger::Emit(Level level, const char* component, const char* format, va_list args) {
    if (!log_initialized)
        return;
    // Lazy set-up for messages logged before Initialize (single-threaded start-up).
    InitializeLock();
    InitializeSharedData();
    if (!log_size || !log_rotated_count_shared)
        return;
    // Unlocked on purpose: a filtered message costs only this lookup.
    if (level > Threshold(component))
        return;

    Lock();
    // The stream is tested under the lock because a rotation on another thread replaces it.
    if (log_type == SYSLOG || log_fp) {
        if (log_rotated_count_private != *log_rotated_count_shared) {
            ReloadLogFile();
            log_rotated_count_private = *log_rotated_count_shared;
        }
        if (level <= Threshold(component)) {
            int written = 0;
            switch (log_type) {
            case STDOUT:
            case STDERR:
            case LOGFILE:
                written = PrintToFilePointerV(format, args);
                break;
            case SYSLOG:
                vsyslog(LOG_ERR, format, args);
                break;
            default:
                std::vfprintf(stderr, format, args);
                break;
            }
            // The message that crosses the limit stays in the file rotated away.
            if (log_type == LOGFILE && *log_size >= 0 && written >= 0) {
                *log_size += written;
                if (*log_size >= kRotateSize) {
                    Rotate();
                    *log_size = 0;
                }
            }
        }
    }
    Unlock();
}

int Logger::Rotate() {
    char from[1024];
    char to[1024];
    if (rotate_cnt >= 2) {
        for (int i = rotate_cnt - 2; i >= 0; --i) {
            RotatedName(from, log_path, i);
            RotatedName(to, log_path, i + 1);
            std::rename(from, to);  // gaps in the set are normal
        }
    }
    RotatedName(from, log_path, rotate_cnt - 1);
    std::remove(from);

    CloseLogFile();
    RotatedName(to, log_path, 0);
    if (std::rename(log_path.c_str(), to) != 0)
        return -1;
    FILE* fp = OpenLogFile(log_path);
    if (!fp)
        return -1;
    log_fp = fp;
    ++*log_rotated_count_shared;
    ++log_rotated_count_private;
    return 0;
}

void Logger::ReloadLogFile() {
    if (!IsFileKind(log_type))
        return;
    CloseLogFile();
    log_fp = OpenLogFile(log_path);
    if (log_fp)
        TakeFileSize();
}

int Logger::PrintToFilePointer(const char* format, ...) {
    va_list args;
    va_start(args, format);
    int written = PrintToFilePointerV(format, args);
    va_end(args);
    return written;
}

int Logger::PrintToFilePointerV(const char* format, va_list args) {
    if (!log_fp)
        return 0;
    // Formatted for every line: the month name follows the C library locale of the moment.
    char stamp[512];
    time_t now = std::time(nullptr);
    struct tm local;
    localtime_r(&now, &local);
    const size_t stamp_len = std::strftime(stamp, sizeof stamp, "%b %d %H:%M:%S ", &local);
    // The whole line is formed first and written at once.
    va_list again;
    va_copy(again, args);
    const int message_len = std::vsnprintf(nullptr, 0, format, again);
    va_end(again);
    std::string line(stamp, stamp_len);
    line.resize(stamp_len + static_cast<size_t>(std::max(message_len, 0)) + 1);
    std::vsnprintf(&line[stamp_len], line.size() - stamp_len, format, args);
    line.pop_back();  // vsnprintf's terminator
    const size_t written = std::fwrite(line.data(), 1, line.size(), log_fp);
    if (std::fflush(log_fp) != 0 || written != line.size()) {
        // A line that the log file does not take (a full disk, say) goes to standard error,
        // which on macOS still reaches the system log.
        std::clearerr(log_fp);
        if (log_fp != stderr)
            std::fwrite(line.data(), 1, line.size(), stderr);
    }
    return static_cast<int>(written);
}

int Logger::GetFileSize(const ustring& path) {
    struct stat st;
    if (stat(path.c_str(), &st) != 0) {
        int err = errno;
        PrintToFilePointer("stat(%s): %s (%d)\n", path.c_str(), std::strerror(err), err);
        return 0;
    }
    return static_cast<int32_t>(st.st_size);
}

void Logger::TakeFileSize() {
    *log_size = GetFileSize(log_path);
}

// Only a file of our own is closed: after Destroy the stream of a file kind is stdout.
void Logger::CloseLogFile() {
    if (IsFileKind(log_type) && log_fp && log_fp != stdout && log_fp != stderr)
        std::fclose(log_fp);
    if (IsFileKind(log_type))
        log_fp = nullptr;
}

void Logger::InitializeLock() {
    if (log_lock)
        return;
    log_lock = new pthread_mutex_t;
    pthread_mutex_init(log_lock, nullptr);
}

void Logger::DestroyLock() {
    if (!log_lock)
        return;
    pthread_mutex_destroy(log_lock);
    delete log_lock;
    log_lock = nullptr;
}

int Logger::Lock() {
    return log_lock ? pthread_mutex_lock(log_lock) : EINVAL;
}

int Logger::Unlock() {
    return log_lock ? pthread_mutex_unlock(log_lock) : EINVAL;
}

void Logger::InitializeFileLock() {}

void Logger::DestroyFileLock() {}

void Logger::InitializeSharedData() {
    if (log_size && log_rotated_count_shared)
        return;
    DestroySharedData();
    log_size = static_cast<int32_t*>(std::malloc(sizeof *log_size));
    log_rotated_count_shared =
        static_cast<uint64_t*>(std::malloc(sizeof *log_rotated_count_shared));
    if (!log_size || !log_rotated_count_shared) {
        DestroySharedData();
        return;
    }
    // Defined start values: no size accounting, and no reload until someone rotates.
    *log_size = -1;
    *log_rotated_count_shared = log_rotated_count_private;
}

void Logger::DestroySharedData() {
    std::free(log_size);
    std::free(log_rotated_count_shared);
    log_size = nullptr;
    log_rotated_count_shared = nullptr;
}
