// One slice of a pie: a wedge or a piece of a doughnut's ring, flat or with
// depth. The slice is given its ellipse (centre and half axes of the top
// face), the share of the radius its hole takes, its depth and its arc in
// degrees, counter-clockwise from the positive x axis; y grows downward,
// so a point of angle a lies at (cx + rx cos a, cy - ry sin a).
//
// The slice builds its shapes in the look of its wedge, in painting order,
// into a list; the chart puts them on its layer in the order of its slices.
// Arcs are sampled at most kArcStep degrees apart, so that they stay smooth
// at any size the page gives a pie.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "charts/vxBaseChart.h"

namespace Velarix {

class vxGObjectOLD;
class vxPath2DOLD;

class vxPieChartItem {
public:
    // The ellipse of the top face and the depth of the solid below it.
    struct Frame {
        float cx = 0.0f, cy = 0.0f;
        float rx = 0.0f, ry = 0.0f;
        float innerFraction = 0.0f;  // 0 for a wedge
        float depth = 0.0f;          // 0 for a flat slice
    };
    // How the border runs: each face has its own (kEveryFace), or only
    // the free radial edges get one (kStartEdge, kEndEdge, kBothEdges).
    enum OutlineType : short { kStartEdge = 1, kEndEdge = 2, kBothEdges = 3, kEveryFace = 4 };
    static constexpr float kArcStep = 2.0f;
    using Shapes = std::vector<std::unique_ptr<vxGObjectOLD>>;

    virtual ~vxPieChartItem();

    // Places the slice and samples its arcs; false when memory ran out.
    bool setUp(const Frame& frame, float startAngle, float arcAngle);
    // Appends the slice's shapes in its look, in painting order; false when
    // memory ran out.
    virtual bool addShapes(Shapes& out, const vxBaseChart::Look& look) const = 0;
    // The outline of the whole slice as it covers the page, in no look.
    virtual std::unique_ptr<vxPath2DOLD> makeSilhouette() const = 0;

    float getStartAngle() const { return startAngle; }
    float getArcAngle() const { return arcAngle; }
    float getMidAngle() const;
    const Frame& getFrame() const { return frame; }
    short getArcSegmentType() const { return arcSegmentType; }
    short getOutlineType() const { return outlineType; }
    void setOutlineType(short value) { outlineType = value; }

    // The quadrant code of an arc: the quadrant (1 to 4) of its start
    // times 10 plus that of its end, counter-clockwise; an arc that comes
    // back into the quadrant it started in (wraps around) has 100 times
    // that quadrant added (14, 21, ... 442).
    static short quadrantCode(float startAngle, float arcAngle);
    // Points of the ellipse (cx, cy, rx, ry) from `from` over `arc` degrees,
    // both ends included, at most kArcStep degrees apart.
    static void sampleArc(float cx, float cy, float rx, float ry, float from, float arc,
                          std::vector<float>& xs, std::vector<float>& ys);

    virtual void dump(short depth, std::ostream& out) const;

protected:
    vxPieChartItem() = default;
    // Samples the slice's arcs after it was placed.
    virtual void reserveArcPoints() = 0;
    // The arc as counter-clockwise: its start and its positive extent.
    void getCounterClockwiseArc(float& from, float& extent) const;
    bool isFullCircle() const;

    Frame frame;
    float arcAngle = 0.0f;
    float startAngle = 0.0f;
    float widthDC = 0.0f;
    float heightDC = 0.0f;
    short arcSegmentType = 0;
    short outlineType = kEveryFace;
};

}  // namespace Velarix
