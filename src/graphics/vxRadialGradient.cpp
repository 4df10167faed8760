#include "graphics/vxRadialGradient.h"

#include <algorithm>

#include "host/vxLog.h"

namespace Velarix {

vxRadialGradient::vxRadialGradient() : vxGradientPaint(L"vxRadialGradient") {}

vxRadialGradient::~vxRadialGradient() = default;

void vxRadialGradient::setCenter(float x, float y) {
    cx = x;
    cy = y;
}

void vxRadialGradient::setRadius(float value) {
    r = std::max(value, 0.0f);
}

void vxRadialGradient::setFocus(float x, float y) {
    fx = x;
    fy = y;
}

std::unique_ptr<vxPaintOLD> vxRadialGradient::clone() const {
    return cloneOf<vxPaintOLD>(*this);
}

void vxRadialGradient::setGeometry(const float* numbers) {
    setCenter(numbers[0], numbers[1]);
    setRadius(numbers[2]);
    setFocus(numbers[3], numbers[4]);
}

void vxRadialGradient::resetFields() {
    vxGradientPaint::resetFields();
    setCenter(0.5f, 0.5f);
    setRadius(0.5f);
    setFocus(0.5f, 0.5f);
}

void vxRadialGradient::copyFields(const vxAppearance& from) {
    vxGradientPaint::copyFields(from);
    const auto& gradient = static_cast<const vxRadialGradient&>(from);
    setCenter(gradient.cx, gradient.cy);
    setRadius(gradient.r);
    setFocus(gradient.fx, gradient.fy);
}

void vxRadialGradient::dumpFields(short depth, std::ostream& out) const {
    vxGradientPaint::dumpFields(depth, out);
    vxDumpLine(out, "float cx,cy:  ", cx, cy);
    vxDumpLine(out, "float r:  ", r);
    vxDumpLine(out, "float fx,fy:  ", fx, fy);
}

}  // namespace Velarix
