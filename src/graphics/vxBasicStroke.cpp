#include "graphics/vxBasicStroke.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

float clampLength(float value) {
    return std::clamp(value, 0.0f, vxBasicStroke::kMaxWidth);
}

}  // namespace

vxBasicStroke::vxBasicStroke() : vxStrokeOLD(L"vxBasicStroke") {}

vxBasicStroke::vxBasicStroke(float width) : vxBasicStroke() {
    setLineWidth(width);
}

vxBasicStroke::~vxBasicStroke() = default;

void vxBasicStroke::setLineWidth(float value) {
    lineWidth = clampLength(value);
}

void vxBasicStroke::setLineCap(short value) {
    lineCap = (value >= kButtCap && value <= kRoundCap) ? value : kSquareCap;
}

void vxBasicStroke::setLineJoin(short value) {
    lineJoin = (value >= kMiterJoin && value <= kBevelJoin) ? value : kMiterJoin;
}

void vxBasicStroke::setMiterLimit(float value) {
    miterLimit = clampLength(value);
}

bool vxBasicStroke::createDashStyle() {
    return create(dashStyle, L"createDashStyle");
}

vxDashStyle* vxBasicStroke::changeDashStyle() {
    if (!dashStyle && !createDashStyle()) return nullptr;
    return dashStyle.get();
}

bool vxBasicStroke::takeDashError() {
    if (dashStyle && dashStyle->isError()) copyError(dashStyle->getError());
    return !isError();
}

bool vxBasicStroke::setDashStyle(short index) {
    vxDashStyle* dash = changeDashStyle();
    if (dash == nullptr) return false;
    dash->setPattern(index);
    return takeDashError();
}

bool vxBasicStroke::setDashStyle(short count, const float* lengths, float offset) {
    vxDashStyle* dash = changeDashStyle();
    if (dash == nullptr) return false;
    dash->setPattern(count, lengths);
    dash->setOffset(offset);
    return takeDashError();
}

std::unique_ptr<vxStrokeOLD> vxBasicStroke::clone() const {
    return cloneOf<vxStrokeOLD>(*this);
}

bool vxBasicStroke::assign(vxAssign& assign) {
    const std::vector<float> values = assign.getFloatArray(0);
    assign.addToArgumentOffset(1);
    if (values.empty()) return !isError();
    setLineWidth(values[0]);
    if (values.size() == 1) {
        removeDashStyle();
        return !isError();
    }
    if (values.size() == 2) return setDashStyle(static_cast<short>(std::lround(values[1])));
    return setDashStyle(static_cast<short>(values.size() - 2), values.data() + 2, values[1]);
}

void vxBasicStroke::resetFields() {
    lineWidth = 1.0f;
    lineCap = kSquareCap;
    lineJoin = kMiterJoin;
    miterLimit = 10.0f;
    removeDashStyle();
}

void vxBasicStroke::copyFields(const vxAppearance& from) {
    const auto& stroke = static_cast<const vxBasicStroke&>(from);
    lineWidth = stroke.lineWidth;
    lineCap = stroke.lineCap;
    lineJoin = stroke.lineJoin;
    miterLimit = stroke.miterLimit;
    if (!stroke.dashStyle || !createDashStyle()) return;
    dashStyle->copy(stroke.dashStyle.get());
    takeDashError();
}

void vxBasicStroke::dumpFields(short depth, std::ostream& out) const {
    vxStrokeOLD::dumpFields(depth, out);
    vxDumpLine(out, "float lineWidth:  ", lineWidth);
    vxDumpLine(out, "short lineCap:  ", lineCap);
    vxDumpLine(out, "short lineJoin:  ", lineJoin);
    vxDumpLine(out, "float miterLimit:  ", miterLimit);
    if (depth > 0 && dashStyle) dashStyle->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
