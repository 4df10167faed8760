#include <iostream>
#include <string>
#include <vector>

#include "fmhost/vxHostProgram.h"

int main(int argc, char** argv) {
    using namespace Velarix::fmhost;
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (!args.empty() && args[0] == "--help") {
        std::cout << hostUsage();
        return kHostOk;
    }
    HostOptions options;
    std::string message;
    if (!parseHostOptions(args, options, message)) {
        std::cerr << "fmhost: " << message << "\n" << hostUsage();
        return kHostUsage;
    }
    return runHost(options, std::cout, std::cerr);
}
