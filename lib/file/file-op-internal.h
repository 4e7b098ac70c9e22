#pragma once
// Helpers shared by the files of the file-operation library; not part of its interface.

#include <cstring>

#include "file/file-op.h"

// The lstat half of GetFileInfo, for operations that need only the type and the numbers and
// not the stored spelling (which costs file-system lookups of every parent folder).
// Fills info from lstat: path and name as given. A missing path is success with exists
// false; any other lstat failure is -1 with info untouched; an unknown type is -1.
// path must not be a field of info.
int LstatFileInfo(const ustring& path, _FILE_INFO_tag& info);

// "." or "..", which the tree walks skip.
inline bool IsDotEntry(const ustring& name) {
    return std::strcmp(name.c_str(), ".") == 0 || std::strcmp(name.c_str(), "..") == 0;
}
