// What GetFileInfo costs per call next to the lstat it is built on, for a file a few levels
// deep (the stored spelling resolves every parent folder).

#include <benchmark/benchmark.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

#include "file/file-op.h"

namespace {

// A file five levels below a fresh temporary folder; removed at exit.
const std::string& SampleFile() {
    static const std::string file = [] {
        char tmpl[] = "/tmp/fileop-bench-XXXXXX";
        std::string root = mkdtemp(tmpl);
        std::string d = root + "/one/two/three/four";
        std::string cmd = "mkdir -p '" + d + "' && echo data > '" + d + "/file.txt'";
        if (std::system(cmd.c_str()) != 0)
            std::abort();
        static std::string cleanup = root;
        std::atexit([] { std::system(("rm -rf '" + cleanup + "'").c_str()); });
        return d + "/file.txt";
    }();
    return file;
}

void BM_lstat(benchmark::State& state) {
    const std::string& file = SampleFile();
    struct stat st;
    for (auto _ : state)
        benchmark::DoNotOptimize(lstat(file.c_str(), &st));
}
BENCHMARK(BM_lstat);

void BM_GetFileInfo(benchmark::State& state) {
    const ustring file(SampleFile().c_str());
    _FILE_INFO_tag info;
    for (auto _ : state)
        benchmark::DoNotOptimize(GetFileInfo(file, info));
}
BENCHMARK(BM_GetFileInfo);

}  // namespace

BENCHMARK_MAIN();
