#pragma once
// Starting the per-user client bundle. macOS does this through Launch Services; other systems
// have no bundle database, so each system has its own implementation file beside this one and
// CMake compiles exactly one of them.

#include <QString>

// Removes the bundle at app_path from the Launch Services database. Returns the exit code of
// the registration tool: 0 for success, non-zero (negative when it could not run) otherwise.
int UnregisterBundle(const QString& app_path);

// Starts the application of the bundle at app_path without waiting for it, unless it already
// runs. Returns true when it was started or already ran.
bool OpenBundle(const QString& app_path);
