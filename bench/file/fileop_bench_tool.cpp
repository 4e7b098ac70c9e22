// Command-line driver for run.sh:
//   fileop_bench_tool tree DIR FOLDERS FILES   make DIR with FOLDERS folders of FILES files
//   fileop_bench_tool remove PATH               FSRemove
//   fileop_bench_tool copy SRC DST              FSCopy (the destination is fsynced)

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "file/file-op.h"

namespace {

int MakeTree(const std::string& root, int folders, int files) {
    if (mkdir(root.c_str(), 0755) != 0)
        return 1;
    for (int d = 0; d < folders; ++d) {
        std::string folder = root + "/folder-" + std::to_string(d);
        if (mkdir(folder.c_str(), 0755) != 0)
            return 1;
        for (int f = 0; f < files; ++f) {
            std::string file = folder + "/file-" + std::to_string(f) + ".dat";
            int fd = open(file.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
            if (fd < 0 || write(fd, "x", 1) != 1)
                return 1;
            close(fd);
        }
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 5 && std::strcmp(argv[1], "tree") == 0)
        return MakeTree(argv[2], std::atoi(argv[3]), std::atoi(argv[4]));
    if (argc == 3 && std::strcmp(argv[1], "remove") == 0)
        return FSRemove(argv[2], true) == 0 ? 0 : 1;
    if (argc == 4 && std::strcmp(argv[1], "copy") == 0)
        return FSCopy(argv[2], argv[3], false) == 0 ? 0 : 1;
    std::fprintf(stderr, "usage: %s tree DIR FOLDERS FILES | remove PATH | copy SRC DST\n",
                 argv[0]);
    return 2;
}
