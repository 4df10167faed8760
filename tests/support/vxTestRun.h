// Runs the velarix command in-process, for tests.
#pragma once

#include <string>
#include <vector>

namespace Velarix::test {

struct RunResult {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs with the given arguments and the script on standard input.
RunResult runVelarix(const std::string& script, const std::vector<std::string>& args = {});

// Runs the built velarix binary through the shell; `command` follows the
// binary's path (arguments, redirections).
RunResult runVelarixBinary(const std::string& command, const std::string& input = "");

// A fresh empty folder below the system's temporary folder.
std::string makeTempFolder(const std::string& name);

std::string readFile(const std::string& path);
void writeFile(const std::string& path, const std::string& text);

}  // namespace Velarix::test
