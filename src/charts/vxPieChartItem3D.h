// A slice with depth: a solid between its top face and the same face
// `pieDepthDC` lower. Its faces, in painting order: the bottom, the radial
// sides that turn away from the viewer, the pieces of the inner wall (of a
// doughnut) that show through the hole, the pieces of the outer wall that
// face the viewer, the radial sides that turn toward the viewer, and the
// top. The viewer looks from below the pie on the page: the outer wall
// shows between 180 and 360 degrees, the inner wall between 0 and 180.
//
// Faces are shaded as the sides of bars with depth (vxBarSolidFrame): by
// how far they turn from the front, and never as light as the top.
#pragma once

#include "charts/vxPieChartItem.h"

namespace Velarix {

class vxPieChartItem3D : public vxPieChartItem {
public:
    bool addShapes(Shapes& out, const vxBaseChart::Look& look) const override;
    std::unique_ptr<vxPath2DOLD> makeSilhouette() const override;

    float getPieDepthDC() const { return frame.depth; }
    float getDepthExplodeOffsetDC() const { return depthExplodeOffsetDC; }
    void setDepthExplodeOffsetDC(float value) { depthExplodeOffsetDC = value; }
    // Where the arc is split at 0 and 180 degrees: the starts of up to three
    // pieces, in points of the sampled top arc; -1 for none.
    const long* getArcSegmentOffsets() const { return arcSegmentOffsets; }

    // How much darker than the top a wall is whose outward normal points to
    // `angle` degrees.
    static float wallDarkening(double angle);

protected:
    // The top face's outline, moved down by `dy`.
    virtual void outline(vxPath2DOLD& path, float dy) const = 0;
    void splitArc();
    float depthExplodeOffsetDC = 0.0f;
    long arcSegmentOffsets[3] = {-1, -1, -1};

private:
    void addSides(Shapes& out, const vxBaseChart::Look& look, bool facing) const;
    void addWall(Shapes& out, const vxBaseChart::Look& look, float fraction, float from,
                 float to) const;
    void addWalls(Shapes& out, const vxBaseChart::Look& look, bool outer) const;
    void addFace(Shapes& out, const vxBaseChart::Look& look, float dy, float darkening) const;
};

}  // namespace Velarix
