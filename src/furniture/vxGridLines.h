// The grid lines of one order and direction on a plane: straight lines
// across a Cartesian plane, spokes and rings (ovals or polygons) on a
// polar one. Each line takes its stroke from the widths, its colour from
// the colours and its pattern from the patterns, each list cycling by the
// tick's index. By default a line is 1 wide, solid, and grey: 136 for the
// major lines, 221 for the minor ones.
//
// Lines end where their plane ends, without caps beyond it; lines along x
// or y stand on whole pixels (vxGridItem::alignLine).
#pragma once

#include <memory>
#include <vector>

#include "furniture/vxGridItem.h"

namespace Velarix {

class vxBasicPaint;
class vxBasicStroke;
class vxLineArray2DOLD;
class vxPath2DOLD;

class vxGridLines : public vxGridItem {
public:
    vxGridLines(vxUserSettings* owner, short planeIndex, short direction, short order);
    ~vxGridLines() override;

    void setDefaults() override;
    // The lists of MajorGridLine... and MinorGridLine... from the argument
    // offset on: one line-widths argument a stroke, one colour a paint, one
    // pattern number a pattern. An empty list restores the default.
    bool assignWidths(vxAssign& assign);
    bool assignColors(vxAssign& assign);
    bool assignPatterns(vxAssign& assign);

    long getNumOfLineStrokes() const { return long(lineStrokes.size()); }
    long getNumOfLinePaints() const { return long(linePaints.size()); }
    const std::vector<short>& getLinePatterns() const { return linePatterns; }
    // The stroke and the paint of the line at tick `index`.
    const vxBasicStroke* getLineStroke(long index) const;
    std::unique_ptr<vxBasicPaint> getLinePaint(long index) const;

    void dump(short depth, std::ostream& out) const override;

protected:
    // vxGridLinesRects.cpp
    bool setUpRects(vxLayer& layer, const vxGridRectPlane& plane) override;
    // vxGridLinesPolar.cpp
    bool setUpOvals(vxLayer& layer, const vxGridPolarPlane& plane) override;
    bool setUpPolygons(vxLayer& layer, const vxGridPolarPlane& plane) override;

    std::array<long, 3> lookKey(long index) const override;
    bool applyLook(vxGObjectOLD& shape, long index) override;

private:
    bool setDefaultStrokes();
    float lineWidthAt(long index) const;
    // Spokes from the inner radius to the outer one; on a polygonal plane
    // a spoke between corners ends on the polygon.
    bool addSpokes(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal);
    // A ring at each tick of the radial axis: an oval, or the polygon
    // through the spokes.
    bool addRings(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal);

    std::vector<std::unique_ptr<vxBasicStroke>> lineStrokes;
    std::vector<std::unique_ptr<vxBasicPaint>> linePaints;
    std::vector<short> linePatterns;
};

}  // namespace Velarix
