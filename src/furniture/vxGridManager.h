// The grids of a chart: one per plane, 1 (xy), 2 (xz) and 3 (yz), made
// together with the manager.
//
// The list calls name two axes ("all" 0, "x" 1, "y" 2, "z" 3): the lines
// or stripes that run along the first, placed at the ticks of the second.
// So MajorGridLineColors(x; y; ...) colours the lines across the y axis of
// the xy grid, and ("y"; "x") those across the x axis; "all" stands for
// every axis that makes a pair with the other, and one axis named twice is
// error 1300. GridLocation and GridFrame name planes ("all" 0, "xy" 1,
// "xz" 2, "yz" 3).
//
// The planes follow the chart's first two axes, the x axis along the
// bottom and the y axis up the side. On a chart with depth, xy is the back
// wall, the plot moved by the depth; xz the floor, from the x axis back;
// and yz the side wall, from the y axis back. A flat chart has the xy
// plane only.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "furniture/vxGridPlane.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxAxisItem;
class vxChart;
class vxGrid;
class vxLayerManager;
class vxUserSettings;

class vxGridManager : public vxErrorHolder {
public:
    // A grid and a direction (0 along the first axis of the plane, 1 along
    // the second) that a list goes to.
    struct Target {
        long plane;
        short direction;
    };

    // Makes the three grids; `chart` is borrowed and may be null.
    vxGridManager(vxUserSettings* owner, vxChart* chart);
    ~vxGridManager() override;

    // The three grids anew; error 5000 at "/createGrids/1".
    bool createGrids();
    void assign(vxAssign& assign);

    // The planes of the chart as its axes stand now.
    void setUp();
    // The layers of the grids, in plane order: with `location` 0 of every
    // grid, otherwise of those at that location ("partial" counts as back).
    void addToLayers(vxLayerManager* layerMng, short location);

    long getNumOfGrids() const { return long(grids.size()); }
    // The grid of plane 1, 2 or 3; null for others.
    vxGrid* getGrid(long planeIndex) const;
    // The plane set up for a grid; null when the chart has none there.
    const vxGridPlane* getPlane(long planeIndex) const;

    // The targets of a list for the axes (a, b); none for one axis twice.
    static std::vector<Target> selectTargets(short a, short b);
    // The planes a plane argument names.
    static std::vector<long> selectPlanes(short plane);

    void dump(short depth, std::ostream& out) const;

private:
    void assignList(vxAssign& assign);
    void assignPlanes(vxAssign& assign);
    // vxGridManagerPlanes.cpp
    bool setUpAxis(const vxAxisItem& item, vxGridAxis& axis) const;
    void setUpPlanes(const vxGridAxis& x, const vxGridAxis& y, const float crossing[2],
                     const float depth[2]);
    bool getDepth(float depth[2]) const;

    vxUserSettings* owner;
    vxChart* chart;
    std::vector<std::unique_ptr<vxGrid>> grids;
    std::vector<vxGridPlane> planes;
    std::vector<bool> hasPlane;
};

}  // namespace Velarix
