#include "host/vxInterface.h"

#include <algorithm>
#include <sstream>

#include "drawing/vxDrawing.h"
#include "host/vxLog.h"
#include "output/vxOutputWIN.h"
#include "overlays/vxCurveFittingData.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

vxInterface::vxInterface(const std::wstring& appPath, const std::wstring& second, short languageID,
                         short appType)
    : vxErrorHolder(L"vxInterface") {
    if (isError()) return;
    if (!create(userSettings, L"createUserSettings", appPath, second, languageID, appType)) return;
    userSettings->setDefaults();
    if (userSettings->isError()) {
        copyError(userSettings->getError());
        return;
    }
    scripts.clear();
}

vxInterface::~vxInterface() {
    curveFittingData.reset();
    userSettings.reset();
    drawing.reset();
}

bool vxInterface::createDrawing() {
    if (!create(drawing, L"createDrawing", userSettings.get())) return false;
    return true;
}

void vxInterface::checkDrawingError() {
    if (isError() || !drawing || !drawing->isError()) return;
    if (drawing->getError()) {
        copyError(drawing->getError());
    } else {
        setError(vxErrRuntime::kOutOfMemory, where(L"checkDrawingError"));
    }
    if (error && userSettings) error->setMessagePrefix(userSettings->getErrorSettings());
}

void vxInterface::saveCurveFittingData() {
    curveFittingData.reset();
    const vxCurveFittingData* data = drawing ? drawing->getCurveFittingData() : nullptr;
    if (!data || data->isEmpty()) return;
    if (create(curveFittingData, L"createCurveFittingData")) curveFittingData->copy(data);
}

void vxInterface::run(const std::wstring& script) {
    if (!createDrawing()) return;
    drawing->run(script);
    checkDrawingError();
    if (isError()) {
        drawing.reset();
        return;
    }
    saveCurveFittingData();
    if (isError()) drawing.reset();
}

void vxInterface::runScripts(const std::wstring& text) {
    vxLog::write(vxNarrow(text));
    const std::wstring separator = L"@@";
    size_t start = 0;
    size_t at = text.find(separator);
    while (at != std::wstring::npos) {
        if (!createDrawing()) return;
        drawing->run(text.substr(start, at - start));
        checkDrawingError();
        if (!isError()) saveCurveFittingData();
        drawing.reset();
        if (isError()) return;
        start = at + separator.size();
        at = text.find(separator, start);
    }
}

long vxInterface::getNumOfStreams() const {
    const vxOutputWIN* output = getOutput();
    return output ? output->getNumOfStreams() : 0;
}

bool vxInterface::hasCurveFittingData() const {
    return curveFittingData && !curveFittingData->isEmpty();
}

void vxInterface::getCurveFittingData(vxCurveFittingData* dest) const {
    if (dest) dest->copy(curveFittingData.get());
}

void vxInterface::copyErrorTo(vxError* dest) const {
    if (dest) dest->copy(error.get());
}

void vxInterface::getErrorMessage(std::wstring& dest, short languageID,
                                  const std::wstring& flags) const {
    dest.clear();
    if (!error) return;
    error->getMessage(dest, languageID, flags);
    std::replace(dest.begin(), dest.end(), L'\n', L'\r');
}

vxOutputWIN* vxInterface::getOutput() const {
    return drawing ? drawing->getOutput() : nullptr;
}

void vxInterface::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxInterface");
    vxDumpLine(out, "wstring scripts: ", scripts);
    if (drawing) drawing->dump(static_cast<short>(depth - 1), out);
    if (error) error->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
