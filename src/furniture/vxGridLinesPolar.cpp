// Grid lines of a polar plane: spokes at the ticks of the angular axis,
// rings at those of the radial axis.
#include "drawing/vxLayer.h"
#include "furniture/vxGridLines.h"
#include "graphics/vxLineArray2DOLD.h"
#include "graphics/vxPath2DOLD.h"

namespace Velarix {

bool vxGridLines::setUpOvals(vxLayer& layer, const vxGridPolarPlane& plane) {
    if (gridDirection == kRadial) return addSpokes(layer, plane, false);
    return addRings(layer, plane, false);
}

bool vxGridLines::setUpPolygons(vxLayer& layer, const vxGridPolarPlane& plane) {
    if (gridDirection == kRadial) return addSpokes(layer, plane, true);
    return addRings(layer, plane, true);
}

bool vxGridLines::addSpokes(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal) {
    const std::vector<float> corners = cornerAngles(plane, polygonal);
    const std::vector<float>& angles = plane.angles(gridOrder);
    const float r = plane.outerRadius;
    const float extent[4] = {plane.centre[0] - r, plane.centre[1] - r * plane.yRatio,
                             plane.centre[0] + r, plane.centre[1] + r * plane.yRatio};
    LookGroups<vxLineArray2DOLD> groups;
    for (size_t i = 0; i < angles.size(); ++i) {
        float line[4];
        outlinePoint(plane, corners, angles[i], plane.innerRadius, line);
        outlinePoint(plane, corners, angles[i], plane.outerRadius, line + 2);
        alignLine(line, lineWidthAt(long(i)), extent);
        vxLineArray2DOLD* lines = shapeFor(groups, long(i));
        if (!lines) return false;
        if (!lines->addLine(line)) return takeError(*lines);
    }
    return handOver(layer, groups);
}

bool vxGridLines::addRings(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal) {
    const std::vector<float> corners = cornerAngles(plane, polygonal);
    const std::vector<float>& radii = plane.radii(gridOrder);
    LookGroups<vxPath2DOLD> groups;
    for (size_t i = 0; i < radii.size(); ++i) {
        if (!(radii[i] > 0.0f)) continue;
        vxPath2DOLD* rings = shapeFor(groups, long(i));
        if (!rings) return false;
        addRing(*rings, plane, corners, radii[i], false);
        if (rings->isError()) return takeError(*rings);
    }
    return handOver(layer, groups);
}

}  // namespace Velarix
