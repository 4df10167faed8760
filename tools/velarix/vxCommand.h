// The velarix command: runs one chart script the way the host's drawing
// call does, writes the pictures the script asks for, and reports an error
// as the composed message.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace Velarix {

struct vxCommandOptions {
    std::string base;            // folder for relative file names; empty: current
    short languageID = 1;        // 1 English, 2 German
    std::wstring flags = L"13";  // message flags: code first, detail level, prefix
    std::string streamsDir;      // where host streams are written; empty: nowhere
    bool log = false;            // Velarix.txt in the current folder
    bool fits = false;           // the coefficients of the curve fits on standard output
    std::string script = "-";    // a file, or "-" for standard input
    bool help = false;
    bool version = false;
};

// Exit codes of the command.
constexpr int kExitSuccess = 0;
constexpr int kExitScriptError = 1;
constexpr int kExitUsage = 2;

// Reads the arguments (without the program name). On a usage error returns
// false with a one-line message.
bool vxParseCommandLine(const std::vector<std::string>& args, vxCommandOptions& options,
                        std::string& message);

// Runs the command; `in` is read when the script is "-".
int vxRunCommand(const vxCommandOptions& options, std::istream& in, std::ostream& out,
                 std::ostream& err);

// Parses and runs; the whole command behind main.
int vxVelarixMain(const std::vector<std::string>& args, std::istream& in, std::ostream& out,
                  std::ostream& err);

const char* vxUsageText();

}  // namespace Velarix
