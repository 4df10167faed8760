#include <map>

#include "platform/vxTextCodec.h"
#include "velarix/vxCommand.h"

namespace Velarix {

const char* vxUsageText() {
    return "usage: velarix [--base DIR] [--lang en|de] [--flags TEXT] [--streams DIR] [--log]\n"
           "               [--fits] [SCRIPT | -]\n"
           "\n"
           "Runs a chart script and writes the pictures it asks for.\n"
           "\n"
           "  SCRIPT          a UTF-8 script file; '-' or nothing reads standard input\n"
           "  --base DIR      folder that relative file names resolve against (default: .)\n"
           "  --lang en|de    language of error messages (default: en)\n"
           "  --flags TEXT    message flags: 1st '1' puts the code first, 2nd the detail\n"
           "                  level 1-5, the rest a prefix (default: 13)\n"
           "  --streams DIR   write every picture a host would receive as DIR/stream-N.EXT\n"
           "  --log           write the diagnostics log Velarix.txt in the current folder\n"
           "  --fits          print the curve fits of the drawing, a line each:\n"
           "                  chart=C series=S type=T r2=R c0=... c1=...\n"
           "                  (C the chart's place in its view from 0, S the series from\n"
           "                  1, T the fit type: 1-10 the degree, -2 pow, -3 exp, -4 log;\n"
           "                  the coefficients in raw x, through zero from the x term)\n"
           "  --help          show this text\n"
           "  --version       show the version\n"
           "\n"
           "Exit status: 0 success, 1 error in the script (message on standard error),\n"
           "2 usage error or unreadable script file.\n";
}

namespace {

bool takeValue(const std::vector<std::string>& args, size_t& i, const std::string& name,
               std::string& inlineValue, bool hasInline, std::string& value, std::string& message) {
    if (hasInline) {
        value = inlineValue;
        return true;
    }
    if (i + 1 >= args.size()) {
        message = "option " + name + " needs a value";
        return false;
    }
    value = args[++i];
    return true;
}

bool applyOption(const std::string& name, const std::string& value, vxCommandOptions& options,
                 std::string& message) {
    if (name == "--base") {
        options.base = value;
    } else if (name == "--lang") {
        if (value == "en") {
            options.languageID = 1;
        } else if (value == "de") {
            options.languageID = 2;
        } else {
            message = "--lang takes en or de, not '" + value + "'";
            return false;
        }
    } else if (name == "--flags") {
        options.flags = vxFromUtf8(value);
    } else if (name == "--streams") {
        options.streamsDir = value;
    }
    return true;
}

}  // namespace

bool vxParseCommandLine(const std::vector<std::string>& args, vxCommandOptions& options,
                        std::string& message) {
    bool scriptSeen = false;
    for (size_t i = 0; i < args.size(); ++i) {
        std::string arg = args[i];
        if (arg == "--help" || arg == "-h") {
            options.help = true;
            continue;
        }
        if (arg == "--version") {
            options.version = true;
            continue;
        }
        if (arg == "--log") {
            options.log = true;
            continue;
        }
        if (arg == "--fits") {
            options.fits = true;
            continue;
        }
        if (arg.size() > 2 && arg.compare(0, 2, "--") == 0) {
            size_t eq = arg.find('=');
            std::string name = arg.substr(0, eq);
            std::string inlineValue = eq == std::string::npos ? "" : arg.substr(eq + 1);
            if (name != "--base" && name != "--lang" && name != "--flags" && name != "--streams") {
                message = "unknown option " + name;
                return false;
            }
            std::string value;
            if (!takeValue(args, i, name, inlineValue, eq != std::string::npos, value, message) ||
                !applyOption(name, value, options, message)) {
                return false;
            }
            continue;
        }
        if (arg.size() > 1 && arg[0] == '-') {
            message = "unknown option " + arg;
            return false;
        }
        if (scriptSeen) {
            message = "only one script may be given";
            return false;
        }
        options.script = arg;
        scriptSeen = true;
    }
    return true;
}

}  // namespace Velarix
