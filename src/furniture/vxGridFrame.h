// The frame of a grid: the outline of its plane, drawn over the lines and
// stripes. GridFrame gives its style, line widths, colour and pattern; by
// default it is 1 wide and grey (136), as the major lines.
//
// On a Cartesian plane the frame is the parallelogram of the two axes, the
// rectangle of the plot on a flat chart; on a polar plane the outer ring,
// an oval or the polygon through the ends of the spokes.
#pragma once

#include <memory>

#include "furniture/vxGridItem.h"

namespace Velarix {

class vxQuad2D;

class vxGridFrame : public vxGridItem {
public:
    vxGridFrame(vxUserSettings* owner, short planeIndex);
    ~vxGridFrame() override;

    void setDefaults() override;
    // GridFrame after the plane: the line widths, the colour and the
    // pattern, each left as it is when void.
    bool assign(vxAssign& assign);
    // Null until the frame has a style.
    vxQuad2D* getFrame() const { return frame.get(); }

    void dump(short depth, std::ostream& out) const override;

protected:
    bool setUpRects(vxLayer& layer, const vxGridRectPlane& plane) override;
    bool setUpOvals(vxLayer& layer, const vxGridPolarPlane& plane) override;
    bool setUpPolygons(vxLayer& layer, const vxGridPolarPlane& plane) override;
    bool setUpRectFrame(vxLayer& layer, const vxGridRectPlane& plane);
    bool setUpOvalFrame(vxLayer& layer, const vxGridPolarPlane& plane);
    bool setUpPolygonalFrame(vxLayer& layer, const vxGridPolarPlane& plane);

    std::array<long, 3> lookKey(long) const override { return {0L, 0L, 0L}; }
    bool applyLook(vxGObjectOLD& shape, long index) override;

private:
    bool createFrame();
    float lineWidth() const;
    // The outer ring of a polar plane, in the frame's look.
    bool addRing(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal);

    std::unique_ptr<vxQuad2D> frame;
};

}  // namespace Velarix
