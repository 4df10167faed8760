#include "output/vxDevice.h"

#include <cmath>

#include "drawing/vxDrawingSpecs.h"
#include "graphics/vxPaintOLD.h"
#include "graphics/vxStrokeOLD.h"
#include "host/vxLog.h"

namespace Velarix {

vxDevice::vxDevice(const wchar_t* name) : vxErrorHolder(name) {}

vxDevice::~vxDevice() = default;

void vxDevice::setClipRegion(const float rect[4], short mode) {
    setClipRegion(rect[0], rect[1], rect[2] - rect[0], rect[3] - rect[1], mode);
}

// The drawing's rendering code 1 marks a bitmap.
void vxDevice::setUp(const vxDrawingSpecs& specs) {
    width = specs.getWidth();
    height = specs.getHeight();
    bitDepth = 0;
    antialiasing = 0;
    bitmap = specs.getRenderingInfo() == 1;
}

float vxDevice::getWidth() const {
    return bitmap ? std::round(width) : width;
}

float vxDevice::getHeight() const {
    return bitmap ? std::round(height) : height;
}

void vxDevice::getSize(float size[2]) const {
    size[0] = getWidth();
    size[1] = getHeight();
}

void vxDevice::setSize(float w, float h) {
    width = w;
    height = h;
}

bool vxDevice::isAngle(float angle) {
    return std::fabs(angle) > 0.0001745f;
}

bool vxDevice::drawsNothing(const vxStrokeOLD& stroke) {
    return stroke.isZeroWidth();
}

bool vxDevice::drawsNothing(const vxPaintOLD& paint) {
    return paint.isNone();
}

bool vxDevice::isDegenerateLine(float x1, float y1, float x2, float y2) {
    return std::fabs(x2 - x1) < 0.001f && std::fabs(y2 - y1) < 0.001f;
}

bool vxDevice::isClipOutOfLimits(float x, float y, float w, float h) {
    auto outside = [](float v, float low, float high) { return !(v >= low && v <= high); };
    return outside(x, -32000.0f, 32000.0f) || outside(y, -32000.0f, 32000.0f) ||
           outside(w, 0.0f, 32000.0f) || outside(h, 0.0f, 32000.0f);
}

void vxDevice::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, vxNarrow(className));
    vxDumpLine(out, "float width: ", width);
    vxDumpLine(out, "float height: ", height);
    vxDumpLine(out, "short bitDepth: ", bitDepth);
    vxDumpLine(out, "short antialiasing: ", antialiasing);
    vxDumpLine(out, "bool  isBitmap: ", bitmap);
    vxDumpLine(out, "bool  useFractionalMetrics: ", useFractionalMetrics);
    if (error) error->dump(static_cast<short>(depth - 1), out);
    vxDumpEnd(out);
}

}  // namespace Velarix
