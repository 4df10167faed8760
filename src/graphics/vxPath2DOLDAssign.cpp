// Paths from a script's point lists.
#include <cmath>

#include "graphics/vxAllocationGuard.h"
#include "graphics/vxLineShape.h"
#include "graphics/vxPath2DOLD.h"
#include "script/vxAssign.h"

namespace Velarix {

namespace {

constexpr double kRadiansPerDegree = 0.017453292519943295;
// A script's multigon has at most this many corners.
constexpr long kMaxCorners = 10000;

// The points of a list laid out all x then all y (layout 1) or in pairs.
void splitPoints(const std::vector<float>& numbers, short layout, std::vector<float>& xs,
                 std::vector<float>& ys) {
    const size_t n = numbers.size() / 2;
    xs.resize(n);
    ys.resize(n);
    for (size_t i = 0; i < n; ++i) {
        const bool isSeparate = layout == vxPath2DOLD::kLayoutSeparate;
        xs[i] = numbers[isSeparate ? i : 2 * i];
        ys[i] = numbers[isSeparate ? n + i : 2 * i + 1];
    }
}

}  // namespace

bool vxPath2DOLD::assignPath(short kind, vxAssign& assign, float tension) {
    const short layout = assign.getShort(0, kLayoutInterleaved);
    const std::vector<float> numbers = assign.getFloatArray(1);
    assign.addToArgumentOffset(2);
    if (kind < kAssignPolygon || kind > kAssignPolyline) return !isError();
    vxGuardAllocation(*this, L"assignPath", kind, [&] {
        if (kind == kAssignMultigon) {
            assignMultigon(numbers);
            return;
        }
        std::vector<float> xs, ys;
        splitPoints(numbers, layout, xs, ys);
        const bool isSmooth = kind == kAssignSmoothClosed || kind == kAssignSmoothOpen;
        const long n = static_cast<long>(xs.size());
        if (n < (isSmooth ? 3 : 2)) return;
        const vxLineShape shape;
        switch (kind) {
            case kAssignPolygon:
            case kAssignPolyline:
                buildPolygon(xs, ys, 0, n, kind == kAssignPolygon);
                break;
            case kAssignSmoothClosed:
            case kAssignSmoothOpen:
                buildSmooth(xs, ys, 0, n, kind == kAssignSmoothClosed, tension);
                break;
            case kAssignStep:
                buildSteps(xs, ys, 0, n, kHorizontal, shape.getStartOutdentFactor(),
                           shape.getEndOutdentFactor(), shape.getShiftFactor());
                break;
            default:
                buildJumps(xs, ys, 0, n, kHorizontal, shape.getStartOutdentFactor(),
                           shape.getEndOutdentFactor(), shape.getShiftFactor(),
                           shape.getLengthFactor());
                break;
        }
    });
    return !isError();
}

void vxPath2DOLD::assignMultigon(const std::vector<float>& v) {
    if (v.size() < 5) return;
    const long n = std::lround(v[0]);
    if (n > kMaxCorners) return;
    const float angle = static_cast<float>(v[1] * kRadiansPerDegree);
    const float ry = v.size() > 5 ? v[5] : v[4];
    const float ratio = v.size() > 6 ? v[6] : 1.0f;
    const float offset = v.size() > 7 ? v[7] : 0.5f;
    buildMultigon(n, angle, v[2], v[3], v[4], ry, ratio, offset);
}

}  // namespace Velarix
