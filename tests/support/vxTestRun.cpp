#include "support/vxTestRun.h"

#include <sys/wait.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "velarix/vxCommand.h"

namespace Velarix::test {

RunResult runVelarix(const std::string& script, const std::vector<std::string>& args) {
    std::istringstream in(script);
    std::ostringstream out;
    std::ostringstream err;
    RunResult result;
    std::vector<std::string> all = args;
    result.status = vxVelarixMain(all, in, out, err);
    result.out = out.str();
    result.err = err.str();
    return result;
}

RunResult runVelarixBinary(const std::string& command, const std::string& input) {
    const std::string folder = makeTempFolder("binary-run");
    const std::string inPath = folder + "/in";
    const std::string errPath = folder + "/err";
    writeFile(inPath, input);
    const std::string line =
        std::string(VELARIX_BINARY) + " " + command + " < " + inPath + " 2> " + errPath;
    RunResult result;
    FILE* pipe = popen(line.c_str(), "r");
    if (!pipe) return result;
    char buffer[4096];
    size_t n = 0;
    while ((n = fread(buffer, 1, sizeof buffer, pipe)) > 0) result.out.append(buffer, n);
    int status = pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.err = readFile(errPath);
    return result;
}

std::string makeTempFolder(const std::string& name) {
    namespace fs = std::filesystem;
    fs::path dir = fs::temp_directory_path() / ("velarix-test-" + std::to_string(getpid())) / name;
    fs::remove_all(dir);
    fs::create_directories(dir);
    return dir.string();
}

std::string readFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void writeFile(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
}

}  // namespace Velarix::test
