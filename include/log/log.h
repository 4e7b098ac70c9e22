#pragma once
// Process-wide diagnostic log: per-component thresholds, four destinations,
// size-based rotation of the log file. Static members only; nobody creates a Logger.
//
// Call sites use SKLOG, which builds the message convention:
//   SKLOG(DEBUG, "service_debug", "source does not exist\n");
// emits "[DEBUG] file.cpp(123): source does not exist\n" behind the time stamp.

#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <pthread.h>

#include "ustring/ustring.h"

class Logger {
public:
    // The syslog priorities.
    enum Level : int32_t { ERROR = 3, WARNING = 4, NOTE = 5, INFO = 6, DEBUG = 7 };
    enum Type : int32_t { SYSLOG = 1, STDOUT = 2, STDERR = 3, LOGFILE = 4 };

    // Byte order of ustring (unsigned bytes, as strcmp compares), also usable with a bare
    // C string so that a filtered-out message costs a lookup and no string construction.
    struct ComponentLess {
        using is_transparent = void;
        bool operator()(const ustring& a, const ustring& b) const { return a < b; }
        bool operator()(const ustring& a, const char* b) const {
            return std::strcmp(a.c_str(), b) < 0;
        }
        bool operator()(const char* a, const ustring& b) const {
            return std::strcmp(a, b.c_str()) < 0;
        }
    };
    using LevelMap = std::map<ustring, int32_t, ComponentLess>;

    // Threshold of components missing from log_level.
    static constexpr int32_t kDefaultThreshold = WARNING;
    // A log file is rotated once its size reaches this many bytes (more than 1 MiB).
    static constexpr int32_t kRotateSize = 0x100001;

    // Sets the logger up: thresholds from debug_file (a key=value file, optional; empty
    // path means none), then the destination. For LOGFILE, path is opened for
    // appending and rotated into rotate_count files. Returns 0, or -1 when the shared
    // data cannot be allocated or the log file cannot be opened (the previous destination
    // then stays in use, without size accounting).
    static int Initialize(Type type, const ustring& path, const ustring& debug_file,
                          int rotate_count);
    // Turns logging off and releases everything; messages are dropped until Initialize.
    static void Destroy();

    // Writes one message when level <= the component's threshold (4 unless configured).
    static void LogMsg(Level level, const ustring& component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg(Level level, const char* component, const char* format, ...)
        __attribute__((format(printf, 3, 4)));
    static void LogMsg2(Level level, const ustring& component, const char* format,
                        va_list args) __attribute__((format(printf, 3, 0)));

    // Moves P to P_0, P_i to P_(i+1), drops P_(rotate_cnt-1) and reopens P. 0 or -1
    // (on -1 no stream is left and the logger falls silent).
    static int Rotate();
    // Reopens log_path (LOGFILE only) and takes the size from the file.
    static void ReloadLogFile();
    // Time stamp, then the expanded text, then flush; returns the bytes written.
    static int PrintToFilePointer(const char* format, ...)
        __attribute__((format(printf, 1, 2)));
    static int PrintToFilePointerV(const char* format, va_list args)
        __attribute__((format(printf, 1, 0)));
    // The file's size cut to 32 bits, or 0 (with a "stat(...)" line in the log) on failure.
    static int GetFileSize(const ustring& path);

    static void InitializeLock();
    static void DestroyLock();
    static int Lock();
    static int Unlock();
    // There is no inter-process lock; these exist for symmetry and do nothing.
    static void InitializeFileLock();
    static void DestroyFileLock();
    // Allocates the size counter and the shared rotation counter if either is missing.
    static void InitializeSharedData();
    static void DestroySharedData();

    // State. log_level must not change while other threads log: its lookup runs unlocked.
    static Type log_type;
    static int32_t rotate_cnt;
    static bool log_initialized;
    static LevelMap log_level;
    static FILE* log_fp;
    static int32_t* log_size;  // -1 when the output is not a file
    static ustring log_path;
    static pthread_mutex_t* log_lock;
    static uint64_t* log_rotated_count_shared;
    static uint64_t log_rotated_count_private;

private:
    static void Emit(Level level, const char* component, const char* format, va_list args)
        __attribute__((format(printf, 3, 0)));
    static int32_t Threshold(const char* component);
    static void TakeFileSize();
    static void CloseLogFile();
};

// For C callers: the same as Logger::LogMsg2.
void LogMSG_c(int level, char* component, const char* format, va_list args)
    __attribute__((format(printf, 3, 0)));

// The source name in the message prefix. A file whose name carries a sub-directory
// ("mac/mac-service.cpp") redefines it after its includes:
//   #undef SKLOG_SOURCE_NAME
//   #define SKLOG_SOURCE_NAME "mac/mac-service.cpp"
#ifndef SKLOG_SOURCE_NAME
#define SKLOG_SOURCE_NAME __FILE_NAME__
#endif

// LEVEL is the bare level word (ERROR, WARNING, NOTE, INFO, DEBUG); fmt a string literal.
#define SKLOG(LEVEL, component, fmt, ...)                                                  \
    Logger::LogMsg(Logger::LEVEL, component, "[" #LEVEL "] " SKLOG_SOURCE_NAME "(%d): " fmt, \
                   __LINE__, ##__VA_ARGS__)
