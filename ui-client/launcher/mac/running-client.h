#pragma once
// Which process, if any, is the user's running client, as told by the pid file that the
// client writes ("pid=N"). Both the stop before an upgrade and the Linux opening of the
// bundle ask here, so that a pid file is trusted by one rule everywhere.

#include <sys/types.h>

#include "ustring/ustring.h"

// The pid of the client that wrote the pid file at path and still runs, else 0. The file is
// trusted only when it is a regular file, not dated later than now, and names a positive
// pid of a live process of this user that started no later than the file was last written
// (in whole seconds: many file systems keep no fractions). A missing file, a missing or
// non-positive pid and a process that has ended give 0 silently; every other distrust is
// logged once at NOTE with the file and the reason.
pid_t RunningClient(const ustring& path);
