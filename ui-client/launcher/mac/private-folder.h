#pragma once
// The per-user folder for the launcher's single-instance lock: a place that depends on the
// user alone, never on environment variables, so that every start of the same launcher by the
// same user finds the same lock. Each system has its own implementation file beside this one.
// The caller checks the folder's owner and mode before it puts anything there.

#include <QByteArray>

// macOS: the user's own temporary folder. Linux: /tmp/skelda-launcher-UID, made with mode 0700
// when missing (another account may have made it first: hence the caller's check).
QByteArray UserPrivateFolder();
