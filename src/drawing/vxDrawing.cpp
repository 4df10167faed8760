#include "drawing/vxDrawing.h"

#include <stdexcept>

#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxLayerManager.h"
#include "drawing/vxSelection.h"
#include "drawing/vxView.h"
#include "host/vxLog.h"
#include "output/vxOutputWIN.h"
#include "overlays/vxCurveFittingData.h"
#include "script/vxScript.h"

namespace Velarix {

namespace {

void logPassed(const char* stage) {
    vxLog::write(std::string("[vxDrawing::run] PASSED: ") + stage);
}

}  // namespace

vxDrawing::vxDrawing(vxUserSettings* settings)
    : vxErrorHolder(L"vxDrawing"), userSettings(settings) {
    if (isError()) return;
    if (!create(view, L"createView", userSettings) || takeError(view.get())) return;
    if (!create(output, L"createOutput", userSettings) || takeError(output.get())) return;
    if (!create(drawingSpecs, L"createDrawingSpecs")) return;
    if (!create(layerMng, L"createLayerManager") || takeError(layerMng.get())) return;
    if (!create(script, L"createScript", userSettings, drawingSpecs.get(), view.get(),
                output.get()) ||
        takeError(script.get())) {
        return;
    }
    if (!create(selection, L"createSelection") || takeError(selection.get())) return;
    if (!create(curveFittingData, L"createCurveFittingData")) return;
    takeError(curveFittingData.get());
}

vxDrawing::~vxDrawing() {
    curveFittingData.reset();
    layerMng.reset();
    drawingSpecs.reset();
    selection.reset();
    output.reset();
    view.reset();
    script.reset();
}

// Copies the member's error, if it has one; true when it had.
bool vxDrawing::takeError(const vxErrorHolder* member) {
    if (!member || !member->isError()) return false;
    if (member->getError()) {
        copyError(member->getError());
    } else {
        setError(vxErrRuntime::kOutOfMemory, where(L"takeError"));
    }
    return true;
}

void vxDrawing::init() {
    if (output) output->reset();
    if (curveFittingData) curveFittingData->clear();
}

void vxDrawing::run(const std::wstring& s) {
    try {
        runStages(s);
    } catch (const std::bad_alloc&) {
        vxLog::write("[vxDrawing::run] ERROR: std::bad_alloc.");
        setError(vxErrRuntime::kOutOfMemory, where(L"run"));
    } catch (const std::out_of_range&) {
        vxLog::write("[vxDrawing::run] ERROR: std::out_of_range.");
        setError(vxErrRuntime::kIndexOutOfRange, where(L"run"));
    } catch (...) {
        vxLog::write("[vxDrawing::run] ERROR: unknown error.");
    }
}

void vxDrawing::runStages(const std::wstring& s) {
    init();
    if (isError()) return;
    logPassed("init()");

    if (!script) return;
    script->tokenize(s);
    logPassed("script->tokenize(s)");
    if (takeError(script.get())) return;

    if (!view || !drawingSpecs || drawingSpecs->getWidth() < 1.0f ||
        drawingSpecs->getHeight() < 1.0f) {
        return;
    }
    const float bounds[4] = {0.0f, 0.0f, drawingSpecs->getWidth(), drawingSpecs->getHeight()};
    view->setUp(bounds);
    logPassed("view->setUp(bounds)");
    if (takeError(view.get())) return;

    view->setUpLayers(layerMng.get());
    logPassed("view->setUpLayers(layerMng)");
    if (takeError(view.get())) return;

    view->setUpCurveFittingData(curveFittingData.get());
    if (takeError(view.get())) return;

    if (!output) return;
    output->setUp(drawingSpecs.get());
    logPassed("output->setUp(drawingSpecs)");
    if (takeError(output.get())) return;

    output->write(layerMng.get());
    if (takeError(output.get())) return;
    logPassed("output->write(layerMng)");
}

void vxDrawing::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    const short next = static_cast<short>(depth - 1);
    vxDumpHeader(out, "vxDrawing");
    if (script) script->dump(next, out);
    if (view) view->dump(next, out);
    if (output) output->dump(next, out);
    if (selection) selection->dump(next, out);
    if (drawingSpecs) drawingSpecs->dump(next, out);
    if (curveFittingData) curveFittingData->dump(next, out);
    if (error) error->dump(next, out);
    vxDumpEnd(out);
}

}  // namespace Velarix
