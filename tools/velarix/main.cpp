// The velarix command: runs one chart script and writes its pictures.
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "velarix/vxCommand.h"

namespace {

// With VELARIX_PEAK_MEMORY set, the command ends by telling on standard
// error the most memory it held ("VmHWM" of the process), for the tests
// that keep large drawings within bounds.
void reportPeakMemory() {
    if (!std::getenv("VELARIX_PEAK_MEMORY")) return;
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmHWM:", 0) == 0) std::cerr << line << '\n';
    }
}

}  // namespace

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::vector<std::string> args(argv + 1, argv + argc);
    const int status = Velarix::vxVelarixMain(args, std::cin, std::cout, std::cerr);
    reportPeakMemory();
    return status;
}
