#include "axes/vxAxisTickMarkLabels.h"

#include "axes/vxAxisLook.h"

#include <algorithm>

#include "drawing/vxLayer.h"
#include "graphics/vxBoundsUnion.h"
#include "graphics/vxLabel.h"
#include "graphics/vxText.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxAxisTickMarkLabels::vxAxisTickMarkLabels(vxUserSettings* owner, short order)
    : vxErrorHolder(L"vxAxisTickMarkLabels"), owner(owner), order(order) {
    if (create(referenceLabel, L"create", owner)) resetFields();
}

vxAxisTickMarkLabels::~vxAxisTickMarkLabels() = default;

void vxAxisTickMarkLabels::resetFields() {
    visible = true;
    origFormats.clear();
    textsCall = vxAssign::CallPlace();
    formats.clear();
    valuesUC.clear();
    intervals.clear();
    visibilityIntervals.assign(1, 1);
    visibilityFlags.clear();
    mDoShiftLabels = true;
    location = vxAxisGeometry::kOut;
    hOffset = vOffset = 0.0f;
    gap = 25.0f;
    useRelativeGaps = true;
    startIndex = 0;
    labels.clear();
    styleChanged();
    if (referenceLabel) referenceLabel->setDefaults();
}

bool vxAxisTickMarkLabels::set(const vxAxisTickMarkLabels* from) {
    if (!referenceLabel) return false;
    resetFields();
    if (!from) return true;
    try {
        visible = from->visible;
        origFormats = from->origFormats;
        textsCall = from->textsCall;
        visibilityIntervals = from->visibilityIntervals;
        mDoShiftLabels = from->mDoShiftLabels;
        location = from->location;
        hOffset = from->hOffset;
        vOffset = from->vOffset;
        gap = from->gap;
        useRelativeGaps = from->useRelativeGaps;
        startIndex = from->startIndex;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"set"));
        return false;
    }
    if (!referenceLabel->set(from->referenceLabel.get())) copyError(referenceLabel->getError());
    return !isError();
}

void vxAxisTickMarkLabels::assignStyle(vxAssign& a) {
    styleChanged();
    vxText* text = referenceLabel ? referenceLabel->getText() : nullptr;
    if (!text) return;
    if (!text->assign(a, owner)) copyError(text->getError());
}

void vxAxisTickMarkLabels::assignOptions(vxAssign& a) {
    if (!a.isVoid(0)) location = a.getShort(0);
    hOffset = a.getFloat(1, hOffset);
    vOffset = a.getFloat(2, vOffset);
    try {
        if (!a.isVoid(3)) {
            std::vector<long> steps = a.getLongArray(3);
            if (steps.empty()) steps.push_back(a.getLong(3, 1));
            for (long& step : steps) step = std::max(1L, step);
            visibilityIntervals = std::move(steps);
        }
    } catch (const std::bad_alloc&) {
        return setError(vxErrRuntime::kOutOfMemory, where(L"assignOptions"));
    }
    if (!a.isVoid(4)) startIndex = std::max(0L, a.getLong(4) - 1);
    if (!a.isVoid(5)) mDoShiftLabels = a.getBool(5);
}

// One text an argument; none at all removes the texts.
void vxAxisTickMarkLabels::assignTexts(vxAssign& a) {
    try {
        origFormats = vxStringArguments(a);
        textsCall = a.getCallPlace();
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"assignTexts"));
    }
}

void vxAxisTickMarkLabels::assignBackground(vxAssign& a) {
    styleChanged();
    if (referenceLabel && !referenceLabel->assignBackground(a, owner)) {
        copyError(referenceLabel->getError());
    }
}

void vxAxisTickMarkLabels::assignBackgroundOptions(vxAssign& a) {
    styleChanged();
    if (referenceLabel && !referenceLabel->assignBackgroundOptions(a)) {
        copyError(referenceLabel->getError());
    }
}

const vxLabel* vxAxisTickMarkLabels::getLabel(long index) const {
    if (index < 0 || index >= getNumOfLabels()) return nullptr;
    return labels[static_cast<size_t>(index)].get();
}

bool vxAxisTickMarkLabels::getBounds(float bounds[4]) const {
    bool hasBounds = false;
    for (const auto& label : labels) {
        float box[4];
        label->getLabelBounds(box);
        vxUniteBounds(bounds, box, hasBounds);
    }
    return hasBounds;
}

bool vxAxisTickMarkLabels::addTo(vxLayer& layer) const {
    for (const auto& label : labels) {
        if (!layer.addShape(label.get())) return false;
    }
    return true;
}

void vxAxisTickMarkLabels::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxAxisTickMarkLabels");
    vxDumpLine(out, "short order:          ", order);
    vxDumpLine(out, "vector<wstring> formats: ", formats);
    vxDumpLine(out, "long numOfValues:     ", static_cast<long>(valuesUC.size()));
    vxDumpLine(out, "vector<short> visibilityFlags: ", visibilityFlags);
    vxDumpLine(out, "short location:       ", location);
    vxDumpLine(out, "float hOffset,vOffset: ", hOffset, vOffset);
    vxDumpLine(out, "long startIndex:      ", startIndex);
    vxDumpLine(out, "float maxLabelWidth:  ", maxLabelWidth);
    vxDumpLine(out, "float maxLabelHeight: ", maxLabelHeight);
    vxDumpLine(out, "long numOfLabels:     ", getNumOfLabels());
    vxDumpEnd(out);
}

}  // namespace Velarix
