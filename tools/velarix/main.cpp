#include <iostream>
#include <string>
#include <vector>

#include "velarix/vxCommand.h"

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);
    std::vector<std::string> args(argv + 1, argv + argc);
    return Velarix::vxVelarixMain(args, std::cin, std::cout, std::cerr);
}
