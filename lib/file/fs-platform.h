#pragma once
// The file-system services the file operations need beyond POSIX. One implementation file
// per system (fs-platform-mac.cpp on macOS, fs-platform-linux.cpp elsewhere); CMake picks it.

#include <cstddef>
#include <string>

// Writes into buf (size bytes, zeroed first) the spelling of the existing path `path` as the
// file system stores it: absolute, letter case and Unicode composition as on disk, every
// symbolic link in the parent folders resolved. The last component is resolved too when
// follow_leaf is true, and described as itself otherwise. Returns 0, or a non-zero status
// (the missing path included).
int StoredSpelling(const char* path, bool follow_leaf, char* buf, size_t size);

// The type name of the file system that holds path, as macOS's statfs reports it: "nfs",
// "smbfs", "afpfs", "msdos", "apfs", ... Returns 0, or -1 with errno set.
int FileSystemTypeName(const char* path, std::string& name);

// Durability of what was written. A batch of new files becomes durable in two steps:
// StartWriteback on each file once it is complete, then FlushVolume on any file or folder of
// the same volume, which also makes every change of names made so far durable. FlushOne
// makes one file's data, or the names in one folder, durable on its own. Each returns 0, or
// an errno value. How each system is asked, and why, is said in its implementation.
int StartWriteback(const char* path);
int FlushVolume(const char* path);
int FlushOne(const char* path);
