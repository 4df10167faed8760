// Figures built from whole: multigons, rectangles, ovals, rounded
// rectangles, arcs and slices. Angles run clockwise from twelve o'clock.
#include <algorithm>
#include <cmath>

#include "graphics/vxAllocationGuard.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTurn = 2.0 * kPi;
constexpr double kQuarter = kPi / 2.0;
// The full turn as a float angle of the script comes in.
constexpr float kFullTurn = 6.2831855f;
// An angle up to this counts as none.
constexpr float kNoAngle = 0.0001745f;

// sin and cos below the precision of a float angle are 0, so that the
// points of whole quarter turns come out as the numbers they are.
double clean(double value) {
    return std::fabs(value) < 1e-7 ? 0.0 : value;
}

// The ellipse of a box, scaled about its centre, and its points by clock
// angle.
struct Ellipse {
    double cx, cy, rx, ry;

    Ellipse(float l, float t, float r, float b, double scale = 1.0)
        : cx((l + static_cast<double>(r)) * 0.5),
          cy((t + static_cast<double>(b)) * 0.5),
          rx((r - static_cast<double>(l)) * 0.5 * scale),
          ry((b - static_cast<double>(t)) * 0.5 * scale) {}

    float xAt(double a) const { return static_cast<float>(cx + clean(std::sin(a)) * rx); }
    float yAt(double a) const { return static_cast<float>(cy - clean(std::cos(a)) * ry); }
};

// The sweep of an arc angle: a whole turn, by sign, from a float whole turn
// on.
double sweepOf(float arcAngle) {
    return std::fabs(arcAngle) >= kFullTurn - 1e-6f ? std::copysign(kTurn, arcAngle) : arcAngle;
}

}  // namespace

void vxPath2DOLD::lineToIfMoved(float px, float py) {
    float cx = 0.0f, cy = 0.0f;
    getCurrentPoint(cx, cy);
    if (!verbs.empty() && std::fabs(px - cx) < 0.001f && std::fabs(py - cy) < 0.001f) return;
    lineTo(px, py);
}

// Each cubic of angle d takes its control points along the tangents, at
// k = 4/3 tan(d/4) times the derivative by angle.
void vxPath2DOLD::arcSegments(double cx, double cy, double rx, double ry, double a0, double sweep) {
    const long n = std::max(1L, static_cast<long>(std::ceil(std::fabs(sweep) / kQuarter - 1e-6)));
    const double d = sweep / n;
    const double k = 4.0 / 3.0 * std::tan(d / 4.0);
    auto px = [&](double a) { return cx + clean(std::sin(a)) * rx; };
    auto py = [&](double a) { return cy - clean(std::cos(a)) * ry; };
    auto tx = [&](double a) { return k * clean(std::cos(a)) * rx; };
    auto ty = [&](double a) { return k * clean(std::sin(a)) * ry; };
    for (long j = 0; j < n; ++j) {
        const double a = a0 + j * d, b = a + d;
        cubicTo(static_cast<float>(px(a) + tx(a)), static_cast<float>(py(a) + ty(a)),
                static_cast<float>(px(b) - tx(b)), static_cast<float>(py(b) - ty(b)),
                static_cast<float>(px(b)), static_cast<float>(py(b)));
    }
}

// ---- multigons ---------------------------------------------------------------

void vxPath2DOLD::addMultigon(long n, float startAngle, float cx, float cy, float rx, float ry,
                              float innerRatio, float innerOffset) {
    vxGuardAllocation(*this, L"addMultigon", 1, [&] {
        buildMultigon(n, startAngle, cx, cy, rx, ry, innerRatio, innerOffset);
    });
}

void vxPath2DOLD::buildMultigon(long n, float startAngle, float cx, float cy, float rx, float ry,
                                float innerRatio, float innerOffset) {
    if (n < 1) return;
    const float step = kFullTurn / static_cast<float>(n);
    auto xAt = [&](float a, float scale) {
        return static_cast<float>(cx + clean(std::sin(a)) * rx * scale);
    };
    auto yAt = [&](float a, float scale) {
        return static_cast<float>(cy - clean(std::cos(a)) * ry * scale);
    };
    const bool isPolygon = std::fabs(innerRatio - 1.0f) <= 0.0001f;
    const bool isStar = !isPolygon && innerRatio >= 0.0001f;
    setCapacity(getNumOfPoints() + 2 * n);
    for (long k = 0; k < n; ++k) {
        const float a = startAngle + static_cast<float>(k) * step;
        if (isPolygon || isStar) {
            k == 0 ? moveTo(xAt(a, 1.0f), yAt(a, 1.0f)) : lineTo(xAt(a, 1.0f), yAt(a, 1.0f));
            if (isStar) {
                const float inner = a + step * innerOffset;
                lineTo(xAt(inner, innerRatio), yAt(inner, innerRatio));
            }
        } else {
            const float scale = std::fabs(innerRatio);
            moveTo(xAt(a, 1.0f), yAt(a, 1.0f));
            lineTo(xAt(a, scale), yAt(a, scale));
        }
    }
    if (isPolygon || isStar) close();
}

// ---- rectangles and ovals --------------------------------------------------------

void vxPath2DOLD::addRect(float l, float t, float r, float b) {
    vxGuardAllocation(*this, L"addRect", 1, [&] {
        moveTo(l, t);
        lineTo(r, t);
        lineTo(r, b);
        lineTo(l, b);
        close();
    });
}

void vxPath2DOLD::addOval(float l, float t, float r, float b) {
    vxGuardAllocation(*this, L"addOval", 1, [&] {
        const Ellipse e(l, t, r, b);
        moveTo(e.xAt(0.0), e.yAt(0.0));
        arcSegments(e.cx, e.cy, e.rx, e.ry, 0.0, kTurn);
        close();
    });
}

void vxPath2DOLD::addRoundRect(float l, float t, float r, float b, float rx, float ry) {
    if (l > r) std::swap(l, r);
    if (t > b) std::swap(t, b);
    rx = std::min(std::fabs(rx), (r - l) * 0.5f);
    ry = std::min(std::fabs(ry), (b - t) * 0.5f);
    if (rx < 0.0001f || ry < 0.0001f) {
        addRect(l, t, r, b);
        return;
    }
    vxGuardAllocation(*this, L"addRoundRect", 1, [&] {
        moveTo(l + rx, t);
        lineToIfMoved(r - rx, t);
        arcSegments(r - rx, t + ry, rx, ry, 0.0, kQuarter);
        lineToIfMoved(r, b - ry);
        arcSegments(r - rx, b - ry, rx, ry, kQuarter, kQuarter);
        lineToIfMoved(l + rx, b);
        arcSegments(l + rx, b - ry, rx, ry, 2.0 * kQuarter, kQuarter);
        lineToIfMoved(l, t + ry);
        arcSegments(l + rx, t + ry, rx, ry, 3.0 * kQuarter, kQuarter);
        close();
    });
}

// ---- arcs and slices -----------------------------------------------------------

void vxPath2DOLD::addArc(float l, float t, float r, float b, float startAngle, float arcAngle) {
    if (std::fabs(arcAngle) <= kNoAngle) return;
    const double sweep = sweepOf(arcAngle);
    vxGuardAllocation(*this, L"addArc", 1, [&] {
        const Ellipse e(l, t, r, b);
        moveTo(e.xAt(startAngle), e.yAt(startAngle));
        arcSegments(e.cx, e.cy, e.rx, e.ry, startAngle, sweep);
        if (std::fabs(sweep) == kTurn) close();
    });
}

void vxPath2DOLD::addSlice(float l, float t, float r, float b, float startAngle, float arcAngle,
                           float innerRatio) {
    if (std::fabs(arcAngle) <= kNoAngle) return;
    const double sweep = sweepOf(arcAngle);
    const double start = startAngle, end = start + sweep;
    const bool isRing = innerRatio > 0.0001f;
    const Ellipse outer(l, t, r, b), inner(l, t, r, b, innerRatio);
    auto arc = [&](const Ellipse& e, double from, double by) {
        arcSegments(e.cx, e.cy, e.rx, e.ry, from, by);
    };
    vxGuardAllocation(*this, L"addSlice", 1, [&] {
        if (std::fabs(sweep) == kTurn) {
            moveTo(outer.xAt(start), outer.yAt(start));
            arc(outer, start, sweep);
            close();
            if (!isRing) return;
            moveTo(inner.xAt(start), inner.yAt(start));
            arc(inner, start, -sweep);
            close();
            windingRule = kEvenOdd;
        } else if (isRing) {
            moveTo(outer.xAt(start), outer.yAt(start));
            arc(outer, start, sweep);
            lineTo(inner.xAt(end), inner.yAt(end));
            arc(inner, end, -sweep);
            close();
        } else {
            moveTo(static_cast<float>(outer.cx), static_cast<float>(outer.cy));
            lineTo(outer.xAt(start), outer.yAt(start));
            arc(outer, start, sweep);
            close();
        }
    });
}

}  // namespace Velarix
