#pragma once
// The file-system services the file operations need beyond POSIX. One implementation file
// per system (fs-platform-mac.cpp on macOS, fs-platform-linux.cpp elsewhere); CMake picks it.

#include <sys/types.h>

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

// Copies up to `length` bytes from the current offset of in to that of out inside the
// kernel, without a trip through user memory. Returns the bytes copied (0 at the end of in),
// or -1 with errno; errno ENOSYS means that this pair of files cannot be copied this way
// here (another file system, no such call), and the caller copies through a buffer instead.
ssize_t CopyInKernel(int in, int out, size_t length);

// Asks the system to start writing [offset, offset + length) of fd to disk without waiting,
// so that a long copy streams to disk instead of piling up dirty pages for the final fsync.
// A hint: where there is no such call it does nothing.
void StartWriteback(int fd, off_t offset, off_t length);
