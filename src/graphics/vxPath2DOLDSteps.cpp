// Stepped and jumping lines, and the line shapes of series that choose
// between them. Along the orientation a coordinate is called u, across it v:
// orientation 1 has u = x, orientation 2 has u = y.
#include <algorithm>

#include "graphics/vxAllocationGuard.h"
#include "graphics/vxLineShape.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

// Outdents and lengths up to this count as none.
constexpr float kNoLength = 0.0001f;

// The points of a range seen along and across the orientation.
struct OrientedRange {
    const float* u;
    const float* v;
    long n;

    OrientedRange(const std::vector<float>& xs, const std::vector<float>& ys, long start, long end,
                  short orientation)
        : n(end - start) {
        const bool isVertical = orientation == vxPath2DOLD::kVertical;
        u = (isVertical ? ys.data() : xs.data()) + start;
        v = (isVertical ? xs.data() : ys.data()) + start;
    }

    // Where the line starts before the first point: outdented by a fraction
    // of the first gap, but never beyond `limit`, the first turn of the line.
    float outdentedStart(float outdent, float limit) const {
        const float start = u[0] - (u[1] - u[0]) * outdent;
        return u[1] >= u[0] ? std::min(start, limit) : std::max(start, limit);
    }
    // The same after the last point.
    float outdentedEnd(float outdent, float limit) const {
        const float end = u[n - 1] + (u[n - 1] - u[n - 2]) * outdent;
        return u[n - 1] >= u[n - 2] ? std::max(end, limit) : std::min(end, limit);
    }
};

}  // namespace

void vxPath2DOLD::orientedMove(short orientation, float u, float v) {
    orientation == kVertical ? moveTo(v, u) : moveTo(u, v);
}

void vxPath2DOLD::orientedLine(short orientation, float u, float v) {
    orientation == kVertical ? lineToIfMoved(v, u) : lineToIfMoved(u, v);
}

// A lone point draws flat through the point whatever the orientation.
void vxPath2DOLD::addLonePoint(float px, float py, float startOutdent, float endOutdent) {
    if (startOutdent <= kNoLength && endOutdent <= kNoLength) return;
    moveTo(px - std::max(0.0f, startOutdent), py);
    lineTo(px + std::max(0.0f, endOutdent), py);
}

// ---- steps -------------------------------------------------------------------

void vxPath2DOLD::addStepPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                                 short orientation, float startOutdent, float endOutdent,
                                 float stepPosition) {
    addStepPolygon(xs, ys, 0, static_cast<long>(std::min(xs.size(), ys.size())), orientation,
                   startOutdent, endOutdent, stepPosition);
}

void vxPath2DOLD::addStepPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                                 long start, long count, short orientation, float startOutdent,
                                 float endOutdent, float stepPosition) {
    vxGuardAllocation(*this, L"addStepPolygon", 1, [&] {
        buildSteps(xs, ys, start, count, orientation, startOutdent, endOutdent, stepPosition);
    });
}

void vxPath2DOLD::buildSteps(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                             long count, short orientation, float startOutdent, float endOutdent,
                             float stepPosition) {
    const long end = endOfRange(start, count, xs, ys);
    if (end - start < 1) return;
    const OrientedRange r(xs, ys, start, end, orientation);
    if (r.n == 1) {
        addLonePoint(xs[start], ys[start], startOutdent, endOutdent);
        return;
    }
    auto stepAt = [&](long i) { return r.u[i] + (r.u[i + 1] - r.u[i]) * stepPosition; };
    setCapacity(getNumOfPoints() + 2 * r.n + 1);
    orientedMove(orientation, r.outdentedStart(startOutdent, stepAt(0)), r.v[0]);
    for (long i = 0; i + 1 < r.n; ++i) {
        const float step = stepAt(i);
        orientedLine(orientation, step, r.v[i]);
        orientedLine(orientation, step, r.v[i + 1]);
    }
    orientedLine(orientation, r.outdentedEnd(endOutdent, stepAt(r.n - 2)), r.v[r.n - 1]);
}

// ---- jumps -------------------------------------------------------------------

void vxPath2DOLD::addJumpPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                                 short orientation, float startOutdent, float endOutdent,
                                 float shiftFactor, float lengthFactor) {
    addJumpPolygon(xs, ys, 0, static_cast<long>(std::min(xs.size(), ys.size())), orientation,
                   startOutdent, endOutdent, shiftFactor, lengthFactor);
}

void vxPath2DOLD::addJumpPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                                 long start, long count, short orientation, float startOutdent,
                                 float endOutdent, float shiftFactor, float lengthFactor) {
    vxGuardAllocation(*this, L"addJumpPolygon", 1, [&] {
        buildJumps(xs, ys, start, count, orientation, startOutdent, endOutdent, shiftFactor,
                   lengthFactor);
    });
}

void vxPath2DOLD::buildJumps(const std::vector<float>& xs, const std::vector<float>& ys, long start,
                             long count, short orientation, float startOutdent, float endOutdent,
                             float shiftFactor, float lengthFactor) {
    if (lengthFactor < kNoLength) return;
    const long end = endOfRange(start, count, xs, ys);
    if (end - start < 1) return;
    const OrientedRange r(xs, ys, start, end, orientation);
    if (r.n == 1) {
        addLonePoint(xs[start], ys[start], startOutdent, endOutdent);
        return;
    }
    const float back = (1.0f - shiftFactor) * lengthFactor;
    const float ahead = shiftFactor * lengthFactor;
    setCapacity(getNumOfPoints() + 2 * r.n);
    for (long i = 0; i < r.n; ++i) {
        float from = i > 0 ? r.u[i] - (r.u[i] - r.u[i - 1]) * back : 0.0f;
        float to = i + 1 < r.n ? r.u[i] + (r.u[i + 1] - r.u[i]) * ahead : 0.0f;
        if (i == 0) from = r.outdentedStart(startOutdent, to);
        if (i + 1 == r.n) to = r.outdentedEnd(endOutdent, from);
        // Every point has its piece, one of no length included.
        orientedMove(orientation, from, r.v[i]);
        orientation == kVertical ? lineTo(r.v[i], to) : lineTo(to, r.v[i]);
    }
}

// ---- line shapes of series -----------------------------------------------------

void vxPath2DOLD::addLineShape(const std::vector<float>& xs, const std::vector<float>& ys,
                               long start, long count, const vxLineShape& shape,
                               short orientation) {
    switch (shape.getType()) {
        case vxLineShape::kJump:
            addJumpPolygon(xs, ys, start, count, orientation, shape.getStartOutdentFactor(),
                           shape.getEndOutdentFactor(), shape.getShiftFactor(),
                           shape.getLengthFactor());
            break;
        case vxLineShape::kStep:
            addStepPolygon(xs, ys, start, count, orientation, shape.getStartOutdentFactor(),
                           shape.getEndOutdentFactor(), shape.getShiftFactor());
            break;
        case vxLineShape::kStraight:
            addPolygon(xs, ys, start, count, false);
            break;
        case vxLineShape::kSmooth:
            addSmoothPolygon(xs, ys, start, count, false, shape.getTensionFactor());
            break;
        default:
            break;
    }
}

}  // namespace Velarix
