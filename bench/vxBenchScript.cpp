#include "vxBenchScript.h"

#include <spawn.h>
#include <sys/wait.h>

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
// abnormally.
int spawnAndWait(std::vector<std::string>& args) {
    std::vector<char*> argv;
    for (std::string& a : args) argv.push_back(a.data());
    argv.push_back(nullptr);
    pid_t pid = 0;
    if (posix_spawn(&pid, argv[0], nullptr, nullptr, argv.data(), environ) != 0) return -1;
    int status = 0;
    if (waitpid(pid, &status, 0) != pid) return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

void runScriptAsProcess(benchmark::State& state, const std::string& script) {
    const std::string folder = benchFolder();
    const std::string path = folder + "/process.vxs";
    std::ofstream(path, std::ios::binary) << script;
    std::vector<std::string> args = {VELARIX_BINARY, "--base", folder, path};
    for (auto _ : state) {
        if (spawnAndWait(args) != 0) state.SkipWithError("velarix failed");
    }
}

}  // namespace Velarix::bench
