#include "charts/vxPieChartItem3D.h"

#include <algorithm>
#include <cmath>

#include "charts/vxBarSolidFrame.h"
#include "charts/vxBaseChartDepthInfo.h"
#include "charts/vxChartShapes.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

constexpr double kDegree = 3.14159265358979323846 / 180.0;
// The lightest a wall gets, and the bottom's shade.
constexpr float kLightestWall = 0.1f;
constexpr float kBottomDarkening = 0.25f;
// A wall is shaded in pieces of at most this many degrees.
constexpr float kShadeStep = 10.0f;
constexpr float kTiny = 1e-4f;

// A box seen as the pie is: its depth goes up the page, so that its front
// is the pie's near side.
const vxBarSolidFrame& pieFrame() {
    static const vxBarSolidFrame frame = [] {
        vxBaseChartDepthInfo depth;
        depth.setDepth(0.0f, -1.0f);
        const float unit[4] = {0.0f, 0.0f, 1.0f, 1.0f};
        return vxBarSolidFrame(unit, 1, depth);
    }();
    return frame;
}

void checked(std::unique_ptr<vxPath2DOLD>& path, vxPieChartItem::Shapes& out) {
    if (path->isError() || path->getAppearance()->isError()) throw std::bad_alloc();
    out.push_back(std::move(path));
}

}  // namespace

float vxPieChartItem3D::wallDarkening(double angle) {
    const double a = angle * kDegree;
    return std::max(kLightestWall, pieFrame().sideDarkening(std::cos(a), std::sin(a)));
}

void vxPieChartItem3D::splitArc() {
    float from, extent;
    getCounterClockwiseArc(from, extent);
    const float step = extent / std::max(1.0f, std::ceil(extent / kArcStep));
    int n = 0;
    arcSegmentOffsets[0] = arcSegmentOffsets[1] = arcSegmentOffsets[2] = -1;
    arcSegmentOffsets[n++] = 0;
    for (float split = 180.0f; split < 720.0f && n < 3; split += 180.0f) {
        if (split > from + kTiny && split < from + extent - kTiny) {
            arcSegmentOffsets[n++] = long(std::floor((split - from) / step));
        }
    }
}

bool vxPieChartItem3D::addShapes(Shapes& out, const vxBaseChart::Look& look) const {
    try {
        if (frame.depth > kTiny) {
            addFace(out, look, frame.depth, kBottomDarkening);
            addSides(out, look, false);
            if (frame.innerFraction > kTiny) addWalls(out, look, false);
            addWalls(out, look, true);
            addSides(out, look, true);
        }
        addFace(out, look, 0.0f, 0.0f);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

void vxPieChartItem3D::addFace(Shapes& out, const vxBaseChart::Look& look, float dy,
                               float darkening) const {
    auto path = std::make_unique<vxPath2DOLD>();
    outline(*path, dy);
    vxApplyLook(*path, look, darkening, true);
    checked(path, out);
}

// The radial sides at the start and the end of the arc, those that face the
// viewer or those that don't. A whole circle has none.
void vxPieChartItem3D::addSides(Shapes& out, const vxBaseChart::Look& look, bool facing) const {
    if (isFullCircle()) return;
    float from, extent;
    getCounterClockwiseArc(from, extent);
    const float k = frame.innerFraction;
    for (const float side : {from, from + extent}) {
        const double normal = side == from ? side - 90.0 : side + 90.0;
        // Seen when the normal has a part toward the bottom of the page.
        if ((std::sin(normal * kDegree) < 0.0) != facing) continue;
        const double c = std::cos(side * kDegree), s = std::sin(side * kDegree);
        float x[4], y[4];
        x[0] = float(frame.cx + k * frame.rx * c);
        y[0] = float(frame.cy - k * frame.ry * s);
        x[1] = float(frame.cx + frame.rx * c);
        y[1] = float(frame.cy - frame.ry * s);
        x[2] = x[1];
        y[2] = y[1] + frame.depth;
        x[3] = x[0];
        y[3] = y[0] + frame.depth;
        auto path = vxMakeLookedPolygon(x, y, nullptr, 4, look, wallDarkening(normal), true);
        checked(path, out);
    }
}

// The pieces of a wall that show: the outer wall between 180 and 360
// degrees, the inner one between 0 and 180 (the far side, seen through the
// hole).
void vxPieChartItem3D::addWalls(Shapes& out, const vxBaseChart::Look& look, bool outer) const {
    float from, extent;
    getCounterClockwiseArc(from, extent);
    const float shown = outer ? 180.0f : 0.0f;
    for (float lo = shown - 360.0f; lo < from + extent; lo += 360.0f) {
        const float a = std::max(from, lo), b = std::min(from + extent, lo + 180.0f);
        if (b - a > kTiny) addWall(out, look, outer ? 1.0f : frame.innerFraction, a, b);
    }
}

// A wall from angle `from` to `to` at the share `fraction` of the radius:
// filled in pieces, each shaded by its middle's turn, then bordered as one.
void vxPieChartItem3D::addWall(Shapes& out, const vxBaseChart::Look& look, float fraction,
                               float from, float to) const {
    const bool inner = fraction < 1.0f;
    const float rx = frame.rx * fraction, ry = frame.ry * fraction;
    const vxBaseChart::Look fill{look.fill, nullptr, nullptr};
    const int pieces = std::max(1, int(std::ceil((to - from) / kShadeStep)));
    std::vector<float> xs, ys;
    for (int i = 0; i < pieces && look.fill; ++i) {
        const float a = from + (to - from) * i / pieces;
        const float b = from + (to - from) * (i + 1) / pieces;
        sampleArc(frame.cx, frame.cy, rx, ry, a, b - a, xs, ys);
        const size_t n = xs.size();
        for (size_t j = n; j-- > 0;) {
            xs.push_back(xs[j]);
            ys.push_back(ys[j] + frame.depth);
        }
        const double normal = 0.5 * (a + b) + (inner ? 180.0 : 0.0);
        auto piece = vxMakeLookedPolygon(xs.data(), ys.data(), nullptr, int(xs.size()), fill,
                                         wallDarkening(normal), true);
        checked(piece, out);
    }
    if (!look.border || !look.stroke) return;
    sampleArc(frame.cx, frame.cy, rx, ry, from, to - from, xs, ys);
    for (size_t j = xs.size(); j-- > 0;) {
        xs.push_back(xs[j]);
        ys.push_back(ys[j] + frame.depth);
    }
    const vxBaseChart::Look border{nullptr, look.stroke, look.border};
    auto edge = vxMakeLookedPolygon(xs.data(), ys.data(), nullptr, int(xs.size()), border,
                                    wallDarkening(0.5 * (from + to)), true);
    checked(edge, out);
}

// Top and bottom, and the walls that face the viewer between them.
std::unique_ptr<vxPath2DOLD> vxPieChartItem3D::makeSilhouette() const {
    auto path = std::make_unique<vxPath2DOLD>();
    outline(*path, 0.0f);
    if (frame.depth > kTiny) {
        vxPath2DOLD bottom;
        outline(bottom, frame.depth);
        path->addPath(bottom);
        float from, extent;
        getCounterClockwiseArc(from, extent);
        std::vector<float> xs, ys;
        for (float lo = -180.0f; lo < from + extent; lo += 360.0f) {
            const float a = std::max(from, lo), b = std::min(from + extent, lo + 180.0f);
            if (b - a <= kTiny) continue;
            sampleArc(frame.cx, frame.cy, frame.rx, frame.ry, a, b - a, xs, ys);
            for (size_t j = xs.size(); j-- > 0;) {
                xs.push_back(xs[j]);
                ys.push_back(ys[j] + frame.depth);
            }
            // Turned as the faces are, so that the non-zero rule fills where
            // they overlap.
            std::reverse(xs.begin(), xs.end());
            std::reverse(ys.begin(), ys.end());
            path->addPolygon(xs, ys, true);
        }
    }
    return path;
}

}  // namespace Velarix
