#include "graphics/vxQuad2D.h"

#include <algorithm>
#include <cmath>

#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"
#include "output/vxImage.h"

namespace Velarix {

namespace {

bool isSame(float a, float b) {
    return std::fabs(a - b) < 0.001f;
}

}  // namespace

vxQuad2D::vxQuad2D(vxUserSettings* owner) : vxGObject2D(L"vxQuad2D", owner) {}

vxQuad2D::vxQuad2D(vxUserSettings* owner, float l, float t, float r, float b)
    : vxGObject2D(L"vxQuad2D", owner) {
    set(l, t, r, b);
}

vxQuad2D::~vxQuad2D() = default;

void vxQuad2D::set(float l, float t, float r, float b) {
    const float xs[4] = {l, r, r, l};
    const float ys[4] = {t, t, b, b};
    set(xs, ys);
}

void vxQuad2D::set(const float xs[4], const float ys[4]) {
    std::copy(xs, xs + 4, x.begin());
    std::copy(ys, ys + 4, y.begin());
    invalidateBounds();
}

void vxQuad2D::setCorner(int index, float px, float py) {
    if (index < 0 || index > 3) return;
    x[index] = px;
    y[index] = py;
    invalidateBounds();
}

bool vxQuad2D::isAxisAligned() const {
    const bool upright =
        isSame(x[0], x[3]) && isSame(x[1], x[2]) && isSame(y[0], y[1]) && isSame(y[2], y[3]);
    const bool across =
        isSame(x[0], x[1]) && isSame(x[2], x[3]) && isSame(y[1], y[2]) && isSame(y[3], y[0]);
    return upright || across;
}

void vxQuad2D::transform(const vxTransform2DOLD& t) {
    applyTransform(t);
}

void vxQuad2D::transformGeometry(const vxTransform2DOLD& t) {
    vxGObject2D::transformGeometry(t);
    t.transform(x, y);
}

void vxQuad2D::calculateBounds(float b[4]) const {
    const auto [left, right] = std::minmax_element(x.begin(), x.end());
    const auto [top, bottom] = std::minmax_element(y.begin(), y.end());
    b[0] = *left;
    b[1] = *top;
    b[2] = *right;
    b[3] = *bottom;
}

void vxQuad2D::fillShape(vxDevice& device, const vxPaintOLD& paint, const float b[4]) {
    device.fillPolygon2D(paint, x, y, b, kWindingRule);
}

void vxQuad2D::fillShape(vxDevice& device, const vxShadowOLD& shadow, const float b[4]) {
    device.fillPolygon2D(shadow, x, y, b, kWindingRule);
}

void vxQuad2D::outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                            const float b[4]) {
    device.drawPolygon2D(stroke, paint, x, y, b, true);
}

void vxQuad2D::outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxShadowOLD& shadow,
                            const float b[4]) {
    device.drawPolygon2D(stroke, shadow, x, y, b, true);
}

bool vxQuad2D::assignAddPicture(vxAssign& assign) {
    if (!picture && !create(picture, L"createPicture")) return false;
    if (!picture->assign(assign)) copyError(picture->getError());
    return !isError();
}

void vxQuad2D::drawBody(vxDevice& device) {
    vxGObject2D::drawBody(device);
    if (!picture || !isVisible() || picture->isEmpty()) return;
    float b[4];
    getBounds(b);
    picture->setMapping(b);
    picture->draw(device);
}

void vxQuad2D::copy(const vxQuad2D* from) {
    setDefaults();
    if (!from || from == this) return;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    set(from->x.data(), from->y.data());
    if (from->picture && create(picture, L"createPicture") && !picture->set(from->picture.get())) {
        copyError(picture->getError());
    }
}

void vxQuad2D::setDefaults() {
    vxGObject2D::setDefaults();
    set(0.0f, 0.0f, 0.0f, 0.0f);
    picture.reset();
}

void vxQuad2D::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxGObject2D::dump(depth, out);
    vxDumpHeader(out, "vxQuad2D");
    for (int i = 0; i < 4; ++i) vxDumpLine(out, "float x,y: ", x[i], y[i]);
    vxDumpEnd(out);
}

}  // namespace Velarix
