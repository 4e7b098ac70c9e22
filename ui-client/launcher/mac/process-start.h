#pragma once
// When a process started and whose it is. The check of the client's pid file uses both to
// tell the client that wrote the file from a later program given the same number, or from a
// program of another account. Each system has its own implementation file beside this one,
// and CMake compiles exactly one of them.

#include <sys/types.h>

#include <ctime>

// The wall-clock second in which process pid started (never later than the true start) and
// the real user id it runs as. False when no live process has that id (a zombie has ended:
// it is only waiting to be collected).
bool ProcessStart(pid_t pid, time_t* started, uid_t* owner);
