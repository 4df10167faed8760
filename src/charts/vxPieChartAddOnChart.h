// A small second chart beside a pie for its small slices: each value at or
// below the threshold leaves the pie, which shows one slice for all of
// them (in the look of the item after the last), and the add-on shows them
// apart, as a column of stacked boxes (type 1) or as a small pie (type 2),
// at the left (1), right (2, the default), top (3) or bottom (4) of the
// frame, in a quarter of its width or height.
//
// PieChartAddOn: on or off, the threshold, the location, the type.
#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <vector>

#include "charts/vxBaseChart.h"

namespace Velarix {

class vxAssign;
class vxGObjectOLD;

class vxPieChartAddOnChart {
public:
    enum Location : short { kLeft = 1, kRight = 2, kTop = 3, kBottom = 4 };
    enum Type : short { kColumn = 1, kPie = 2 };
    using Shapes = std::vector<std::unique_ptr<vxGObjectOLD>>;

    void assign(vxAssign& assign);
    // Takes the small values out of the slices (`values`, `items`) and adds
    // their sum as one slice of item `combinedItem`.
    void combine(std::vector<double>& values, std::vector<long>& items, double total,
                 long combinedItem);
    bool isShown() const { return showAddOnChart && numOfAddOnItems > 0; }
    // Cuts the add-on's room from the frame of the pie.
    void cutFrame(float frame[4]);
    // The add-on's shapes, each item in the look `lookOf` gives; false when
    // memory ran out.
    bool addShapes(Shapes& out, const std::function<vxBaseChart::Look(long)>& lookOf) const;

    long getNumOfAddOnItems() const { return numOfAddOnItems; }
    const std::vector<double>& getValues() const { return values; }
    const std::vector<long>& getIndices() const { return indices; }
    const float* getAddOnFrame() const { return addOnFrame; }
    void dump(short depth, std::ostream& out) const;

private:
    bool addColumn(Shapes& out, const std::function<vxBaseChart::Look(long)>& lookOf) const;
    bool addPie(Shapes& out, const std::function<vxBaseChart::Look(long)>& lookOf) const;

    bool showAddOnChart = false;
    float addOnChartThreshold = 0.0f;
    short addOnChartLocation = kRight;
    short addOnChartType = kColumn;
    long numOfAddOnItems = 0;
    double addOnTotal = 0.0;
    std::vector<double> values;
    std::vector<long> indices;
    float addOnFrame[4] = {};
};

}  // namespace Velarix
