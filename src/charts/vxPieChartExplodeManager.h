// The slices pulled out of a pie: along their middle (radial explodes) or
// up the page (depth explodes, for pies with depth).
//
// Each call names a percentage and the items it applies to, numbered from
// 1 as in the script, or one of the words "none" 0, "all" -1, "max" -2 (the
// largest slice) and "min" -3 (the smallest); a later call overrides an
// earlier one for the items it names. A radial explode moves a slice by the
// percentage of its radius, along its middle angle on the circle, or on
// the pie's ellipse when the offset is slanted; a depth explode lifts it by
// the percentage of the pie's depth.
#pragma once

#include <ostream>
#include <vector>

namespace Velarix {

class vxAssign;

class vxPieChartExplodeManager {
public:
    static constexpr float kDefaultRadialPercent = 20.0f;
    enum Word : long { kNone = 0, kAll = -1, kMax = -2, kMin = -3 };

    // PieChartExplodes and PieChartExplodeDepths: the percentage, then the
    // items.
    void assign(vxAssign& assign);
    // The slices of the pie: their values and the items they show.
    void setUp(const std::vector<double>& values, const std::vector<long>& items);

    bool isExploded(long slice) const;
    float getRadialPercent(long slice) const;
    float getDepthPercent(long slice) const;
    float getMaxRadialPercent() const;
    float getMaxDepthPercent() const;
    // The move of a slice of a pie whose half axes are rx, ry: (dx, dy) on
    // the page.
    void getRadialOffset(long slice, float midAngle, float rx, float ry, float offset[2]) const;
    bool doSlant() const { return mDoSlant; }
    void setDoSlant(bool value) { mDoSlant = value; }
    long getNumOfSlices() const { return mNumOfSlices; }

    void dump(short depth, std::ostream& out) const;

private:
    struct Request {
        bool radial;
        float percent;
        std::vector<long> items;
    };
    void apply(const Request& r, const std::vector<double>& values, const std::vector<long>& items);

    float mRelativeOffset = 0.01f;  // of the radius, per percent
    float mAbsoluteFactor = 1.0f;
    bool mDoSlant = false;
    std::vector<Request> requests;
    std::vector<long> mExplodeIndices;
    std::vector<short> mExplodeFlags;
    long mNumOfSlices = 0;
    std::vector<float> mRadialExplodes;
    std::vector<float> mDepthExplodes;
};

}  // namespace Velarix
