#include "axes/vxAxisItem.h"

#include "axes/vxAxisLabel.h"
#include "axes/vxAxisLook.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxAxisTickMarkLabels.h"
#include "axes/vxAxisTickMarks.h"
#include "graphics/vxAppearanceScript.h"
#include "graphics/vxLine2DOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"
#include "script/vxFunctionIds.h"

namespace Velarix {

vxAxisItem::vxAxisItem(vxUserSettings* owner, long axisIndex)
    : vxErrorHolder(L"vxAxisItem"), owner(owner), axisIndex(axisIndex) {
    if (createParts()) resetFields();
}

vxAxisItem::~vxAxisItem() = default;

bool vxAxisItem::createParts() {
    return create(axisLine, L"createAxisLine", owner) && create(scaling, L"createScaling") &&
           create(majorTicks, L"createTickMarks", owner, short(1)) &&
           create(minorTicks, L"createTickMarks", owner, short(2)) &&
           create(majorLabels, L"createTickMarkLabels", owner, short(1)) &&
           create(minorLabels, L"createTickMarkLabels", owner, short(2)) &&
           create(axisLabel, L"createAxisLabel", owner);
}

void vxAxisItem::resetFields() {
    axisType = vxAxisScaling::kValueAxis;
    doRelocateAxis = false;
    axisLocation = kBack;
    mirrorConstant = 0;
    phi = 0.0f;
    geometry = vxAxisGeometry();
    scalingCall = vxAssign::CallPlace();
    axisLine->setDefaults();
    vxSetAxisLineLook(*axisLine, 1.0f);
    scaling->init();
    majorTicks->set(nullptr);
    minorTicks->set(nullptr);
    majorLabels->set(nullptr);
    minorLabels->set(nullptr);
    axisLabel->set(nullptr);
}

bool vxAxisItem::takePartError(const vxErrorHolder* part) {
    if (part && part->isError() && !isError()) copyError(part->getError());
    return !isError();
}

bool vxAxisItem::takeScalingError() {
    if (!scaling->isError() || isError()) return !isError();
    copyError(scaling->getError());
    if (error && scalingCall.line > 0) {
        error->setCallPlace(scalingCall.line, scalingCall.fnName, scalingCall.scriptPart);
    }
    return false;
}

bool vxAxisItem::set(const vxAxisItem* from) {
    if (!axisLabel) return false;
    resetFields();
    if (!from || !from->axisLabel) return !isError();
    axisType = from->axisType;
    doRelocateAxis = from->doRelocateAxis;
    axisLocation = from->axisLocation;
    mirrorConstant = from->mirrorConstant;
    phi = from->phi;
    geometry = from->geometry;
    scalingCall = from->scalingCall;
    axisLine->copy(from->axisLine.get());
    if (!takePartError(axisLine.get())) return false;
    scaling->set(from->scaling.get());
    majorTicks->set(from->majorTicks.get());
    minorTicks->set(from->minorTicks.get());
    majorLabels->set(from->majorLabels.get());
    minorLabels->set(from->minorLabels.get());
    axisLabel->set(from->axisLabel.get());
    return takePartError(scaling.get()) && takePartError(majorTicks.get()) &&
           takePartError(minorTicks.get()) && takePartError(majorLabels.get()) &&
           takePartError(minorLabels.get()) && takePartError(axisLabel.get());
}

vxAxisTickMarks* vxAxisItem::getTickMarks(short order) const {
    return order == 2 ? minorTicks.get() : majorTicks.get();
}

vxAxisTickMarkLabels* vxAxisItem::getTickMarkLabels(short order) const {
    return order == 2 ? minorLabels.get() : majorLabels.get();
}

void vxAxisItem::assign(vxAssign& a) {
    if (!axisLabel) return;
    vxErrorHolder* part = nullptr;
    switch (a.getFunction()) {
        case kAxisOptions:
            return assignOptions(a);
        case kAxisLine:
            return assignLine(a);
        case kScaling:
        case kScalingOptions:
            if (a.getFunction() == kScaling || scalingCall.line < 0) scalingCall = a.getCallPlace();
            if (a.getFunction() == kScaling) {
                scaling->assign(a);
            } else {
                scaling->assignOptions(a);
            }
            takeScalingError();
            return;
        case kAxisMajorTicks:
        case kAxisMinorTicks: {
            vxAxisTickMarks* marks = getTickMarks(a.getFunction() == kAxisMinorTicks ? 2 : 1);
            marks->assign(a);
            part = marks;
            break;
        }
        case kAxisLabelText:
            axisLabel->assignText(a);
            part = axisLabel.get();
            break;
        case kAxisLabelStyle:
            axisLabel->assignStyle(a);
            part = axisLabel.get();
            break;
        case kAxisLabelOptions:
            axisLabel->assignOptions(a);
            part = axisLabel.get();
            break;
        case kAxisLabelBackground:
            axisLabel->assignBackground(a);
            part = axisLabel.get();
            break;
        case kAxisLabelBackgroundOptions:
            axisLabel->assignBackgroundOptions(a);
            part = axisLabel.get();
            break;
        default:
            part = assignTickMarkLabels(a);
            break;
    }
    takePartError(part);
}

// The calls of the tick labels of both orders.
vxErrorHolder* vxAxisItem::assignTickMarkLabels(vxAssign& a) {
    const long fn = a.getFunction();
    const bool minor = fn >= kAxisMinorTickLabelBackground && fn <= kAxisMinorTickLabelTexts;
    vxAxisTickMarkLabels* labels = getTickMarkLabels(minor ? 2 : 1);
    switch (minor ? fn - (kAxisMinorTickLabelBackground - kAxisMajorTickLabelBackground) : fn) {
        case kAxisMajorTickLabelBackground:
            labels->assignBackground(a);
            break;
        case kAxisMajorTickLabelBackgroundOptions:
            labels->assignBackgroundOptions(a);
            break;
        case kAxisMajorTickLabelOptions:
            labels->assignOptions(a);
            break;
        case kAxisMajorTickLabelStyle:
            labels->assignStyle(a);
            break;
        case kAxisMajorTickLabelTexts:
            labels->assignTexts(a);
            break;
        default:
            return nullptr;
    }
    return labels;
}

void vxAxisItem::assignOptions(vxAssign& a) {
    if (!a.isVoid(0)) axisLocation = a.getShort(0);
    if (!a.isVoid(1)) doRelocateAxis = a.getBool(1);
}

void vxAxisItem::assignLine(vxAssign& a) {
    if (!vxAppearanceScript::readBorder(*axisLine, a, owner, vxAppearanceScript::kSkipPart)) {
        takePartError(axisLine.get());
    }
}

void vxAxisItem::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxAxisItem");
    vxDumpLine(out, "long axisIndex:      ", axisIndex);
    vxDumpLine(out, "short axisType:      ", axisType);
    vxDumpLine(out, "bool doRelocateAxis: ", doRelocateAxis);
    vxDumpLine(out, "short axisLocation:  ", axisLocation);
    vxDumpLine(out, "short mirrorConstant: ", mirrorConstant);
    vxDumpLine(out, "float phi:           ", phi);
    vxDumpEnd(out);
    if (!axisLabel) return;
    const short next = static_cast<short>(depth - 1);
    axisLine->dump(next, out);
    scaling->dump(next, out);
    majorTicks->dump(next, out);
    minorTicks->dump(next, out);
    majorLabels->dump(next, out);
    minorLabels->dump(next, out);
    axisLabel->dump(next, out);
}

}  // namespace Velarix
