// Cost of a filtered-out message (a map lookup) and of a written line, against plain
// fprintf + fflush of the same text to the same file.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <unistd.h>

#include "log/log.h"

namespace {

std::string g_log;  // in a temporary folder made by main

// The thresholds the launcher typically runs with: a debug-level file of four components.
void StartLogger(const std::string& dir) {
    const std::string levels = dir + "/launcher.debug";
    FILE* fp = std::fopen(levels.c_str(), "w");
    std::fputs("launcher_debug=4\nservice_debug=4\nextractor_debug=5\nfile_op_debug=4\n", fp);
    std::fclose(fp);
    // Two files per rotation set keep the disk use of a long run small.
    Logger::Initialize(Logger::LOGFILE, ustring(g_log.c_str()), ustring(levels.c_str()), 2);
}

void BM_FilteredDebug(benchmark::State& state) {
    for (auto _ : state)
        SKLOG(DEBUG, "service_debug", "source %s does not exist\n", "/a/b");
}
BENCHMARK(BM_FilteredDebug);

void BM_FilteredDebugUstringComponent(benchmark::State& state) {
    const ustring component("service_debug");
    for (auto _ : state)
        Logger::LogMsg(Logger::DEBUG, component, "[DEBUG] b(%d): source %s does not exist\n",
                       1, "/a/b");
}
BENCHMARK(BM_FilteredDebugUstringComponent);

void BM_WrittenLine(benchmark::State& state) {
    for (auto _ : state)
        SKLOG(WARNING, "service_debug", "source %s does not exist\n", "/a/b");
}
BENCHMARK(BM_WrittenLine);

// The reference: the same text without the logger, truncating now and then as the
// logger's rotation does.
void BM_FprintfFflush(benchmark::State& state) {
    FILE* fp = std::fopen(g_log.c_str(), "a");
    size_t n = 0;
    for (auto _ : state) {
        std::fprintf(fp, "[WARNING] log_bench.cpp(%d): source %s does not exist\n", __LINE__,
                     "/a/b");
        std::fflush(fp);
        if (++n % 16384 == 0)
            benchmark::DoNotOptimize(ftruncate(fileno(fp), 0));
    }
    std::fclose(fp);
}
BENCHMARK(BM_FprintfFflush);

}  // namespace

int main(int argc, char** argv) {
    char dir[] = "/tmp/skelda-log-bench-XXXXXX";
    if (!mkdtemp(dir))
        return 1;
    g_log = std::string(dir) + "/launcher.log";
    StartLogger(dir);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    Logger::Destroy();
    std::filesystem::remove_all(dir);
    return 0;
}
