#include "graphics/vxShadowOLD.h"

#include <algorithm>
#include <vector>

#include "graphics/vxBasicPaint.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr short kGrey = 136;

}  // namespace

vxShadowOLD::vxShadowOLD() : vxAppearance(L"vxShadowOLD") {
    makeDefaultPaint();
}

vxShadowOLD::~vxShadowOLD() = default;

void vxShadowOLD::setOffsets(float x, float y) {
    xOffset = x;
    yOffset = y;
}

void vxShadowOLD::setBlurRadius(float value) {
    blurRadius = std::max(value, 0.0f);
}

bool vxShadowOLD::createPaint(short kind) {
    return vxPaintOLD::createInto(paint, kind, *this, L"createPaint");
}

bool vxShadowOLD::makeDefaultPaint() {
    if (!createPaint(vxPaintOLD::kBasic)) return false;
    static_cast<vxBasicPaint*>(paint.get())->setColor(kGrey, kGrey, kGrey, 255);
    return true;
}

bool vxShadowOLD::setPaint(const vxPaintOLD* from) {
    if (from == nullptr) return makeDefaultPaint();
    if (from == paint.get()) return true;
    return vxPaintOLD::cloneInto(paint, *from, *this, L"createPaint", 2);
}

bool vxShadowOLD::isGiven(const vxAssign& assign) {
    return !assign.isVoid(0) || !assign.isVoid(1) || !assign.isVoid(2);
}

bool vxShadowOLD::assign(vxAssign& assign, const vxUserSettings* settings) {
    assignOffsets(assign);
    assign.addToArgumentOffset(1);
    return vxPaintOLD::assignByKind(paint, assign, settings, *this, L"createPaint");
}

void vxShadowOLD::assignOffsets(const vxAssign& assign) {
    const std::vector<float> values = assign.getFloatArray(0);
    if (values.empty()) return;
    setOffsets(values[0], values.size() > 1 ? values[1] : values[0]);
    if (values.size() > 2) setBlurRadius(values[2]);
}

void vxShadowOLD::resetFields() {
    makeDefaultPaint();
    doShow = true;
    setOffsets(3.0f, 3.0f);
    blurRadius = 0.0f;
}

void vxShadowOLD::copyFields(const vxAppearance& from) {
    const auto& shadow = static_cast<const vxShadowOLD&>(from);
    setPaint(shadow.paint.get());
    doShow = shadow.doShow;
    setOffsets(shadow.xOffset, shadow.yOffset);
    blurRadius = shadow.blurRadius;
}

void vxShadowOLD::dumpFields(short depth, std::ostream& out) const {
    vxAppearance::dumpFields(depth, out);
    vxDumpLine(out, "bool doShow:  ", doShow);
    vxDumpLine(out, "float xOffset,yOffset:  ", xOffset, yOffset);
    vxDumpLine(out, "float blurRadius:  ", blurRadius);
    if (depth > 0 && paint) paint->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
