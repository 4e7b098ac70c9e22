#pragma once
// Helpers shared by the files of the file-operation library; not part of its interface.

#include <cstring>

#include "file/file-op.h"

// "." or "..", which the tree walks skip.
inline bool IsDotEntry(const char* name) {
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}
