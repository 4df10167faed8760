#include "graphics/vxPolygon2D.h"

#include "graphics/vxAllocationGuard.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

vxPolygon2D::vxPolygon2D(vxUserSettings* owner) : vxGObject2D(L"vxPolygon2D", owner) {}

vxPolygon2D::~vxPolygon2D() = default;

template <class F>
bool vxPolygon2D::change(const wchar_t* method, int number, F&& step) {
    const bool ok = vxGuardAllocation(*this, method, number, step);
    invalidateBounds();
    return ok;
}

bool vxPolygon2D::set(const std::vector<float>& xs, const std::vector<float>& ys) {
    return change(L"set", 1, [&] {
        x = xs;
        y = ys;
    });
}

bool vxPolygon2D::set(long count, const float* xs, const float* ys) {
    return change(L"set", 2, [&] {
        const long n = xs && ys ? std::max(0L, count) : 0;
        x.assign(xs, xs + n);
        y.assign(ys, ys + n);
    });
}

bool vxPolygon2D::addX(float value) {
    return change(L"addX", 1, [&] { x.push_back(value); });
}

bool vxPolygon2D::addY(float value) {
    return change(L"addY", 1, [&] { y.push_back(value); });
}

bool vxPolygon2D::addPoint(float px, float py) {
    return change(L"addPoint", 1, [&] {
        x.push_back(px);
        y.push_back(py);
    });
}

bool vxPolygon2D::addPoint(const std::vector<float>& xs, const std::vector<float>& ys) {
    return change(L"addPoint", 2, [&] {
        const size_t n = std::min(xs.size(), ys.size());
        x.insert(x.end(), xs.begin(), xs.begin() + n);
        y.insert(y.end(), ys.begin(), ys.begin() + n);
    });
}

bool vxPolygon2D::setCapacity(long numOfPoints) {
    return vxGuardAllocation(*this, L"setCapacity", 1, [&] {
        x.reserve(static_cast<size_t>(std::max(0L, numOfPoints)));
        y.reserve(static_cast<size_t>(std::max(0L, numOfPoints)));
    });
}

void vxPolygon2D::clear() {
    x.clear();
    y.clear();
    invalidateBounds();
}

void vxPolygon2D::transformGeometry(const vxTransform2DOLD& t) {
    vxGObject2D::transformGeometry(t);
    t.transform(x, y);
}

void vxPolygon2D::calculateBounds(float b[4]) const {
    const size_t n = std::min(x.size(), y.size());
    if (n == 0) {
        std::fill(b, b + 4, 0.0f);
        return;
    }
    const auto [left, right] = std::minmax_element(x.begin(), x.begin() + n);
    const auto [top, bottom] = std::minmax_element(y.begin(), y.begin() + n);
    b[0] = *left;
    b[1] = *top;
    b[2] = *right;
    b[3] = *bottom;
}

void vxPolygon2D::fillShape(vxDevice& device, const vxPaintOLD& paint, const float b[4]) {
    if (getNumOfPoints() > 0) device.fillPolygon2D(paint, x, y, b, windingRule);
}

void vxPolygon2D::fillShape(vxDevice& device, const vxShadowOLD& shadow, const float b[4]) {
    if (getNumOfPoints() > 0) device.fillPolygon2D(shadow, x, y, b, windingRule);
}

void vxPolygon2D::outlineShape(vxDevice& device, const vxStrokeOLD& stroke, const vxPaintOLD& paint,
                               const float b[4]) {
    if (getNumOfPoints() > 0) device.drawPolygon2D(stroke, paint, x, y, b, doClose);
}

void vxPolygon2D::outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                               const vxShadowOLD& shadow, const float b[4]) {
    if (getNumOfPoints() > 0) device.drawPolygon2D(stroke, shadow, x, y, b, doClose);
}

void vxPolygon2D::copy(const vxPolygon2D* from) {
    setDefaults();
    if (!from || from == this) return;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    set(from->x, from->y);
    windingRule = from->windingRule;
    doClose = from->doClose;
}

void vxPolygon2D::setDefaults() {
    vxGObject2D::setDefaults();
    clear();
    windingRule = kNonZero;
    doClose = true;
}

void vxPolygon2D::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxGObject2D::dump(depth, out);
    vxDumpHeader(out, "vxPolygon2D");
    vxDumpLine(out, "short windingRule: ", windingRule);
    vxDumpLine(out, "bool doClose: ", doClose);
    vxDumpLine(out, "long numOfPoints: ", getNumOfPoints());
    for (long i = 0; i < getNumOfPoints(); ++i) vxDumpLine(out, "float x,y: ", x[i], y[i]);
    vxDumpEnd(out);
}

}  // namespace Velarix
