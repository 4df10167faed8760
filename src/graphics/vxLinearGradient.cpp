#include "graphics/vxLinearGradient.h"

#include <cmath>

#include "host/vxLog.h"

namespace Velarix {

namespace {

constexpr float kCornerTolerance = 0.01f;

// The box edge (0 or 1) at which a gradient running from `from` to `to`
// starts; the coordinate itself when the two agree.
float startEdge(float from, float to) {
    if (to > from) return 0.0f;
    if (to < from) return 1.0f;
    return from;
}

bool isAway(float x, float y, float cornerX, float cornerY) {
    return std::fabs(x - cornerX) > kCornerTolerance || std::fabs(y - cornerY) > kCornerTolerance;
}

}  // namespace

vxLinearGradient::vxLinearGradient() : vxGradientPaint(L"vxLinearGradient") {}

vxLinearGradient::~vxLinearGradient() = default;

void vxLinearGradient::setP1(float x, float y) {
    x1 = x;
    y1 = y;
}

void vxLinearGradient::setP2(float x, float y) {
    x2 = x;
    y2 = y;
}

void vxLinearGradient::getStartCorner(float& x, float& y) const {
    x = startEdge(x1, x2);
    y = startEdge(y1, y2);
}

void vxLinearGradient::getEndCorner(float& x, float& y) const {
    x = startEdge(x2, x1);
    y = startEdge(y2, y1);
}

bool vxLinearGradient::needsStartPad() const {
    float x = 0.0f;
    float y = 0.0f;
    getStartCorner(x, y);
    return isAway(x1, y1, x, y);
}

bool vxLinearGradient::needsEndPad() const {
    float x = 0.0f;
    float y = 0.0f;
    getEndCorner(x, y);
    return isAway(x2, y2, x, y);
}

std::unique_ptr<vxPaintOLD> vxLinearGradient::clone() const {
    return cloneOf<vxPaintOLD>(*this);
}

void vxLinearGradient::setGeometry(const float* numbers) {
    setP1(numbers[0], numbers[1]);
    setP2(numbers[2], numbers[3]);
}

void vxLinearGradient::resetFields() {
    vxGradientPaint::resetFields();
    setP1(0.0f, 0.0f);
    setP2(1.0f, 0.0f);
}

void vxLinearGradient::copyFields(const vxAppearance& from) {
    vxGradientPaint::copyFields(from);
    const auto& gradient = static_cast<const vxLinearGradient&>(from);
    setP1(gradient.x1, gradient.y1);
    setP2(gradient.x2, gradient.y2);
}

void vxLinearGradient::dumpFields(short depth, std::ostream& out) const {
    vxGradientPaint::dumpFields(depth, out);
    vxDumpLine(out, "float x1,y1:  ", x1, y1);
    vxDumpLine(out, "float x2,y2:  ", x2, y2);
}

}  // namespace Velarix
