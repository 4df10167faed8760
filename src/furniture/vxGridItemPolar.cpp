// The outlines of polar grids: rings as ovals or as polygons with their
// corners on the spokes, bands between two rings, and wedges of bands.
#include <algorithm>
#include <cmath>

#include "furniture/vxGridItem.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

constexpr double kTurn = 2.0 * 3.14159265358979323846;
constexpr float kNoAngle = 0.0001745f;
constexpr float kNoRadius = 0.0001f;

float normalized(double angle) {
    double a = std::fmod(angle, kTurn);
    if (a < 0.0) a += kTurn;
    return a >= kTurn ? 0.0f : float(a);
}

// The sweep clockwise from `from` to `to`: a difference within a turn
// stays, so that a wedge of a whole turn keeps it.
float sweepOf(float from, float to) {
    const double d = double(to) - from;
    return d > 0.0 && d <= kTurn ? float(d) : normalized(d);
}

// The distance from the centre of the polygon's edge at `angle`, for
// corners on a circle of `radius`.
float polygonDistance(const std::vector<float>& corners, float angle, float radius) {
    const float a = normalized(angle);
    auto next = std::upper_bound(corners.begin(), corners.end(), a);
    const float high = next == corners.end() ? corners.front() + float(kTurn) : *next;
    const float low = next == corners.begin() ? corners.back() - float(kTurn) : *(next - 1);
    const double half = 0.5 * (double(high) - low);
    // A gap of half a turn or more leaves the centre outside: no edge.
    if (half >= kTurn / 4.0 - 1e-6) return radius;
    return float(radius * std::cos(half) / std::cos(double(a) - low - half));
}

void pointOn(const vxGridPolarPlane& plane, const std::vector<float>& corners, float angle,
             float radius, float point[2]) {
    const float r = corners.empty() ? radius : polygonDistance(corners, angle, radius);
    plane.pointAt(angle, r, point);
}

void box(const vxGridPolarPlane& plane, float radius, float b[4]) {
    b[0] = plane.centre[0] - radius;
    b[1] = plane.centre[1] - radius * plane.yRatio;
    b[2] = plane.centre[0] + radius;
    b[3] = plane.centre[1] + radius * plane.yRatio;
}

// Points of the polygonal ring from `from` clockwise through `sweep`, its
// ends and the corners between them.
void polygonArc(const vxGridPolarPlane& plane, const std::vector<float>& corners, float from,
                float sweep, float radius, std::vector<float>& xs, std::vector<float>& ys) {
    float p[2];
    pointOn(plane, corners, from, radius, p);
    xs.push_back(p[0]);
    ys.push_back(p[1]);
    std::vector<float> between;
    for (float c : corners) {
        const float d = normalized(double(c) - from);
        if (d > kNoAngle && d < sweep - kNoAngle) between.push_back(d);
    }
    std::sort(between.begin(), between.end());
    for (float d : between) {
        plane.pointAt(from + d, radius, p);
        xs.push_back(p[0]);
        ys.push_back(p[1]);
    }
    pointOn(plane, corners, from + sweep, radius, p);
    xs.push_back(p[0]);
    ys.push_back(p[1]);
}

}  // namespace

std::vector<float> vxGridItem::cornerAngles(const vxGridPolarPlane& plane, bool polygonShape) {
    std::vector<float> corners;
    if (!polygonShape) return corners;
    for (float a : plane.majorAngles) {
        if (std::isfinite(a)) corners.push_back(normalized(a));
    }
    std::sort(corners.begin(), corners.end());
    corners.erase(std::unique(corners.begin(), corners.end(),
                              [](float a, float b) { return b - a < kNoAngle; }),
                  corners.end());
    if (corners.size() >= 2 && corners.back() - corners.front() > float(kTurn) - kNoAngle) {
        corners.pop_back();
    }
    if (corners.size() < 3) corners.clear();
    return corners;
}

void vxGridItem::outlinePoint(const vxGridPolarPlane& plane, const std::vector<float>& corners,
                              float angle, float radius, float point[2]) {
    pointOn(plane, corners, angle, radius, point);
}

void vxGridItem::addRing(vxPath2DOLD& path, const vxGridPolarPlane& plane,
                         const std::vector<float>& corners, float radius, bool reversed) {
    if (corners.empty()) {
        float b[4];
        box(plane, radius, b);
        if (!reversed) return path.addOval(b[0], b[1], b[2], b[3]);
        return path.addArc(b[0], b[1], b[2], b[3], 0.0f, -float(kTurn));
    }
    std::vector<float> xs, ys;
    for (float c : corners) {
        float p[2];
        plane.pointAt(c, radius, p);
        xs.push_back(p[0]);
        ys.push_back(p[1]);
    }
    if (reversed) {
        std::reverse(xs.begin(), xs.end());
        std::reverse(ys.begin(), ys.end());
    }
    path.addPolygon(xs, ys, true);
}

// An oval band is a slice of a whole turn with a hole.
void vxGridItem::addBand(vxPath2DOLD& path, const vxGridPolarPlane& plane,
                         const std::vector<float>& corners, float radius1, float radius2) {
    const float inner = std::min(radius1, radius2);
    const float outer = std::max(radius1, radius2);
    if (outer - inner < kNoRadius) return;
    path.setWindingRule(vxPath2DOLD::kEvenOdd);
    if (corners.empty()) {
        float b[4];
        box(plane, outer, b);
        return path.addSlice(b[0], b[1], b[2], b[3], 0.0f, float(kTurn), inner / outer);
    }
    addRing(path, plane, corners, outer, false);
    if (inner > kNoRadius) addRing(path, plane, corners, inner, true);
}

void vxGridItem::addWedge(vxPath2DOLD& path, const vxGridPolarPlane& plane,
                          const std::vector<float>& corners, float from, float to, float inner,
                          float outer) {
    const float sweep = sweepOf(from, to);
    if (sweep <= kNoAngle || outer - inner < kNoRadius) return;
    if (corners.empty()) {
        float b[4];
        box(plane, outer, b);
        return path.addSlice(b[0], b[1], b[2], b[3], from, sweep, inner / outer);
    }
    std::vector<float> xs, ys;
    polygonArc(plane, corners, from, sweep, outer, xs, ys);
    if (inner <= kNoRadius) {
        xs.push_back(plane.centre[0]);
        ys.push_back(plane.centre[1]);
    } else {
        std::vector<float> ix, iy;
        polygonArc(plane, corners, from, sweep, inner, ix, iy);
        xs.insert(xs.end(), ix.rbegin(), ix.rend());
        ys.insert(ys.end(), iy.rbegin(), iy.rend());
    }
    path.addPolygon(xs, ys, true);
}

}  // namespace Velarix
