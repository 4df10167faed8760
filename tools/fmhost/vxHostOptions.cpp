#include <cstdlib>

#include "fmhost/vxHostObjects.h"
#include "fmhost/vxHostProgram.h"

namespace Velarix::fmhost {

namespace {

constexpr const char* kFilePathCalculation = "Get ( FilePath )";
constexpr const char* kVersionCalculation = "Get ( ApplicationVersion )";

// "OP[@N]=CODE" or, for an error answer, "OP[@N]".
bool parseFault(const std::string& text, bool refuse, Fault& fault) {
    std::string head = text;
    if (!refuse) {
        const size_t equals = text.rfind('=');
        if (equals == std::string::npos) return false;
        fault.code = std::atoi(text.c_str() + equals + 1);
        if (fault.code != 1 && fault.code != 2) return false;
        head = text.substr(0, equals);
    }
    const size_t at = head.find('@');
    fault.operation = head.substr(0, at);
    if (at != std::string::npos) fault.nth = std::atoi(head.c_str() + at + 1);
    return !fault.operation.empty() && fault.nth >= 0;
}

bool parseCallArgs(const std::vector<std::string>& args, size_t& i, HostStep& step) {
    while (i + 1 < args.size() && args[i + 1].size() == 2 && args[i + 1][0] == '-') {
        const char kind = args[i + 1][1];
        if (kind == 'e' || kind == 'c') {
            step.args.push_back({kind, ""});
            ++i;
            continue;
        }
        if (kind != 't' && kind != 'n' && kind != 'f') return false;
        if (i + 2 >= args.size()) return false;
        step.args.push_back({kind, args[i + 2]});
        i += 2;
    }
    return true;
}

bool parseStep(const std::vector<std::string>& args, size_t& i, HostOptions& options) {
    HostStep step;
    step.what = args[i];
    if (step.what == "call" || step.what == "stale") {
        if (++i >= args.size()) return false;
        step.name = args[i];
        if (!parseCallArgs(args, i, step)) return false;
    } else if (step.what == "string") {
        if (++i >= args.size()) return false;
        step.stringID = std::atoi(args[i].c_str());
        if (i + 1 < args.size() && std::atoi(args[i + 1].c_str()) > 0) {
            step.bufferSize = std::atoi(args[++i].c_str());
        }
    } else if (step.what != "init" && step.what != "shutdown" && step.what != "idle" &&
               step.what != "prefs" && step.what != "functions") {
        return false;
    }
    options.steps.push_back(step);
    return true;
}

bool parseOption(const std::vector<std::string>& args, size_t& i, HostOptions& options) {
    const std::string& name = args[i];
    if (name == "--lenient") {
        options.lenient = true;
        return true;
    }
    if (i + 1 >= args.size()) return false;
    const std::string& value = args[++i];
    HostRecord& record = hostRecord();
    Fault fault;
    if (name == "--api")
        options.apiVersion = std::atoi(value.c_str());
    else if (name == "--app")
        options.appKind = std::atoi(value.c_str());
    else if (name == "--app-version")
        options.appVersion = value;
    else if (name == "--out")
        options.outDir = value;
    else if (name == "--cycles")
        options.cycles = std::atoi(value.c_str());
    else if (name == "--file-path")
        record.calculations[fromUtf8(kFilePathCalculation)] = fromUtf8(value);
    else if (name == "--calc" && value.find('=') != std::string::npos) {
        const size_t equals = value.find('=');
        record.calculations[fromUtf8(value.substr(0, equals))] = fromUtf8(value.substr(equals + 1));
    } else if ((name == "--fault" || name == "--refuse") &&
               parseFault(value, name == "--refuse", fault)) {
        record.faults.push_back(fault);
    } else {
        return false;
    }
    return true;
}

}  // namespace

bool parseHostOptions(const std::vector<std::string>& args, HostOptions& options,
                      std::string& message) {
    size_t i = 0;
    for (; i < args.size() && args[i].rfind("--", 0) == 0; ++i) {
        if (!parseOption(args, i, options)) {
            message = "bad option " + args[i];
            return false;
        }
    }
    if (i >= args.size()) {
        message = "no plug-in library given";
        return false;
    }
    options.plugin = args[i];
    for (++i; i < args.size(); ++i) {
        if (!parseStep(args, i, options)) {
            message = "bad step at " + args[std::min(i, args.size() - 1)];
            return false;
        }
    }
    HostRecord& record = hostRecord();
    record.calculations.emplace(fromUtf8(kVersionCalculation), fromUtf8(options.appVersion));
    if (options.cycles < 1) {
        message = "--cycles needs a count of 1 or more";
        return false;
    }
    return true;
}

const char* hostUsage() {
    return "usage: fmhost [OPTION...] PLUGIN [STEP...]\n"
           "options:\n"
           "  --api N              the host's API version in the call block (62)\n"
           "  --app N              the application kind (7, the server's script engine)\n"
           "  --app-version TEXT   the host's version text (\"Server 21.0.1\")\n"
           "  --file-path TEXT     the answer to Get ( FilePath ); without it that fails\n"
           "  --calc EXPR=VALUE    the answer to a calculation\n"
           "  --out DIR            where picture streams are written (.)\n"
           "  --cycles N           load, run and unload the library N times (1)\n"
           "  --lenient            call also with an argument count outside the range\n"
           "  --fault OP[@N]=CODE  the Nth (or every) call of a host operation throws\n"
           "                       CODE: 1 out of memory, 2 any other\n"
           "  --refuse OP[@N]      the Nth (or every) call of a host operation answers an error\n"
           "steps (init and shutdown are also sent around them):\n"
           "  call NAME [-t TEXT | -n NUMBER | -f FILE | -e | -c]...\n"
           "  stale NAME [ARG...]  calls a function that is no longer registered\n"
           "  string ID [SIZE]     asks for a string into a buffer of SIZE units (256)\n"
           "  functions            lists the registered functions\n"
           "  init | shutdown | idle | prefs\n";
}

}  // namespace Velarix::fmhost
