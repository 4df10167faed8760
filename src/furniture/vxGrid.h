// The grid of one plane of a chart (1 xy, 2 xz, 3 yz): up to nine parts,
// made when the script first asks for them: major and minor lines and
// major and minor stripes, each in two directions (see vxGridItem), and
// the frame.
//
// Its location puts the grid behind the series (1 "back"), over them
// (2 "front"), or nowhere (0 "none", which keeps the parts for a later
// location). A grid the script has given parts and no location stands at
// the back; "partial" (3) stands at the back too.
#pragma once

#include <memory>
#include <ostream>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxGridFrame;
class vxGridItem;
class vxGridLines;
class vxGridStripes;
class vxLayer;
class vxLayerManager;
class vxUserSettings;
struct vxGridPlane;

class vxGrid : public vxErrorHolder {
public:
    enum Location : short { kNone = 0, kBack = 1, kFront = 2, kPartial = 3 };
    // The layer type of grids; the subtype is the plane.
    static constexpr long kLayerType = 50;

    vxGrid(vxUserSettings* owner, long planeIndex);
    ~vxGrid() override;

    // One of the list calls (MajorGridLineColors ... MinorGridStripePatterns)
    // for direction 0 (radial) or 1 (tangential), the list at the argument
    // offset.
    void assignList(vxAssign& assign, short direction);
    // GridFrame after the plane.
    void assignFrame(vxAssign& assign);

    void setGridLocation(short location);
    // The location given, or "back" for a grid with parts and none given.
    short getGridLocation() const;
    short getGridShape() const { return gridShape; }
    void setGridShape(short shape) { gridShape = shape; }
    long getPlaneIndex() const { return planeIndex; }
    bool hasParts() const;

    // The parts, null until made; `direction` is 0 or 1.
    vxGridLines* getLines(short order, short direction) const;
    vxGridStripes* getStripes(short order, short direction) const;
    vxGridFrame* getFrame() const { return frame.get(); }

    // The grid's layer (type 50, subtype the plane, clipped to the
    // manager's current clip), with the parts in the grid's shape: stripes
    // under minor lines under major lines, the frame on top. Nothing for
    // location "none" or when no part draws.
    void setUpLayer(vxLayerManager* layerMng, const vxGridPlane& plane);

    void dump(short depth, std::ostream& out) const;

private:
    // The part of the order and direction, made on first use.
    vxGridLines* linesOf(short order, short direction);
    vxGridStripes* stripesOf(short order, short direction);
    vxGridItem* assignLines(vxAssign& assign, short order, short direction);
    vxGridItem* assignStripes(vxAssign& assign, short order, short direction);

    vxUserSettings* owner;
    long planeIndex;
    short gridLocation = kNone;
    bool hasLocation = false;
    short gridShape = 1;
    std::unique_ptr<vxGridLines> majorLines[2];
    std::unique_ptr<vxGridLines> minorLines[2];
    std::unique_ptr<vxGridStripes> majorStripes[2];
    std::unique_ptr<vxGridStripes> minorStripes[2];
    std::unique_ptr<vxGridFrame> frame;
};

}  // namespace Velarix
