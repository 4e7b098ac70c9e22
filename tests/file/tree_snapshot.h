#pragma once
// A folder tree as text, to compare trees before and after a move.

#include <filesystem>
#include <map>
#include <string>

#include "temp_dir.h"

namespace skelda_test {

// Relative path -> "dir", "link:<target>" or "file:<content>".
inline std::map<std::string, std::string> SnapshotTree(const std::string& root) {
    namespace fs = std::filesystem;
    std::map<std::string, std::string> out;
    std::error_code ec;
    for (auto it = fs::recursive_directory_iterator(root, ec);
         !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
        std::string rel = fs::relative(it->path(), root).string();
        if (it->is_symlink())
            out[rel] = "link:" + fs::read_symlink(it->path()).string();
        else if (it->is_directory())
            out[rel] = "dir";
        else
            out[rel] = "file:" + ReadFile(it->path().string());
    }
    return out;
}

}  // namespace skelda_test
