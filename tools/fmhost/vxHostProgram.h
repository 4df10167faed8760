// fmhost: plays the FileMaker host for a plug-in library. It loads the
// library, sends init, calls the plug-in's external functions by name,
// prints their results, writes each picture stream it receives to a file,
// sends shutdown and unloads the library.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

namespace Velarix::fmhost {

// One argument of a call: 't' text, 'n' number, 'f' the text of a file,
// 'e' an empty value, 'c' a container.
struct CallArgument {
    char kind = 't';
    std::string value;
};

// One step after init: "call" and "stale" (a function no longer
// registered) with a name and arguments; "string" with an id and a buffer
// size; "functions", "init", "shutdown", "idle" and "prefs".
struct HostStep {
    std::string what;
    std::string name;
    std::vector<CallArgument> args;
    int stringID = 0;
    int bufferSize = 256;
};

struct HostOptions {
    std::string plugin;
    int apiVersion = 62;  // FileMaker 19
    int appKind = 7;      // the server's script engine
    std::string appVersion = "Server 21.0.1";
    std::string outDir = ".";
    int cycles = 1;
    bool lenient = false;  // calls also with too few or too many arguments
    std::vector<HostStep> steps;
};

constexpr int kHostOk = 0;
constexpr int kHostUsage = 2;
constexpr int kHostLoadFailure = 3;

// Reads the arguments (without the program name); false with a message on
// a usage error. Calculations and faults go into the host's record.
bool parseHostOptions(const std::vector<std::string>& args, HostOptions& options,
                      std::string& message);

int runHost(const HostOptions& options, std::ostream& out, std::ostream& err);

const char* hostUsage();

}  // namespace Velarix::fmhost
