// The planes of a chart's grids, from its first two axes and its depth.
#include <algorithm>
#include <cmath>

#include "axes/vxAxisItem.h"
#include "axes/vxAxisManager.h"
#include "charts/vxBaseChart.h"
#include "drawing/vxChart.h"
#include "furniture/vxGridManager.h"

namespace Velarix {

namespace {

// Ticks this far beyond the ends of their axis still count, at the end.
constexpr float kEndSlack = 0.5f;

// Where the lines through two segments meet; false for parallel ones.
bool intersect(const float a[4], const float b[4], float out[2]) {
    const double ax = double(a[2]) - a[0], ay = double(a[3]) - a[1];
    const double bx = double(b[2]) - b[0], by = double(b[3]) - b[1];
    const double det = ax * by - ay * bx;
    if (!(std::fabs(det) > 1e-9 * std::hypot(ax, ay) * std::hypot(bx, by))) return false;
    const double t = ((double(b[0]) - a[0]) * by - (double(b[1]) - a[1]) * bx) / det;
    out[0] = float(a[0] + t * ax);
    out[1] = float(a[1] + t * ay);
    return std::isfinite(out[0]) && std::isfinite(out[1]);
}

vxGridAxis moved(const vxGridAxis& axis, const float by[2]) {
    vxGridAxis to = axis;
    for (int i = 0; i < 4; ++i) to.ends[i] += by[i % 2];
    return to;
}

}  // namespace

void vxGridManager::setUp() {
    hasPlane.assign(planes.size(), false);
    const vxAxisManager* axes = chart ? chart->getAxisManager() : nullptr;
    const vxAxisItem* xItem = axes ? axes->getAxis(0) : nullptr;
    const vxAxisItem* yItem = axes ? axes->getAxis(1) : nullptr;
    if (!xItem || !yItem || planes.size() < 3) return;
    try {
        vxGridAxis x, y;
        float crossing[2];
        if (!setUpAxis(*xItem, x) || !setUpAxis(*yItem, y)) return;
        if (!intersect(x.ends, y.ends, crossing)) return;
        float depth[2] = {0.0f, 0.0f};
        getDepth(depth);
        setUpPlanes(x, y, crossing, depth);
    } catch (const std::bad_alloc&) {
        hasPlane.assign(planes.size(), false);
        setError(vxErrRuntime::kOutOfMemory, where(L"setUp"));
    }
}

// The line of the axis and its ticks as distances from the line's start,
// those of a shown axis and of a hidden one alike.
bool vxGridManager::setUpAxis(const vxAxisItem& item, vxGridAxis& axis) const {
    item.getAxisEnds(axis.ends);
    const float length = axis.length();
    if (!(length > 0.0f) || !std::isfinite(length)) return false;
    const int along = item.isHorizontal() ? 0 : 1;
    const float start = axis.ends[along];
    const float sign = axis.ends[along + 2] >= start ? 1.0f : -1.0f;
    std::vector<float> positions;
    for (short order = 1; order <= 2; ++order) {
        item.getTickPositions(order, positions);
        std::vector<float>& ticks = order == 1 ? axis.major : axis.minor;
        for (float p : positions) {
            const float t = sign * (p - start);
            if (!(t >= -kEndSlack && t <= length + kEndSlack)) continue;
            ticks.push_back(std::clamp(t, 0.0f, length));
        }
    }
    return true;
}

// The back of a box is its front moved by (-xDepth, yDepth).
bool vxGridManager::getDepth(float depth[2]) const {
    const vxBaseChart* type = chart ? chart->getChartType() : nullptr;
    if (!type || !type->getDepthInfo().isDepth()) return false;
    depth[0] = -type->getDepthInfo().getXDepth();
    depth[1] = type->getDepthInfo().getYDepth();
    return true;
}

void vxGridManager::setUpPlanes(const vxGridAxis& x, const vxGridAxis& y, const float crossing[2],
                                const float depth[2]) {
    vxGridRectPlane& back = planes[0].rect;
    back.axes[0] = moved(x, depth);
    back.axes[1] = moved(y, depth);
    back.crossing[0] = crossing[0] + depth[0];
    back.crossing[1] = crossing[1] + depth[1];
    hasPlane[0] = true;
    if (depth[0] == 0.0f && depth[1] == 0.0f) return;
    vxGridAxis z;
    z.ends[0] = crossing[0];
    z.ends[1] = crossing[1];
    z.ends[2] = crossing[0] + depth[0];
    z.ends[3] = crossing[1] + depth[1];
    for (size_t p = 1; p <= 2; ++p) {
        vxGridRectPlane& plane = planes[p].rect;
        plane.axes[0] = p == 1 ? x : y;
        plane.axes[1] = z;
        std::copy(crossing, crossing + 2, plane.crossing);
        hasPlane[p] = true;
    }
}

}  // namespace Velarix
