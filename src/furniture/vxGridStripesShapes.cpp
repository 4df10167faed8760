// The shapes of stripes: quads across a Cartesian plane, wedges and bands
// on a polar one. The stripes of one look are one path.
#include <algorithm>
#include <cmath>

#include "drawing/vxLayer.h"
#include "furniture/vxGridStripes.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

namespace {

bool runsAlongXOrY(const vxGridAxis& axis) {
    return axis.ends[0] == axis.ends[2] || axis.ends[1] == axis.ends[3];
}

// The quad of a stripe: the axis it runs along, moved to each end of the
// span as seen from the crossing.
void stripeCorners(const vxGridRectPlane& plane, const vxGridAxis& along, const vxGridAxis& across,
                   const vxGridStripes::Span& span, bool aligned, std::vector<float>& xs,
                   std::vector<float>& ys) {
    float a[2], b[2];
    across.pointAt(span.from, a);
    across.pointAt(span.to, b);
    const float* e = along.ends;
    xs = {e[0] + a[0], e[2] + a[0], e[2] + b[0], e[0] + b[0]};
    ys = {e[1] + a[1], e[3] + a[1], e[3] + b[1], e[1] + b[1]};
    for (size_t i = 0; i < 4; ++i) {
        xs[i] -= plane.crossing[0];
        ys[i] -= plane.crossing[1];
        if (aligned) {
            xs[i] = vxGridItem::alignEdge(xs[i]);
            ys[i] = vxGridItem::alignEdge(ys[i]);
        }
    }
}

}  // namespace

bool vxGridStripes::setUpRects(vxLayer& layer, const vxGridRectPlane& plane) {
    const vxGridAxis& along = plane.axes[alongAxis()];
    const vxGridAxis& across = plane.axes[acrossAxis()];
    if (!(along.length() > 0.0f)) return true;
    const bool aligned = runsAlongXOrY(along) && runsAlongXOrY(across);
    LookGroups<vxPath2DOLD> groups;
    try {
        const std::vector<Span> spans = stripeSpans(across.major, across.minor, gridOrder);
        std::vector<float> xs(4), ys(4);
        for (size_t k = 0; k < spans.size(); ++k) {
            stripeCorners(plane, along, across, spans[k], aligned, xs, ys);
            vxPath2DOLD* stripes = shapeFor(groups, long(k));
            if (!stripes) return false;
            stripes->addPolygon(xs, ys, true);
            if (stripes->isError()) return takeError(*stripes);
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"add"));
        return false;
    }
    return handOver(layer, groups);
}

bool vxGridStripes::setUpOvals(vxLayer& layer, const vxGridPolarPlane& plane) {
    return addPolar(layer, plane, false);
}

bool vxGridStripes::setUpPolygons(vxLayer& layer, const vxGridPolarPlane& plane) {
    return addPolar(layer, plane, true);
}

// Radial stripes are wedges between spokes, tangential ones bands between
// rings.
bool vxGridStripes::addPolar(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal) {
    const bool wedges = gridDirection == kRadial;
    LookGroups<vxPath2DOLD> groups;
    try {
        const std::vector<float> corners = cornerAngles(plane, polygonal);
        const std::vector<Span> spans =
            wedges ? stripeSpans(plane.majorAngles, plane.minorAngles, gridOrder)
                   : stripeSpans(plane.majorRadii, plane.minorRadii, gridOrder);
        for (size_t k = 0; k < spans.size(); ++k) {
            vxPath2DOLD* stripes = shapeFor(groups, long(k));
            if (!stripes) return false;
            stripes->setWindingRule(vxPath2DOLD::kEvenOdd);
            const float from = std::min(spans[k].from, spans[k].to);
            const float to = std::max(spans[k].from, spans[k].to);
            if (wedges) {
                addWedge(*stripes, plane, corners, from, to, plane.innerRadius, plane.outerRadius);
            } else {
                addBand(*stripes, plane, corners, from, to);
            }
            if (stripes->isError()) return takeError(*stripes);
        }
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"add"));
        return false;
    }
    return handOver(layer, groups);
}

}  // namespace Velarix
