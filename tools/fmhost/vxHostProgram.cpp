#include "fmhost/vxHostProgram.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <ostream>
#include <sstream>

#include "fmhost/vxHostObjects.h"

namespace Velarix::fmhost {

namespace {

// The marker of a string buffer the plug-in left untouched.
constexpr uint16_t kUntouched = 0xFFFF;

struct LoadedPlugin {
    void* handle = nullptr;
    FMX_ExternCallProc entry = nullptr;
};

const char* extensionOf(const std::string& type) {
    static const std::pair<const char*, const char*> kTypes[] = {
        {"PNGf", "png"}, {"JPEG", "jpg"}, {"GIFf", "gif"}, {"TIFF", "tif"},
        {"BMP ", "bmp"}, {"PDF ", "pdf"}, {"META", "emf"}, {"PICT", "pict"}};
    for (const auto& [name, extension] : kTypes) {
        if (type == name) return extension;
    }
    return nullptr;
}

int64_t sendMessage(const LoadedPlugin& plugin, const HostOptions& options, uint8_t message,
                    uint8_t parm1 = 0, uint64_t parm2 = 0, uint64_t parm3 = 0,
                    uint64_t result = 0) {
    FMX_ExternCallStruct block{};
    block.extnVersion = static_cast<int16_t>(options.apiVersion);
    block.unusedID = -1;
    block.entryPoint = plugin.entry;
    block.whichCall = message;
    block.parm1 = parm1;
    block.parm2 = parm2;
    block.parm3 = parm3;
    block.instanceID = reinterpret_cast<uint64_t>(plugin.handle);
    block.result = result;
    plugin.entry(&block);
    return static_cast<int64_t>(block.result);
}

void writeUnregistered(std::ostream& out) {
    const auto& unregistered = hostRecord().unregistered;
    if (unregistered.empty()) return;
    out << "; unregistered";
    for (short id : unregistered) out << " " << id;
}

void init(const LoadedPlugin& plugin, const HostOptions& options, std::ostream& out) {
    hostRecord().unregistered.clear();
    std::u16string version = fromUtf8(options.appVersion);
    const int64_t answer =
        sendMessage(plugin, options, kFMXT_Init, static_cast<uint8_t>(options.appKind),
                    reinterpret_cast<uint64_t>(version.c_str()));
    out << "init: " << answer << "; registered: " << hostRecord().registered.size();
    writeUnregistered(out);
    out << "\n";
}

void shutdown(const LoadedPlugin& plugin, const HostOptions& options, std::ostream& out) {
    HostRecord& record = hostRecord();
    record.unregistered.clear();
    sendMessage(plugin, options, kFMXT_Shutdown);
    out << "shutdown: registered " << record.registered.size();
    writeUnregistered(out);
    out << "\n";
}

void listFunctions(std::ostream& out) {
    for (const Registration& r : hostRecord().registered) {
        char flags[16];
        std::snprintf(flags, sizeof flags, "0x%X", r.flags);
        out << "function " << r.pluginID << " " << r.functionID << " " << r.name << " " << r.minArgs
            << ".." << r.maxArgs << " " << flags << " " << r.prototype << "\n";
    }
}

void getString(const LoadedPlugin& plugin, const HostOptions& options, const HostStep& step,
               std::ostream& out) {
    std::vector<uint16_t> buffer(std::max(step.bufferSize, 1) + 1, kUntouched);
    sendMessage(plugin, options, kFMXT_GetString, static_cast<uint8_t>(step.stringID), 1033,
                static_cast<uint64_t>(step.bufferSize), reinterpret_cast<uint64_t>(buffer.data()));
    out << "string " << step.stringID << ": ";
    if (buffer[0] == kUntouched) {
        out << "untouched\n";
        return;
    }
    const auto end = std::find(buffer.begin(), buffer.end(), 0);
    out << toUtf8(std::u16string(buffer.begin(), end)) << "\n";
}

std::unique_ptr<fmx::Data> makeArgument(const CallArgument& arg) {
    auto data = std::make_unique<fmx::Data>();
    std::string text = arg.value;
    if (arg.kind == 'f') {
        std::ifstream file(arg.value, std::ios::binary);
        std::ostringstream bytes;
        bytes << file.rdbuf();
        text = bytes.str();
    }
    data->type = arg.kind == 'n' ? fmx::kDTNumber : fmx::kDTText;
    data->text.units = fromUtf8(text);
    data->number.value = textNumber(data->text.units);
    if (arg.kind == 'c') {
        data->type = fmx::kDTBinary;
        data->binary.streams.push_back({"JPEG", {0xFF, 0xD8, 0xFF}});
    }
    return data;
}

void writeContainer(const fmx::Data& result, int callNumber, const HostOptions& options,
                    std::ostream& out) {
    out << "container:";
    int picture = 0;
    for (const auto& stream : result.binary.streams) {
        out << " " << stream.type << " " << stream.bytes.size();
        if (stream.type == "SIZE" && stream.bytes.size() == 4) {
            out << " " << (stream.bytes[0] << 8 | stream.bytes[1]) << "x"
                << (stream.bytes[2] << 8 | stream.bytes[3]);
        }
        const char* extension = extensionOf(stream.type);
        if (!extension) continue;
        const std::string path = options.outDir + "/call-" + std::to_string(callNumber) + "-" +
                                 std::to_string(++picture) + "." + extension;
        std::ofstream file(path, std::ios::binary);
        file.write(reinterpret_cast<const char*>(stream.bytes.data()),
                   static_cast<std::streamsize>(stream.bytes.size()));
        out << " " << path;
    }
    out << "\n";
}

void writeResult(const fmx::Data& result, int callNumber, const HostOptions& options,
                 std::ostream& out) {
    if (result.type == fmx::kDTBinary) return writeContainer(result, callNumber, options, out);
    std::string text = toUtf8(result.text.units);
    std::replace(text.begin(), text.end(), '\r', '\n');
    if (result.type == fmx::kDTInvalid)
        out << "nothing\n";
    else if (result.type == fmx::kDTText)
        out << "text: " << text << "\n";
    else
        out << "number: " << text << "\n";
}

const Registration* findFunction(const HostStep& step, std::ostream& out) {
    HostRecord& record = hostRecord();
    for (const Registration& r : record.registered) {
        if (r.name == step.name) return &r;
    }
    const auto known = record.known.find(step.name);
    if (step.what == "stale" && known != record.known.end()) return &known->second;
    out << "call " << step.name << ": not registered\n";
    return nullptr;
}

void call(const HostStep& step, int callNumber, const HostOptions& options, std::ostream& out) {
    const Registration* function = findFunction(step, out);
    if (!function) return;
    const auto count = static_cast<short>(step.args.size());
    if (!options.lenient && (count < function->minArgs || count > function->maxArgs)) {
        out << "call " << step.name << ": argument count " << count << " outside "
            << function->minArgs << ".." << function->maxArgs << "\n";
        return;
    }
    fmx::DataVect args;
    for (const CallArgument& arg : step.args) args.items.push_back(makeArgument(arg));
    fmx::Data result;
    fmx::ExprEnv env;
    const errcode answer = function->function(function->functionID, env, args, result);
    out << "call " << step.name << ": " << answer << ": ";
    writeResult(result, callNumber, options, out);
}

void runStep(const LoadedPlugin& plugin, const HostOptions& options, const HostStep& step,
             int number, std::ostream& out) {
    if (step.what == "call" || step.what == "stale") call(step, number, options, out);
    if (step.what == "string") getString(plugin, options, step, out);
    if (step.what == "init") init(plugin, options, out);
    if (step.what == "shutdown") shutdown(plugin, options, out);
    if (step.what == "functions") listFunctions(out);
    if (step.what == "idle") sendMessage(plugin, options, kFMXT_Idle);
    if (step.what == "prefs") sendMessage(plugin, options, kFMXT_DoAppPreferences);
}

bool load(const HostOptions& options, LoadedPlugin& plugin, std::ostream& err) {
    plugin.handle = dlopen(options.plugin.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!plugin.handle) {
        err << "fmhost: " << dlerror() << "\n";
        return false;
    }
    plugin.entry = reinterpret_cast<FMX_ExternCallProc>(dlsym(plugin.handle, "FMExternCallProc"));
    if (plugin.entry) return true;
    err << "fmhost: " << options.plugin << " has no FMExternCallProc\n";
    dlclose(plugin.handle);
    return false;
}

}  // namespace

int runHost(const HostOptions& options, std::ostream& out, std::ostream& err) {
    for (int cycle = 0; cycle < options.cycles; ++cycle) {
        LoadedPlugin plugin;
        if (!load(options, plugin, err)) return kHostLoadFailure;
        init(plugin, options, out);
        int number = 0;
        for (const HostStep& step : options.steps) runStep(plugin, options, step, ++number, out);
        shutdown(plugin, options, out);
        // The host forgets the library's functions with the library.
        hostRecord().registered.clear();
        hostRecord().known.clear();
        dlclose(plugin.handle);
    }
    out << "host objects left: " << hostRecord().liveObjects << "\n";
    return kHostOk;
}

}  // namespace Velarix::fmhost
