// Smooth curves through points: a cubic spline whose tangents come from a
// fixed table of coefficients (vxSmoothingTables).
#include <algorithm>
#include <cmath>

#include "graphics/vxAllocationGuard.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxSmoothingTables.h"

namespace Velarix {

namespace {

// The points of one curve and the way its neighbour indices run on past
// the ends: reflected for an open curve, wrapped for a closed one.
struct SmoothingInput {
    const float* x;
    const float* y;
    long n;  // points
    bool isClosed;

    long index(long i) const {
        if (isClosed) return ((i % n) + n) % n;
        const long last = n - 1;
        if (i < 0) return -i;
        if (i > last) return 2 * last - i;
        return i;
    }

    // The tangent at point i, in x and y.
    void tangent(const vxSmoothingRow& row, long i, float& dx, float& dy) const {
        dx = dy = 0.0f;
        float sign = 1.0f;
        for (int k = 1; k <= row.numOfTerms; ++k) {
            const long ahead = index(i + k), behind = index(i - k);
            dx += sign * row.c[k - 1] * (x[ahead] - x[behind]);
            dy += sign * row.c[k - 1] * (y[ahead] - y[behind]);
            sign = -sign;
        }
    }
};

}  // namespace

void vxPath2DOLD::addSmoothPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                                   bool doClose, float tension) {
    addSmoothPolygon(xs, ys, 0, static_cast<long>(std::min(xs.size(), ys.size())), doClose,
                     tension);
}

void vxPath2DOLD::addSmoothPolygon(const std::vector<float>& xs, const std::vector<float>& ys,
                                   long start, long count, bool doClose, float tension) {
    vxGuardAllocation(*this, L"addSmoothPolygon", 1,
                      [&] { buildSmooth(xs, ys, start, count, doClose, tension); });
}

// The control points are p(i) -/+ D(i) tension before and after each point.
// An open curve of N points gives the sequence p0 a0 b1 p1 a1 ... b(N-1)
// p(N-1), 3N - 2 points; a closed one goes on with a(N-1) b0 p0, 3N + 1.
void vxPath2DOLD::buildSmooth(const std::vector<float>& xs, const std::vector<float>& ys,
                              long start, long count, bool doClose, float tension) {
    const long end = endOfRange(start, count, xs, ys);
    if (end - start < 2) return;
    SmoothingInput in{xs.data() + start, ys.data() + start, end - start, doClose};
    const long last = in.n - 1;
    if (std::fabs(in.x[0] - in.x[last]) < 0.001f && std::fabs(in.y[0] - in.y[last]) < 0.001f) {
        in.isClosed = true;
        in.n -= 1;
    }
    if (in.n < 3) {
        moveTo(in.x[0], in.y[0]);
        lineTo(in.x[1], in.y[1]);
        return;
    }
    const vxSmoothingRow& row =
        in.isClosed ? vxClosedSmoothingRow(in.n) : vxOpenSmoothingRow(std::min(8L, in.n - 1));
    const long size = in.isClosed ? 3 * in.n + 1 : 3 * in.n - 2;
    std::vector<float> sx, sy;
    sx.reserve(size);
    sy.reserve(size);
    float firstDx = 0.0f, firstDy = 0.0f;
    for (long i = 0; i < in.n; ++i) {
        float dx = 0.0f, dy = 0.0f;
        in.tangent(row, i, dx, dy);
        dx *= tension;
        dy *= tension;
        if (i == 0) {
            firstDx = dx;
            firstDy = dy;
        } else {
            sx.push_back(in.x[i] - dx);
            sy.push_back(in.y[i] - dy);
        }
        sx.push_back(in.x[i]);
        sy.push_back(in.y[i]);
        if (i < in.n - 1 || in.isClosed) {
            sx.push_back(in.x[i] + dx);
            sy.push_back(in.y[i] + dy);
        }
    }
    if (in.isClosed) {
        sx.push_back(in.x[0] - firstDx);
        sy.push_back(in.y[0] - firstDy);
        sx.push_back(in.x[0]);
        sy.push_back(in.y[0]);
    }
    setCapacity(getNumOfPoints() + size);
    moveTo(sx[0], sy[0]);
    for (long i = 1; i + 2 < size; i += 3) {
        cubicTo(sx[i], sy[i], sx[i + 1], sy[i + 1], sx[i + 2], sy[i + 2]);
    }
    if (in.isClosed) close();
}

}  // namespace Velarix
