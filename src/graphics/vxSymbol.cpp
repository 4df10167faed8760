#include "graphics/vxSymbol.h"

#include "graphics/vxArrowSymbol.h"
#include "graphics/vxBasicSymbol.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "graphics/vxTextSymbol.h"
#include "graphics/vxTextureSymbol.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxSymbol::vxSymbol(const wchar_t* name, vxUserSettings* owner)
    : vxGObjectOLD(std::move(name), owner) {}

vxSymbol::~vxSymbol() = default;

std::unique_ptr<vxSymbol> vxSymbol::make(short type, vxUserSettings* owner) {
    switch (type) {
        case kTypeBasicSymbol:
            return std::make_unique<vxBasicSymbol>(owner);
        case kTypeArrowSymbol:
            return std::make_unique<vxArrowSymbol>(owner);
        case kTypeTextSymbol:
            return std::make_unique<vxTextSymbol>(owner);
        case kTypeTextureSymbol:
            return std::make_unique<vxTextureSymbol>(owner);
        default:
            return nullptr;
    }
}

void vxSymbol::rotate(float angle) {
    rotate(angle, xCenter, yCenter);
}

void vxSymbol::flip(short mode) {
    flip(mode, xCenter, yCenter);
}

void vxSymbol::transform(const vxTransform2DOLD& t) {
    applyTransform(t);
}

void vxSymbol::transformGeometry(const vxTransform2DOLD& t) {
    t.transform(xCenter, yCenter);
}

void vxSymbol::setCenter(float x, float y) {
    xCenter = x;
    yCenter = y;
    invalidateBounds();
}

void vxSymbol::setOffsets(float x, float y) {
    xOffset = x;
    yOffset = y;
    invalidateBounds();
}

void vxSymbol::setOrientation(float angle) {
    orientation = angle;
    invalidateBounds();
}

void vxSymbol::setExtent(float w, float h) {
    width = w;
    height = h;
    invalidateBounds();
}

float vxSymbol::getSymbolSize() const {
    return width > height ? width : height;
}

void vxSymbol::calculateBounds(float b[4]) const {
    b[0] = drawX() - width * 0.5f;
    b[1] = drawY() - height * 0.5f;
    b[2] = b[0] + width;
    b[3] = b[1] + height;
}

void vxSymbol::resetGeometry() {
    width = height = 0.0f;
    xCenter = yCenter = 0.0f;
    xOffset = yOffset = 0.0f;
    orientation = 0.0f;
}

void vxSymbol::setDefaults() {
    vxGObjectOLD::setDefaults();
    resetGeometry();
    resetFields();
    invalidateBounds();
}

bool vxSymbol::copy(const vxSymbol* from) {
    if (from == this) return !isError();
    setDefaults();
    if (from == nullptr) return !isError();
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    xCenter = from->xCenter;
    yCenter = from->yCenter;
    xOffset = from->xOffset;
    yOffset = from->yOffset;
    orientation = from->orientation;
    if (from->getType() == getType()) {
        width = from->width;
        height = from->height;
        copyFields(*from);
    }
    invalidateBounds();
    return takeAppearanceError();
}

bool vxSymbol::takeAppearanceError() {
    if (getAppearance()->isError() && !isError()) copyError(getAppearance()->getError());
    return !isError();
}

const vxStrokeOLD& vxSymbol::strokeOr(const vxStrokeOLD& fallback) const {
    return getBorderStroke() ? *getBorderStroke() : fallback;
}

bool vxSymbol::assignStroke(vxAssign& assign) {
    if (assign.isVoid(0) && getBorderStroke()) {
        assign.addToArgumentOffset(1);
        return true;
    }
    vxStrokeOLD* stroke = getAppearance()->borderStrokeOf(vxGObjectAppearanceOLD::kBasicStroke);
    if (stroke == nullptr) {
        assign.addToArgumentOffset(1);
        return takeAppearanceError();
    }
    if (stroke->assign(assign)) return true;
    copyError(stroke->getError());
    return false;
}

bool vxSymbol::assignBorderPaint(vxAssign& assign, const vxUserSettings* settings) {
    return assignPaint(assign, settings, false);
}

bool vxSymbol::assignFillPaint(vxAssign& assign, const vxUserSettings* settings) {
    return assignPaint(assign, settings, true);
}

// A colour argument of another kind than the paint held replaces the paint;
// a void one keeps it, or makes a basic paint where there is none.
bool vxSymbol::assignPaint(vxAssign& assign, const vxUserSettings* settings, bool isFill) {
    vxGObjectAppearanceOLD& look = *getAppearance();
    const vxPaintOLD* held = isFill ? look.getFillPaint() : look.getBorderPaint();
    short kind = vxPaintOLD::getKindOfArgument(assign, 0);
    if (kind == 0) kind = held ? held->getType() : vxPaintOLD::kBasic;
    vxPaintOLD* paint = isFill ? look.fillPaintOf(kind) : look.borderPaintOf(kind);
    if (paint == nullptr) {
        assign.addToArgumentOffset(vxPaintOLD::getNumOfArguments(assign));
        return takeAppearanceError();
    }
    if (paint->assign(assign, settings)) return true;
    copyError(paint->getError());
    return false;
}

bool vxSymbol::assignShadow(vxAssign& assign, const vxUserSettings* settings) {
    vxShadowOLD* shadow = getAppearance()->shadowPart();
    if (shadow == nullptr) return takeAppearanceError();
    if (shadow->assign(assign, settings)) return true;
    copyError(shadow->getError());
    return false;
}

void vxSymbol::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    float b[4];
    calculateBounds(b);
    vxDumpLine(out, "float width,height:  ", width, height);
    vxDumpLine(out, "float xCenter,yCenter:  ", xCenter, yCenter);
    vxDumpLine(out, "float xOffset,yOffset:  ", xOffset, yOffset);
    vxDumpLine(out, "float orientation:  ", orientation);
    vxDumpLine(out, "float bounds[0..1]:  ", b[0], b[1]);
    vxDumpLine(out, "float bounds[2..3]:  ", b[2], b[3]);
    dumpFields(out);
    vxGObjectOLD::dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
