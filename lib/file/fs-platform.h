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
