#include "charts/vxAreaChart2D.h"

#include <new>

#include "axes/vxAxisItem.h"
#include "graphics/vxPath2DOLD.h"
#include "script/vxAssign.h"

namespace Velarix {

vxAreaChart2D::vxAreaChart2D() : vxAreaChart1D(L"vxAreaChart2D") {}

void vxAreaChart2D::assign(vxAssign& a) {
    setDefaults();
    const short fill = a.getShort(0, kSelf);
    mFillAreaToAxis = fill >= kSelf && fill <= kYAxis ? fill : short(kSelf);
}

void vxAreaChart2D::setUp() {
    setUpReferenceValue();
}

bool vxAreaChart2D::setUpSeriesPolygon(long s) {
    return setUpPairPolygon(s);
}

// The valid points in their order; closed to an axis, the outline runs on
// from the last point to the reference line and back along it to below
// the first point.
std::unique_ptr<vxPath2DOLD> vxAreaChart2D::makeAreaOutline(long s) {
    if (!setUpSeriesPolygon(s)) return nullptr;
    auto path = std::make_unique<vxPath2DOLD>();
    long first = -1, last = -1;
    for (long i = 0; i < static_cast<long>(validDC.size()); ++i) {
        if (!validDC[static_cast<size_t>(i)]) continue;
        const size_t k = static_cast<size_t>(i);
        if (first < 0) {
            path->moveTo(xDC[k], yDC[k]);
            first = i;
        } else {
            path->lineTo(xDC[k], yDC[k]);
        }
        last = i;
    }
    if (first < 0 || last == first) return nullptr;
    const vxAxisItem* axis = mFillAreaToAxis == kXAxis ? getYAxis() : getXAxis();
    if (mFillAreaToAxis != kSelf && axis) {
        const float base = axis->toDC(getParameters().getReferenceValue());
        const size_t a = static_cast<size_t>(first), b = static_cast<size_t>(last);
        if (mFillAreaToAxis == kXAxis) {
            path->lineTo(xDC[b], base);
            path->lineTo(xDC[a], base);
        } else {
            path->lineTo(base, yDC[b]);
            path->lineTo(base, yDC[a]);
        }
    }
    path->close();
    if (path->isError()) throw std::bad_alloc();
    return path;
}

}  // namespace Velarix
