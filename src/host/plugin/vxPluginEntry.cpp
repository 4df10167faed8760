// The plug-in's one exported entry: the host's messages of init, idle,
// shutdown, preferences and get string.
#include <algorithm>
#include <cstdint>
#include <string>

#include "host/plugin/vxExternalFunctions.h"
#include "host/plugin/vxHostCalls.h"
#include "host/plugin/vxPlatformStartup.h"
#include "host/plugin/vxPluginState.h"
#include "host/vxPluginStrings.h"

namespace Velarix {

namespace {

constexpr int16_t kLowestHostVersion = 50;
constexpr int16_t kHighestHostVersion = 255;
// The API version the plug-in answers to init.
constexpr uint64_t kPluginAPIVersion = 51;
// The longest version text read from the host.
constexpr size_t kMaxVersionText = 256;

void unregisterAll(vxPluginState& state) {
    while (!state.registered.empty()) {
        try {
            vxUnregisterFunction(state.registered.back());
        } catch (...) {
            // The host forgets the function with the plug-in anyway.
        }
        state.registered.pop_back();
    }
}

bool registerAll(vxPluginState& state) {
    for (const vxPluginFunction& function : vxPluginFunctions()) {
        errcode answer = -1;
        try {
            answer = vxRegisterFunction(
                function.id, vxPluginStringText(function.id + kSignatureBaseID), function.minArgs,
                function.maxArgs, vxExternalFunctionFor(function.id));
        } catch (...) {
        }
        if (answer != 0) {
            unregisterAll(state);
            return false;
        }
        state.registered.push_back(function.id);
    }
    return true;
}

std::wstring hostVersionText(uint64_t address) {
    const auto* units = reinterpret_cast<const uint16_t*>(address);
    std::wstring text;
    for (size_t i = 0; units && i < kMaxVersionText && units[i] != 0; ++i) text += units[i];
    return text;
}

void shutdown() {
    vxPluginState* state = vxPluginState::get();
    if (!state) return;
    unregisterAll(*state);
    vxPlatformShutdown();
    vxPluginState::destroy();
}

void init(FMX_ExternCallStruct& block) {
    block.result = static_cast<uint64_t>(kFMXT_BadExtnVersion);
    if (block.extnVersion < kLowestHostVersion || block.extnVersion > kHighestHostVersion) return;
    shutdown();
    if (!vxPluginState::create()) return;
    vxPlatformStartup();
    vxPluginState& state = *vxPluginState::get();
    if (!registerAll(state)) {
        vxPlatformShutdown();
        vxPluginState::destroy();
        return;
    }
    block.result = kPluginAPIVersion;
    state.appType = block.parm1;
    state.fmVersion = hostVersionText(block.parm2);
}

// Fills the host's buffer with a string when it fits with its end mark.
void getString(FMX_ExternCallStruct& block) {
    const wchar_t* text = vxPluginStringText(block.parm1);
    auto* buffer = reinterpret_cast<uint16_t*>(block.result);
    if (!text || !buffer) return;
    const std::wstring value = text;
    if (block.parm3 < 1 || value.size() >= block.parm3 - 1) return;
    std::copy(value.begin(), value.end(), buffer);
    buffer[value.size()] = 0;
}

void dispatch(FMX_ExternCallStruct& block) {
    switch (block.whichCall) {
        case kFMXT_Init:
            init(block);
            break;
        case kFMXT_Shutdown:
            shutdown();
            break;
        case kFMXT_GetString:
            getString(block);
            break;
        case kFMXT_DoAppPreferences:  // the about dialog: none on this platform
        case kFMXT_Idle:
        default:
            break;
    }
}

}  // namespace

}  // namespace Velarix

extern "C" __attribute__((visibility("default"))) void FMExternCallProc(FMX_ExternCallPtr block) {
    if (!block) return;
    Velarix::vxPluginState::callBlock() = block;
    try {
        Velarix::dispatch(*block);
    } catch (...) {
        // Nothing is thrown into the host; a failed init has answered -1.
    }
}
