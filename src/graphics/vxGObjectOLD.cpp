#include "graphics/vxGObjectOLD.h"

#include <algorithm>

#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxSelectionKnobs.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"
#include "settings/vxExceptionRuntime.h"

namespace Velarix {

vxGObjectOLD::vxGObjectOLD(const wchar_t* name, vxUserSettings* owner)
    : vxErrorHolder(name), ownerSettings(owner) {
    try {
        appearance = std::make_unique<vxGObjectAppearanceOLD>(owner);
        state = std::make_unique<vxGObjectState>();
        knobs = std::make_unique<vxSelectionKnobs>();
    } catch (const std::bad_alloc&) {
        appearance.reset();
        state.reset();
        throw vxExceptionRuntime(vxErrRuntime::kOutOfMemory, __LINE__, __FILE__);
    }
}

vxGObjectOLD::~vxGObjectOLD() = default;

bool vxGObjectOLD::isDrawable(const vxDevice& device) {
    return isInside(0.0f, 0.0f, device.getWidth(), device.getHeight());
}

void vxGObjectOLD::draw(vxDevice& device) {
    drawShadow(device);
    drawBody(device);
}

void vxGObjectOLD::setUpKnobs(vxSelectionKnobs& k) {
    k.setFromBounds(bounds());
    invalidateBounds();
}

void vxGObjectOLD::shift(float delta, bool isHorizontal) {
    isHorizontal ? shift(delta, 0.0f) : shift(0.0f, delta);
}

void vxGObjectOLD::shift(float dx, float dy) {
    vxTransform2DOLD t;
    t.translate(dx, dy);
    applyTransform(t);
}

void vxGObjectOLD::rotate(float angle) {
    float cx = 0.0f, cy = 0.0f;
    getCenter(cx, cy);
    rotate(angle, cx, cy);
}

void vxGObjectOLD::rotate(float angle, float x, float y) {
    vxTransform2DOLD t;
    t.rotate(angle, x, y);
    applyTransform(t);
}

void vxGObjectOLD::flip(short mode) {
    float cx = 0.0f, cy = 0.0f;
    getCenter(cx, cy);
    flip(mode, cx, cy);
}

void vxGObjectOLD::flip(short mode, float x, float y) {
    vxTransform2DOLD t;
    const bool flipX = mode == 1 || mode == 3;
    const bool flipY = mode == 2 || mode == 3;
    if (!flipX && !flipY) return;
    t.translate(flipX ? -x : 0.0f, flipY ? -y : 0.0f);
    t.scale(flipX ? -1.0f : 1.0f, flipY ? -1.0f : 1.0f);
    t.translate(flipX ? x : 0.0f, flipY ? y : 0.0f);
    applyTransform(t);
}

const float* vxGObjectOLD::bounds() {
    if (doRecalcBounds) {
        calculateBounds(cachedBounds);
        doRecalcBounds = false;
    }
    return cachedBounds;
}

void vxGObjectOLD::calculateBounds(float b[4]) const {
    std::fill(b, b + 4, 0.0f);
}

float vxGObjectOLD::getLeft() {
    return bounds()[0];
}
float vxGObjectOLD::getTop() {
    return bounds()[1];
}
float vxGObjectOLD::getWidth() {
    return bounds()[2] - bounds()[0];
}
float vxGObjectOLD::getHeight() {
    return bounds()[3] - bounds()[1];
}

void vxGObjectOLD::getSize(float size[2]) {
    size[0] = getWidth();
    size[1] = getHeight();
}

void vxGObjectOLD::getBounds(float b[4]) {
    std::copy(bounds(), bounds() + 4, b);
}

void vxGObjectOLD::getCenter(float& x, float& y) {
    x = (bounds()[0] + bounds()[2]) * 0.5f;
    y = (bounds()[1] + bounds()[3]) * 0.5f;
}

void vxGObjectOLD::setLeft(float left) {
    shift(left - getLeft(), 0.0f);
}
void vxGObjectOLD::setTop(float top) {
    shift(0.0f, top - getTop());
}

void vxGObjectOLD::setWidth(float width) {
    scaleExtent(true, width);
}

void vxGObjectOLD::setHeight(float height) {
    scaleExtent(false, height);
}

// Scales about the left or top edge so that the extent becomes `extent`.
void vxGObjectOLD::scaleExtent(bool horizontal, float extent) {
    const float old = horizontal ? getWidth() : getHeight();
    if (old < 0.0001f) return;
    const float origin = horizontal ? getLeft() : getTop();
    const float factor = extent / old;
    vxTransform2DOLD t;
    t.translate(horizontal ? -origin : 0.0f, horizontal ? 0.0f : -origin);
    t.scale(horizontal ? factor : 1.0f, horizontal ? 1.0f : factor);
    t.translate(horizontal ? origin : 0.0f, horizontal ? 0.0f : origin);
    applyTransform(t);
}

void vxGObjectOLD::applyTransform(const vxTransform2DOLD& t) {
    transformGeometry(t);
    invalidateBounds();
}

bool vxGObjectOLD::isInside(float left, float top, float right, float bottom) {
    const float* b = bounds();
    return b[0] >= left && b[1] >= top && b[2] <= right && b[3] <= bottom;
}

bool vxGObjectOLD::isInside(const float r[4]) {
    return isInside(r[0], r[1], r[2], r[3]);
}

bool vxGObjectOLD::containsPoint(float x, float y) {
    const float* b = bounds();
    return x >= b[0] && x <= b[2] && y >= b[1] && y <= b[3];
}

const vxStrokeOLD* vxGObjectOLD::getBorderStroke() const {
    return appearance->getBorderStroke();
}
const vxPaintOLD* vxGObjectOLD::getBorderPaint() const {
    return appearance->getBorderPaint();
}
const vxPaintOLD* vxGObjectOLD::getFillPaint() const {
    return appearance->getFillPaint();
}
const vxShadowOLD* vxGObjectOLD::getShadow() const {
    return appearance->getShadow();
}
bool vxGObjectOLD::hasBorder() const {
    return appearance->hasBorder();
}
bool vxGObjectOLD::hasFill() const {
    return appearance->hasFill();
}
bool vxGObjectOLD::hasShadow() const {
    return appearance->hasShadow();
}
bool vxGObjectOLD::isVisible() const {
    return state->isVisible;
}
bool vxGObjectOLD::isLocked() const {
    return state->isLocked;
}
bool vxGObjectOLD::isSelected() const {
    return state->isSelected;
}
void vxGObjectOLD::setVisible(bool value) {
    state->isVisible = value;
}
void vxGObjectOLD::setLocked(bool value) {
    state->isLocked = value;
}
void vxGObjectOLD::setSelected(bool value) {
    state->isSelected = value;
}

void vxGObjectOLD::setDefaults() {
    state->reset();
    appearance->reset();
    knobs->reset();
    invalidateBounds();
}

void vxGObjectOLD::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "bool isVisible: ", state->isVisible);
    vxDumpLine(out, "bool isLocked: ", state->isLocked);
    vxDumpLine(out, "bool isSelected: ", state->isSelected);
    appearance->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
