#include "graphics/vxAuxiliaryLine2D.h"

#include <algorithm>

#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxColorOLD.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxShadowOLD.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

vxAuxiliaryLine2D::vxAuxiliaryLine2D(vxUserSettings* owner)
    : vxGObject2D(L"vxAuxiliaryLine2D", owner) {
    setDefaultLook();
}

vxAuxiliaryLine2D::~vxAuxiliaryLine2D() = default;

void vxAuxiliaryLine2D::setDefaultLook() {
    setColor(0, 0, 0);
    setLineWidth(1.0f);
}

void vxAuxiliaryLine2D::set(float ax, float ay, float bx, float by) {
    x1 = ax;
    y1 = ay;
    x2 = bx;
    y2 = by;
    invalidateBounds();
}

void vxAuxiliaryLine2D::setP1Extension(float px, float py) {
    hasP1Extension = true;
    x1Extension = px;
    y1Extension = py;
    invalidateBounds();
}

void vxAuxiliaryLine2D::setP2Extension(float px, float py) {
    hasP2Extension = true;
    x2Extension = px;
    y2Extension = py;
    invalidateBounds();
}

void vxAuxiliaryLine2D::removeExtensions() {
    hasP1Extension = hasP2Extension = false;
    x1Extension = y1Extension = x2Extension = y2Extension = 0.0f;
    invalidateBounds();
}

void vxAuxiliaryLine2D::getPoints(std::vector<float>& xs, std::vector<float>& ys) const {
    xs.clear();
    ys.clear();
    if (hasP1Extension) {
        xs.push_back(x1Extension);
        ys.push_back(y1Extension);
    }
    xs.insert(xs.end(), {x1, x2});
    ys.insert(ys.end(), {y1, y2});
    if (hasP2Extension) {
        xs.push_back(x2Extension);
        ys.push_back(y2Extension);
    }
}

void vxAuxiliaryLine2D::setLineWidth(float width) {
    auto* stroke = static_cast<vxBasicStroke*>(
        getAppearance()->borderStrokeOf(vxGObjectAppearanceOLD::kBasicStroke));
    if (stroke) stroke->setLineWidth(width);
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
}

void vxAuxiliaryLine2D::setColor(const vxColorOLD& color) {
    setColor(color.getRed(), color.getGreen(), color.getBlue(), color.getAlpha());
}

void vxAuxiliaryLine2D::setColor(short red, short green, short blue, short alpha) {
    auto* paint = static_cast<vxBasicPaint*>(getAppearance()->borderPaintOf(vxPaintOLD::kBasic));
    if (paint) paint->setColor(red, green, blue, alpha);
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
}

void vxAuxiliaryLine2D::drawShadow(vxDevice& device, const vxShadowOLD& shadow) {
    if (!isVisible() || !shadow.isShown() || !hasBorder() || !getBorderStroke()) return;
    float b[4];
    getBounds(b);
    b[0] += shadow.getXOffset();
    b[2] += shadow.getXOffset();
    b[1] += shadow.getYOffset();
    b[3] += shadow.getYOffset();
    outlineShape(device, *getBorderStroke(), shadow, b);
}

void vxAuxiliaryLine2D::outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                                     const vxPaintOLD& paint, const float b[4]) {
    std::vector<float> xs, ys;
    getPoints(xs, ys);
    device.drawPolygon2D(stroke, paint, xs, ys, b, false);
}

void vxAuxiliaryLine2D::outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                                     const vxShadowOLD& shadow, const float b[4]) {
    std::vector<float> xs, ys;
    getPoints(xs, ys);
    device.drawPolygon2D(stroke, shadow, xs, ys, b, false);
}

void vxAuxiliaryLine2D::transformGeometry(const vxTransform2DOLD& t) {
    vxGObject2D::transformGeometry(t);
    t.transform(x1, y1);
    t.transform(x2, y2);
    t.transform(x1Extension, y1Extension);
    t.transform(x2Extension, y2Extension);
}

void vxAuxiliaryLine2D::calculateBounds(float b[4]) const {
    std::vector<float> xs, ys;
    getPoints(xs, ys);
    const auto [left, right] = std::minmax_element(xs.begin(), xs.end());
    const auto [top, bottom] = std::minmax_element(ys.begin(), ys.end());
    b[0] = *left;
    b[1] = *top;
    b[2] = *right;
    b[3] = *bottom;
}

void vxAuxiliaryLine2D::copy(const vxAuxiliaryLine2D* from) {
    setDefaults();
    if (!from || from == this) return;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    set(from->x1, from->y1, from->x2, from->y2);
    if (from->hasP1Extension) setP1Extension(from->x1Extension, from->y1Extension);
    if (from->hasP2Extension) setP2Extension(from->x2Extension, from->y2Extension);
}

void vxAuxiliaryLine2D::setDefaults() {
    vxGObject2D::setDefaults();
    set(0.0f, 0.0f, 0.0f, 0.0f);
    removeExtensions();
    setDefaultLook();
}

void vxAuxiliaryLine2D::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxGObject2D::dump(depth, out);
    vxDumpHeader(out, "vxAuxiliaryLine2D");
    vxDumpLine(out, "float x1,y1: ", x1, y1);
    vxDumpLine(out, "float x2,y2: ", x2, y2);
    vxDumpLine(out, "bool hasP1Extension: ", hasP1Extension);
    vxDumpLine(out, "bool hasP2Extension: ", hasP2Extension);
    vxDumpLine(out, "float x1Extension,y1Extension: ", x1Extension, y1Extension);
    vxDumpLine(out, "float x2Extension,y2Extension: ", x2Extension, y2Extension);
    vxDumpEnd(out);
}

}  // namespace Velarix
