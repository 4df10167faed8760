// The drawing call: the script from the host runs in a vxInterface made for
// the call; the memory streams of its output go into the host's container
// value with their four-character types, or the composed error message is
// the result text.
#include <algorithm>
#include <cmath>
#include <memory>
#include <new>

#include "host/plugin/vxExternalFunctions.h"
#include "host/plugin/vxHostCalls.h"
#include "host/plugin/vxPluginState.h"
#include "host/vxInterface.h"
#include "host/vxLog.h"
#include "host/vxPluginTexts.h"
#include "output/vxOutputWIN.h"
#include "output/vxStreamRecord.h"
#include "overlays/vxCurveFittingData.h"
#include "settings/vxError.h"

namespace Velarix {

namespace {

// The kind of host that answers an empty script with a message.
constexpr short kAppTypeWeb = 4;
constexpr const wchar_t* kFilePathCalculation = L"Get ( FilePath )";

// The container type of a stream's format; null for a format the host
// keeps no type for.
const char* streamType(short formatCode) {
    switch (formatCode) {
        case kStreamGIF:
            return "GIFf";
        case kStreamJPEG:
            return "JPEG";
        case kStreamTIFF:
            return "TIFF";
        case kStreamPNG:
            return "PNGf";
        case kStreamBMP:
            return "BMP ";
        case kStreamPICT:
            return "PICT";
        case kStreamMeta:
            return "META";
        case kStreamPDF:
            return "PDF ";
        default:
            return nullptr;
    }
}

short sizeUnits(float length) {
    return static_cast<short>(std::clamp(std::lround(length), 0L, 32767L));
}

void setPlainError(vxPluginState& state, const wchar_t* text) {
    state.lastError->setError(kErrPlainText, L"vxCH_DrawChart", text);
}

void readFilePath(vxPluginState& state, const vxfmx::ExprEnv& env) {
    std::wstring hostPath;
    state.filePath.clear();
    if (vxEvaluate(env, kFilePathCalculation, hostPath)) {
        state.filePath =
            vxPluginTexts::databaseFolder(hostPath, vxPluginTexts::majorVersion(state.fmVersion));
    }
    vxLog::write("[vxCH_DrawChart] FM version: " + vxNarrow(state.fmVersion));
    vxLog::write("[vxCH_DrawChart] filePath: " + vxNarrow(state.filePath));
}

// Adds every stream of a known type, then the size of the first; the
// host's first non-zero answer ends it.
errcode addStreams(const vxInterface& engine, vxHostBinaryData& binary) {
    const vxOutputWIN* output = engine.getOutput();
    const long count = engine.getNumOfStreams();
    for (long i = 0; output && i < count; ++i) {
        const vxStreamRecord* stream = output->getStream(i);
        if (!stream) {
            vxLog::write("streamRef == 0L");
            continue;
        }
        const char* type = streamType(stream->formatCode);
        if (!type) continue;
        if (const errcode answer = binary.add(type, stream->bytes); answer != 0) return answer;
    }
    const vxStreamRecord* first = output ? output->getStream(0) : nullptr;
    if (!first) return 0;
    return binary.addSize(sizeUnits(first->width), sizeUnits(first->height));
}

void giveStreams(vxPluginState& state, const vxInterface& engine, vxfmx::Data& result) {
    if (engine.getNumOfStreams() < 1) {
        vxSetResultText(result, L"");
        return;
    }
    vxHostBinaryData binary;
    const errcode answer = addStreams(engine, binary);
    vxLog::write("[vxCH_DrawChart] PASSED: vxAddStreams()");
    if (answer == 0) {
        binary.putInto(result);
        return;
    }
    setPlainError(state, vxPluginTexts::kStreamError);
    vxSetResultText(result, vxPluginTexts::kStreamError);
}

void keepResults(vxPluginState& state, const vxInterface& engine, vxfmx::Data& result) {
    if (engine.hasCurveFittingData()) {
        if (!state.lastCurveFittingData) {
            state.lastCurveFittingData = std::make_unique<vxCurveFittingData>();
        }
        engine.getCurveFittingData(state.lastCurveFittingData.get());
    }
    giveStreams(state, engine, result);
}

void giveError(vxPluginState& state, const vxInterface& engine, vxfmx::Data& result) {
    engine.copyErrorTo(state.lastError.get());
    bool alert = false;
    const std::wstring text = vxPluginTexts::drawingErrorText(
        state.lastError.get(), state.languageID, state.lastErrorFlags, alert);
    if (alert) vxAlertSound();
    vxSetResultText(result, text);
}

void runScript(vxPluginState& state, const std::wstring& source, vxfmx::Data& result) {
    std::unique_ptr<vxInterface> engine;
    try {
        engine =
            std::make_unique<vxInterface>(state.filePath, L"", state.languageID, state.appType);
    } catch (const std::bad_alloc&) {
        vxSetResultText(result, vxPluginTexts::kNoInterface);
        return;
    }
    if (!engine->isError()) engine->run(source);
    if (engine->isError()) {
        giveError(state, *engine, result);
    } else {
        keepResults(state, *engine, result);
    }
    vxLog::withStream([&](std::ostream& log) { engine->dump(3, log); });
}

}  // namespace

void vxDrawChart(vxPluginState& state, const vxfmx::ExprEnv& env, const vxfmx::DataVect& args,
                 vxfmx::Data& result) {
    vxLog::beginRun();
    state.lastError->clear();
    const std::wstring source = vxArgText(args, 0);
    if (source.empty()) {
        if (state.appType == kAppTypeWeb) {
            setPlainError(state, vxPluginTexts::kMissingScript);
            vxSetResultText(result, vxPluginTexts::kMissingScript);
        }
        vxLog::endRun();
        return;
    }
    readFilePath(state, env);
    runScript(state, source, result);
    vxLog::write("[vxCH_DrawChart] FINISHED --------------------------------");
    vxLog::endRun();
}

}  // namespace Velarix
