#include "host/plugin/vxExternalFunctions.h"

#include <new>
#include <optional>
#include <string>

#include "Utilities/Sources/vxFormat.h"
#include "host/plugin/vxHostCalls.h"
#include "host/plugin/vxPluginState.h"
#include "host/vxPluginStrings.h"
#include "host/vxPluginTexts.h"
#include "settings/vxError.h"

namespace Velarix {

namespace {

constexpr errcode kHostFailure = -1;

// Calculations of the host that vxCH_GetVersion answers for -2, -3 and -4.
constexpr const wchar_t* kVersionCalculations[] = {L"Get ( ApplicationVersion )",
                                                   L"Get ( FilePath )", L"Get ( SystemPlatform )"};

// Runs a function's body on the plug-in's state, or on a state of its own
// outside init and shutdown; exceptions end here.
template <typename Body>
errcode guarded(Body body) {
    try {
        vxPluginState* state = vxPluginState::get();
        std::optional<vxPluginState> own;
        if (!state) state = &own.emplace();
        body(*state);
        return 0;
    } catch (...) {
        return kHostFailure;
    }
}

std::wstring versionDiagnostics(const vxPluginState& state) {
    return L"fmVersion: " + state.fmVersion + L"; major: " +
           std::to_wstring(vxPluginTexts::majorVersion(state.fmVersion)) + L"; appType: " +
           std::to_wstring(state.appType) + L"; language: " + std::to_wstring(state.languageID);
}

errcode setLanguage(short, const vxfmx::ExprEnv&, const vxfmx::DataVect& args,
                    vxfmx::Data& result) {
    return guarded([&](vxPluginState& state) {
        const long n = vxArgIsEmpty(args, 0) ? 0 : vxArgLong(args, 0);
        state.languageID = static_cast<short>(n + 1);
        vxSetResultNumber(result, n);
    });
}

errcode getVersion(short, const vxfmx::ExprEnv& env, const vxfmx::DataVect& args,
                   vxfmx::Data& result) {
    return guarded([&](vxPluginState& state) {
        const long type = vxArgIsEmpty(args, 0) ? 0 : vxArgLong(args, 0);
        const std::wstring version(std::begin(VELARIX_VERSION_TEXT),
                                   std::end(VELARIX_VERSION_TEXT) - 1);
        std::wstring text;
        if (type == 1) text = L"Velarix " + version;
        if (type == 2) text = version;
        if (type == -1) text = versionDiagnostics(state);
        if (type <= -2 && type >= -4) vxEvaluate(env, kVersionCalculations[-type - 2], text);
        vxSetResultText(result, text);
    });
}

errcode drawChart(short, const vxfmx::ExprEnv& env, const vxfmx::DataVect& args,
                  vxfmx::Data& result) {
    return guarded([&](vxPluginState& state) { vxDrawChart(state, env, args, result); });
}

errcode getErrorMessage(short, const vxfmx::ExprEnv&, const vxfmx::DataVect& args,
                        vxfmx::Data& result) {
    return guarded([&](vxPluginState& state) {
        const std::wstring flags = vxArgText(args, 0);
        bool alert = false;
        const std::wstring text =
            vxPluginTexts::errorMessage(state.lastError.get(), state.languageID, flags, alert);
        if (alert) vxAlertSound();
        state.lastErrorFlags = flags;
        vxSetResultText(result, text);
    });
}

errcode getCFValue(short, const vxfmx::ExprEnv&, const vxfmx::DataVect& args, vxfmx::Data& result) {
    return guarded([&](vxPluginState& state) {
        const std::wstring format = vxArgCount(args) < 5 ? std::wstring(vxFormat::kFallbackFormat)
                                                         : L"|" + vxArgText(args, 4) + L"|";
        vxSetResultText(
            result, vxPluginTexts::curveFitValue(state.lastCurveFittingData.get(),
                                                 vxArgLong(args, 0), vxArgLong(args, 1),
                                                 vxArgLong(args, 2), vxArgLong(args, 3), format));
    });
}

// Without the platform's windows the position can't be found: the answer
// is the format with blanks, as after any failure to find it.
errcode getMouse(short, const vxfmx::ExprEnv&, const vxfmx::DataVect& args, vxfmx::Data& result) {
    return guarded([&](vxPluginState&) {
        std::wstring format = vxArgText(args, 0);
        if (format.empty()) format = vxPluginTexts::kDefaultPositionFormat;
        vxAlertSound();
        vxSetResultText(result, vxPluginTexts::position(format, L" ", L" "));
    });
}

}  // namespace

vxfmx::ExternalFunction vxExternalFunctionFor(short functionID) {
    switch (functionID) {
        case 0:
            return setLanguage;
        case 1:
            return getVersion;
        case 3:
            return drawChart;
        case 4:
            return getErrorMessage;
        case 5:
            return getCFValue;
        case 6:
            return getMouse;
        default:
            return nullptr;
    }
}

void vxAlertSound() {}

}  // namespace Velarix
