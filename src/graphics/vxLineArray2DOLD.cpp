#include "graphics/vxLineArray2DOLD.h"

#include <algorithm>

#include "graphics/vxAllocationGuard.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxGObjectState.h"
#include "graphics/vxTransform2DOLD.h"
#include "host/vxLog.h"
#include "output/vxDevice.h"

namespace Velarix {

vxLineArray2DOLD::vxLineArray2DOLD(vxUserSettings* owner)
    : vxGObject2D(L"vxLineArray2DOLD", owner) {}

vxLineArray2DOLD::~vxLineArray2DOLD() = default;

template <class F>
bool vxLineArray2DOLD::change(const wchar_t* method, int number, F&& step) {
    const bool ok = vxGuardAllocation(*this, method, number, step);
    invalidateBounds();
    return ok;
}

bool vxLineArray2DOLD::set(const std::vector<float>& xs, const std::vector<float>& ys) {
    return change(L"set", 1, [&] {
        x = xs;
        y = ys;
    });
}

bool vxLineArray2DOLD::set(long count, const float* xs, const float* ys) {
    return change(L"set", 2, [&] {
        const long n = xs && ys ? std::max(0L, count) : 0;
        x.assign(xs, xs + n);
        y.assign(ys, ys + n);
    });
}

bool vxLineArray2DOLD::set(const std::vector<float>& xy) {
    return change(L"set", 3, [&] {
        x.clear();
        y.clear();
        for (size_t i = 0; i + 1 < xy.size(); i += 2) {
            x.push_back(xy[i]);
            y.push_back(xy[i + 1]);
        }
    });
}

bool vxLineArray2DOLD::setPoint(long index, float px, float py) {
    if (index < 0 || index >= getNumOfPoints()) return false;
    x[index] = px;
    y[index] = py;
    invalidateBounds();
    return true;
}

bool vxLineArray2DOLD::addX(float value) {
    return change(L"addX", 1, [&] { x.push_back(value); });
}

bool vxLineArray2DOLD::addX(const std::vector<float>& values) {
    return change(L"addX", 1, [&] { x.insert(x.end(), values.begin(), values.end()); });
}

bool vxLineArray2DOLD::addY(float value) {
    return change(L"addY", 1, [&] { y.push_back(value); });
}

bool vxLineArray2DOLD::addY(const std::vector<float>& values) {
    return change(L"addY", 1, [&] { y.insert(y.end(), values.begin(), values.end()); });
}

bool vxLineArray2DOLD::addPoint(float px, float py) {
    return change(L"addPoint", 1, [&] {
        x.push_back(px);
        y.push_back(py);
    });
}

bool vxLineArray2DOLD::addPoint(const std::vector<float>& xs, const std::vector<float>& ys) {
    return change(L"addPoint", 2, [&] {
        const size_t n = std::min(xs.size(), ys.size());
        x.insert(x.end(), xs.begin(), xs.begin() + n);
        y.insert(y.end(), ys.begin(), ys.begin() + n);
    });
}

bool vxLineArray2DOLD::addLine(float x1, float y1, float x2, float y2) {
    return change(L"addLine", 1, [&] {
        x.insert(x.end(), {x1, x2});
        y.insert(y.end(), {y1, y2});
    });
}

bool vxLineArray2DOLD::addLine(const float line[4]) {
    return change(L"addLine", 2, [&] {
        x.insert(x.end(), {line[0], line[2]});
        y.insert(y.end(), {line[1], line[3]});
    });
}

void vxLineArray2DOLD::clear() {
    x.clear();
    y.clear();
    invalidateBounds();
}

void vxLineArray2DOLD::transformGeometry(const vxTransform2DOLD& t) {
    vxGObject2D::transformGeometry(t);
    t.transform(x, y);
}

void vxLineArray2DOLD::calculateBounds(float b[4]) const {
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

void vxLineArray2DOLD::outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                                    const vxPaintOLD& paint, const float[4]) {
    if (getNumOfLines() > 0) device.drawLineArray2D(stroke, paint, x, y);
}

void vxLineArray2DOLD::outlineShape(vxDevice& device, const vxStrokeOLD& stroke,
                                    const vxShadowOLD& shadow, const float[4]) {
    if (getNumOfLines() > 0) device.drawLineArray2D(stroke, shadow, x, y);
}

void vxLineArray2DOLD::copy(const vxLineArray2DOLD* from) {
    setDefaults();
    if (!from || from == this) return;
    getState()->copy(from->getState());
    getAppearance()->copy(from->getAppearance());
    if (getAppearance()->isError()) copyError(getAppearance()->getError());
    set(from->x, from->y);
}

void vxLineArray2DOLD::setDefaults() {
    vxGObject2D::setDefaults();
    clear();
}

void vxLineArray2DOLD::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxGObject2D::dump(depth, out);
    vxDumpHeader(out, "vxLineArray2DOLD");
    vxDumpLine(out, "long numOfPoints: ", getNumOfPoints());
    for (long i = 0; i < getNumOfPoints(); ++i) vxDumpLine(out, "float x,y: ", x[i], y[i]);
    vxDumpEnd(out);
}

}  // namespace Velarix
