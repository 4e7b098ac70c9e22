#pragma once
// When a process started and when a file was last changed, to the nanosecond where the system
// records it. The stop of the client uses both to tell the client that wrote its pid file from
// a later program that was given the same number. Each system has its own implementation file
// beside this one, and CMake compiles exactly one of them.

#include <sys/types.h>

#include <ctime>

// The wall-clock time at which process pid started, never later than the true time. False
// when no live process has that id (a zombie has ended: it is only waiting to be collected).
bool ProcessStartTime(pid_t pid, timespec* start);

// The last modification time of the file at path. False when it cannot be read.
bool FileModifiedTime(const char* path, timespec* mtime);
