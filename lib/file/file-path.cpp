// Path strings: pure text work on the UTF-8 bytes, no file-system access.

#include <cstring>

#include "file/file-op.h"

ustring FSParentPath(const ustring& path) {
    size_t slash = path.rfind('/', ustring::npos);
    if (slash == ustring::npos || slash == 0)
        return ustring("/");
    return path.substr(0, slash);
}

ustring FSBaseName(const ustring& path) {
    size_t slash = path.rfind('/', ustring::npos);
    if (slash == ustring::npos)
        return path;
    return path.substr(slash + 1, ustring::npos);
}

bool FSIsParentFolder(const ustring& parent, const ustring& child) {
    size_t n = parent.length();
    if (child.length() < n)
        return false;
    // A component boundary must follow, so /a is not a parent of /ab.
    if (child[n] != '\0' && child[n] != '/')
        return false;
    return std::memcmp(parent.c_str(), child.c_str(), n) == 0;
}
