// Creating folders: all missing levels, one level, or level by level below a root.

#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "file/file-op.h"
#include "log/log.h"

namespace {

const char kComponent[] = "file_op_debug";

// An explicit mode is applied with chmod after mkdir instead of clearing the umask: the
// umask is process-wide, and clearing it would loosen files other threads create meanwhile.
int MakeOneFolder(const char* path, bool exact_mode, unsigned short mode) {
    if (!exact_mode)
        return mkdir(path, 0777);
    if (mkdir(path, mode) != 0)
        return -1;
    return chmod(path, mode);
}

}  // namespace

int FSMKDirP(const ustring& path, char** stop_at, bool replace_files, unsigned short mode) {
    if (path.empty())
        return -1;
    std::unique_ptr<char, decltype(&std::free)> work(strdup(path.c_str()), &std::free);
    if (!work)
        return -1;
    char* text = work.get();
    const size_t len = std::strlen(text);
    const bool exact_mode = mode != FS_MKDIR_DEFAULT_MODE;

    int rc = 0;
    size_t end = 0;
    for (size_t pos = text[0] == '/' ? 1 : 0;; pos = end + 1) {
        const char* slash = std::strchr(text + pos, '/');
        end = slash ? static_cast<size_t>(slash - text) : len;
        // A trailing "/" makes the component before it the last one.
        const bool last = end >= len - 1;
        const char saved = text[end];
        text[end] = '\0';  // text is now the prefix up to this component

        struct stat st;
        if (stat(text, &st) != 0) {
            if (MakeOneFolder(text, exact_mode, mode) != 0)
                rc = -1;
        } else if (S_ISDIR(st.st_mode)) {
            // already there
        } else if (replace_files) {
            remove(text);
            if (MakeOneFolder(text, exact_mode, mode) != 0)
                rc = -1;
        } else if (last) {
            SKLOG(INFO, kComponent,
                  "FSMKDirP: path: %s is existing file or symbolic link pointed to file\n",
                  path.c_str());
            errno = EEXIST;
            rc = -1;
        } else {
            // The creation of the next level fails under it and ends the walk there.
            SKLOG(INFO, kComponent, "FSMKDirP: path: %s is symbolic link pointed to folder\n",
                  text);
        }
        text[end] = saved;
        if (rc != 0 || last)
            break;
    }
    if (stop_at)
        *stop_at = const_cast<char*>(path.c_str()) + end;
    return rc;
}

int FSMKDir(const ustring& path, bool recursive) {
    if (path.empty())
        return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        SKLOG(ERROR, kComponent, "FSMKDir: Failed to to file info '%s'\n", path.c_str());
        return -1;
    }
    if (info.exists) {
        if (info.type == FT_DIR)
            return 0;
        SKLOG(ERROR, kComponent,
              "FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
              path.c_str(), info.type);
        return -1;
    }
    int rc = recursive ? FSMKDirP(path, nullptr, false, FS_MKDIR_DEFAULT_MODE)
                       : mkdir(path.c_str(), 0777);
    if (rc != 0) {
        SKLOG(ERROR, kComponent, "path = %s errno : %s\n", path.c_str(), strerror(errno));
        return -2;
    }
    return 0;
}

int FSMKDirFromRoot(const ustring& target, const ustring& root) {
    if (root.length() > target.length()) {
        SKLOG(ERROR, kComponent, "Giving a root '%s' whose length is larger then target's '%s'.\n",
              root.c_str(), target.c_str());
        return -1;
    }
    if (!FSIsParentFolder(root, target)) {
        SKLOG(ERROR, kComponent, "root '%s' is not a parent folder of target '%s'\n", root.c_str(),
              target.c_str());
        return -1;
    }
    const ustring rest = target.substr(root.length(), ustring::npos);  // "" or "/..."
    ustring current;
    while (current != rest) {
        size_t next = rest.find('/', current.length() + 1);
        current = next == ustring::npos ? rest : rest.substr(0, next);
        SKLOG(DEBUG, kComponent, "FSMKDirFromRoot: create %s\n", current.c_str());
        if (FSMKDir(root + current, false) < 0)
            return -1;
    }
    return 0;
}
