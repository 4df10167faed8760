// Grid lines across a Cartesian plane: each runs along one axis, as long
// as the axis, through a tick of the other.
#include "drawing/vxLayer.h"
#include "furniture/vxGridLines.h"
#include "graphics/vxLineArray2DOLD.h"

namespace Velarix {

bool vxGridLines::setUpRects(vxLayer& layer, const vxGridRectPlane& plane) {
    const vxGridAxis& along = plane.axes[alongAxis()];
    const vxGridAxis& across = plane.axes[acrossAxis()];
    if (!(along.length() > 0.0f)) return true;
    const std::vector<float>& ticks = across.ticks(gridOrder);
    float extent[4];
    getExtent(plane, extent);
    LookGroups<vxLineArray2DOLD> groups;
    for (size_t i = 0; i < ticks.size(); ++i) {
        float tick[2];
        across.pointAt(ticks[i], tick);
        const float dx = tick[0] - plane.crossing[0];
        const float dy = tick[1] - plane.crossing[1];
        float line[4] = {along.ends[0] + dx, along.ends[1] + dy, along.ends[2] + dx,
                         along.ends[3] + dy};
        alignLine(line, lineWidthAt(long(i)), extent);
        vxLineArray2DOLD* lines = shapeFor(groups, long(i));
        if (!lines) return false;
        if (!lines->addLine(line)) return takeError(*lines);
    }
    return handOver(layer, groups);
}

}  // namespace Velarix
