// Hands a converted call to its receiver: the output, the format settings or
// the current view, chosen by the function's group.
#include <cmath>

#include "Utilities/Sources/vxFormatDateTime.h"
#include "drawing/vxDrawingSpecs.h"
#include "drawing/vxView.h"
#include "output/vxOutputWIN.h"
#include "script/vxFunctionIds.h"
#include "script/vxFunctionTable.h"
#include "script/vxScript.h"
#include "settings/vxFormatSettings.h"
#include "settings/vxRenderingSettings.h"
#include "settings/vxUserSettings.h"

namespace Velarix {

void vxScript::dispatch() {
    phase = Phase::kDispatch;
    switch (getFunctionGroup(fnIndex)) {
        case kGroupGlobals:
            return;
        case kGroupOutput:
            if (!output) return;
            output->assign(*assign);
            if (output->isError()) copyError(output->getError());
            return;
        case kGroupMisc:
            return dispatchMisc();
        case kGroupAxes:
        case kGroupGrids:
        case kGroupStyles:
            // Scales are checked against the data only when the chart is
            // laid out, and grids and styles check their selection; the
            // call's place goes with them.
            assign->setCallPlace({callLine, fnName, errScriptPart(callBegin, closePos + 1)});
            return dispatchToView();
        default:
            return dispatchToView();
    }
}

void vxScript::dispatchMisc() {
    if (!formatSettings) return;
    const vxAssign& a = *assign;
    switch (fnIndex) {
        case kSetDecimalPoint: {
            const std::wstring text = a.getString(0);
            if (!text.empty()) formatSettings->setDecimalPoint(text[0]);
            break;
        }
        case kSetThousandsSep: {
            const std::wstring text = a.getString(0);
            formatSettings->setThousandsSep(text.empty() ? wchar_t(0) : text[0]);
            setGroupSize(a, 1);
            break;
        }
        case kNumberOptions:
            if (!a.isVoid(0) && !a.getString(0).empty()) {
                formatSettings->setDecimalPoint(a.getString(0)[0]);
            }
            setThousandsSep(a, 1);
            setGroupSize(a, 2);
            break;
        case kDateTimeOptions:
            if (!a.isVoid(0)) formatSettings->setDateOrderID(a.getShort(0));
            // 1 Sunday to 7 Saturday; the names are indexed from Sunday.
            if (!a.isVoid(1)) formatSettings->setWeekStartIndex(short(a.getShort(1) - 1));
            break;
        case kSetDateFormat:
        case kSetTimeFormat:
            return setDateTimeFormat(a.getString(0));
        default:
            break;
    }
}

// The date or time part of the formats that dates get when none is given;
// an empty text goes back to the derived one.
void vxScript::setDateTimeFormat(const std::wstring& text) {
    vxFormatDateTime check(formatSettings);
    if (!text.empty() && check.setFormat(text) != 0) return copyError(check.getError());
    if (fnIndex == kSetDateFormat) {
        formatSettings->setDateFormat(text);
    } else {
        formatSettings->setTimeFormat(text);
    }
}

// An empty text turns the separator off.
void vxScript::setThousandsSep(const vxAssign& a, long index) {
    if (a.isVoid(index)) return;
    const std::wstring text = a.getString(index);
    formatSettings->setThousandsSep(text.empty() ? wchar_t(0) : text[0]);
}

// A group size of 0 means no grouping; the first element of the list counts.
void vxScript::setGroupSize(const vxAssign& a, long index) {
    if (a.isVoid(index)) return;
    const std::vector<short> sizes = a.getShortArray(index);
    if (!sizes.empty()) formatSettings->setThousandsGroupSize(sizes.front());
}

void vxScript::dispatchToView() {
    if (!drawingOpened) return;
    if (drawingClosed) {
        drawingOpened = false;
        return;
    }
    if (!currentView) return;
    vxView* answering = currentView;
    currentView = answering->assign(*assign);
    if (answering->isError()) return copyError(answering->getError());
    if (!currentView) currentView = answering;
    if (fnIndex != kOpenDrawing || !drawingSpecs) return;

    // The drawing's size, rendering flags and anti-aliasing.
    const vxAssign& a = *assign;
    drawingSpecs->setSize(std::round(a.getFloat(0)), std::round(a.getFloat(1)));
    drawingSpecs->setRenderingInfo(a.getShort(2, 0));
    vxRenderingSettings* rendering = userSettings ? userSettings->getRenderingSettings() : nullptr;
    if (!rendering) return;
    const short antialiasing = a.getShort(3, 3);
    rendering->setShapeAntialiasing(antialiasing == 1 || antialiasing > 2 || antialiasing < 0);
    rendering->setTextAntialiasing(antialiasing >= 2 || antialiasing < 0);
    rendering->setFractionalMetrics(a.getShort(4, 0) == 1);
}

}  // namespace Velarix
