// The stripes of one order and direction on a plane: fills between ticks
// of the axis across them. Major stripes pair the ticks, 0 with 1, 2 with
// 3 and so on; minor stripes cut each major interval at its minor ticks
// and fill every other piece of it, from the first (an axis without minor
// ticks has none). Stripe k takes entry k
// of the colours and of the patterns, each list cycling; by default a
// stripe is grey, 136 for major stripes and 221 for minor ones.
//
// On a polar plane a stripe between two spokes is a wedge, one between
// two rings a band. Stripes of a Cartesian plane along x and y have their
// edges between pixels.
#pragma once

#include <memory>
#include <vector>

#include "furniture/vxGridItem.h"

namespace Velarix {

class vxBasicPaint;

class vxGridStripes : public vxGridItem {
public:
    // The stretch of an axis between two of its ticks.
    struct Span {
        float from;
        float to;
    };

    vxGridStripes(vxUserSettings* owner, short planeIndex, short direction, short order);
    ~vxGridStripes() override;

    void setDefaults() override;
    // The lists of MajorGridStripe... and MinorGridStripe... from the
    // argument offset on; an empty list restores the default.
    bool assignColors(vxAssign& assign);
    bool assignPatterns(vxAssign& assign);

    long getNumOfFillPaints() const { return long(fillPaints.size()); }
    const std::vector<short>& getFillPatterns() const { return fillPatterns; }
    // The paint of stripe `index`.
    std::unique_ptr<vxBasicPaint> getFillPaint(long index) const;

    // The stretches that stripes of `order` fill, in the order of the
    // ticks; a minor tick outside the major ones makes no stripe.
    static std::vector<Span> stripeSpans(const std::vector<float>& major,
                                         const std::vector<float>& minor, short order);

    void dump(short depth, std::ostream& out) const override;

protected:
    bool setUpRects(vxLayer& layer, const vxGridRectPlane& plane) override;
    // vxGridStripesShapes.cpp
    bool setUpOvals(vxLayer& layer, const vxGridPolarPlane& plane) override;
    bool setUpPolygons(vxLayer& layer, const vxGridPolarPlane& plane) override;

    std::array<long, 3> lookKey(long index) const override;
    bool applyLook(vxGObjectOLD& shape, long index) override;

private:
    static std::vector<Span> minorSpans(const std::vector<float>& major,
                                        const std::vector<float>& minor);
    bool addPolar(vxLayer& layer, const vxGridPolarPlane& plane, bool polygonal);

    std::vector<std::unique_ptr<vxBasicPaint>> fillPaints;
    std::vector<short> fillPatterns;
};

}  // namespace Velarix
