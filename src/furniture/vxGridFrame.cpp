#include "furniture/vxGridFrame.h"

#include <cmath>

#include "drawing/vxLayer.h"
#include "graphics/vxAppearanceScript.h"
#include "graphics/vxBasicPaint.h"
#include "graphics/vxBasicStroke.h"
#include "graphics/vxGObjectAppearanceOLD.h"
#include "graphics/vxPath2DOLD.h"
#include "graphics/vxQuad2D.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxGridFrame::vxGridFrame(vxUserSettings* owner, short planeIndex)
    : vxGridItem(L"vxGridFrame", owner, planeIndex, kRadial, kMajor) {}

vxGridFrame::~vxGridFrame() = default;

void vxGridFrame::setDefaults() {
    frame.reset();
}

// The quad starts with the look of the major lines.
bool vxGridFrame::createFrame() {
    if (frame) return true;
    if (!create(frame, L"createFrame", owner)) return false;
    vxGObjectAppearanceOLD* look = frame->getAppearance();
    vxBasicStroke stroke(1.0f);
    if (look && look->setBorderStroke(stroke) &&
        look->setBorderPaint(vxBasicPaint(defaultColor()))) {
        return true;
    }
    return look ? takeError(*look) : takeError(*frame);
}

bool vxGridFrame::assign(vxAssign& a) {
    if (!createFrame()) return false;
    if (vxAppearanceScript::readBorder(*frame, a, owner, vxAppearanceScript::kSkipPart)) {
        return true;
    }
    return takeError(*frame);
}

float vxGridFrame::lineWidth() const {
    const vxStrokeOLD* stroke = frame ? frame->getBorderStroke() : nullptr;
    return stroke ? stroke->getLineWidth() : 1.0f;
}

bool vxGridFrame::applyLook(vxGObjectOLD& shape, long) {
    vxGObjectAppearanceOLD* look = shape.getAppearance();
    if (!frame || !look) return true;
    look->copy(frame->getAppearance());
    return !look->isError() || takeError(*look);
}

bool vxGridFrame::setUpRects(vxLayer& layer, const vxGridRectPlane& plane) {
    return setUpRectFrame(layer, plane);
}

bool vxGridFrame::setUpOvals(vxLayer& layer, const vxGridPolarPlane& plane) {
    return setUpOvalFrame(layer, plane);
}

bool vxGridFrame::setUpPolygons(vxLayer& layer, const vxGridPolarPlane& plane) {
    return setUpPolygonalFrame(layer, plane);
}

// The corners: each end of the first axis moved by each end of the second
// as seen from the crossing, clockwise on a plot that grows up and right.
// The frame of a plane along x and y lies on the plane's edge pixels.
bool vxGridFrame::setUpRectFrame(vxLayer& layer, const vxGridRectPlane& plane) {
    const vxGridAxis& a = plane.axes[0];
    const vxGridAxis& b = plane.axes[1];
    if (!frame || !(a.length() > 0.0f) || !(b.length() > 0.0f)) return true;
    const float* c = plane.crossing;
    float xs[4] = {a.ends[0] + b.ends[2] - c[0], a.ends[2] + b.ends[2] - c[0],
                   a.ends[2] + b.ends[0] - c[0], a.ends[0] + b.ends[0] - c[0]};
    float ys[4] = {a.ends[1] + b.ends[3] - c[1], a.ends[3] + b.ends[3] - c[1],
                   a.ends[3] + b.ends[1] - c[1], a.ends[1] + b.ends[1] - c[1]};
    frame->set(xs, ys);
    if (frame->isAxisAligned()) {
        float extent[4];
        getExtent(plane, extent);
        const float width = lineWidth();
        for (int i = 0; i < 4; ++i) {
            frame->setCorner(i, alignLine(xs[i], width, extent[0], extent[2]),
                             alignLine(ys[i], width, extent[1], extent[3]));
        }
    }
    if (layer.addShape(frame.get())) return true;
    return takeError(layer);
}

bool vxGridFrame::setUpOvalFrame(vxLayer& layer, const vxGridPolarPlane& plane) {
    return addRing(layer, plane, false);
}

bool vxGridFrame::setUpPolygonalFrame(vxLayer& layer, const vxGridPolarPlane& plane) {
    return addRing(layer, plane, true);
}

bool vxGridFrame::addRing(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal) {
    if (!frame || !(plane.outerRadius > 0.0f)) return true;
    LookGroups<vxPath2DOLD> groups;
    vxPath2DOLD* ring = shapeFor(groups, 0);
    if (!ring) return false;
    vxGridItem::addRing(*ring, plane, cornerAngles(plane, polygonal), plane.outerRadius, false);
    if (ring->isError()) return takeError(*ring);
    return handOver(layer, groups);
}

void vxGridFrame::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxGridFrame");
    vxGridItem::dump(depth, out);
    vxDumpEnd(out);
    if (frame) frame->dump(static_cast<short>(depth - 1), out);
}

}  // namespace Velarix
