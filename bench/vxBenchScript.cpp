#include "vxBenchScript.h"

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <vector>

#include "velarix/vxCommand.h"

extern char** environ;

namespace Velarix::bench {

std::string benchFolder() {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "velarix-bench";
    std::filesystem::create_directories(folder);
    return folder.string();
}

void runScriptInProcess(benchmark::State& state, const std::string& script) {
    const std::string folder = benchFolder();
    for (auto _ : state) {
        std::istringstream in(script);
        std::ostringstream out, err;
        const int status = Velarix::vxVelarixMain({"--base", folder}, in, out, err);
        if (status != 0) state.SkipWithError(err.str().c_str());
    }
}

namespace {

// The binary's exit status, or -1 when it couldn't be started or ended
// abnormally; `peakKB` the largest resident size the process reached.
int spawnAndWait(std::vector<std::string>& args, long& peakKB) {
    std::vector<char*> argv;
    for (std::string& a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (posix_spawn(&pid, argv[0], nullptr, nullptr, argv.data(), environ) != 0) return -1;
    int status = 0;
    struct rusage usage = {};
    if (wait4(pid, &status, 0, &usage) != pid) return -1;
    peakKB = usage.ru_maxrss;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

void runScriptAsProcess(benchmark::State& state, const std::string& script) {
    const std::string folder = benchFolder();
    const std::string path = folder + "/process.vxs";
    std::ofstream(path, std::ios::binary) << script;
    std::vector<std::string> args = {VELARIX_BINARY, "--base", folder, path};
    long peakKB = 0;
    for (auto _ : state) {
        long peak = 0;
        if (spawnAndWait(args, peak) != 0) state.SkipWithError("velarix failed");
        peakKB = std::max(peakKB, peak);
    }
    state.counters["peak_MB"] = static_cast<double>(peakKB) / 1024.0;
}

}  // namespace Velarix::bench
