// The tick marks of one order (major or minor) of an axis: short strokes
// across the axis line at the scale's values. A mark runs from the axis line
// by its length: "in" toward the plot, "out" away from it, "center" half each
// way. The marks draw as one line array in the style AxisMajorTicks or
// AxisMinorTicks gave.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "axes/vxAxisGeometry.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxLayer;
class vxLineArray2DOLD;
class vxUserSettings;

class vxAxisTickMarks : public vxErrorHolder {
public:
    enum Order : short { kMajor = 1, kMinor = 2 };

    vxAxisTickMarks(vxUserSettings* owner, short order);
    ~vxAxisTickMarks() override;

    // Resets, then takes every field and the style of `from`; null resets.
    bool set(const vxAxisTickMarks* from);
    // AxisMajorTicks / AxisMinorTicks after the axis index: the length, the
    // line width, colour and pattern, the location.
    void assign(vxAssign& assign);

    // One mark per position along the axis. `positions` are device
    // coordinates along the axis; `across` is where the axis line stands
    // across it, and `inward` the sign (+1 or -1) of the direction toward
    // the plot. A horizontal axis takes x positions, a vertical one y.
    bool setUp(const std::vector<float>& positions, float across, float inward, bool horizontal);
    // How far the marks reach beyond the axis line, away from the plot.
    float getOutwardExtent() const;
    // The rectangle the marks cover; false when there are none.
    bool getBounds(float bounds[4]) const;
    // Hands a copy of the marks to the layer when there are any to see.
    bool addTo(vxLayer& layer) const;

    bool isVisible() const;
    short getOrder() const { return order; }
    short getLocation() const { return location; }
    void setLocation(short value) { location = value; }
    float getLength() const { return length; }
    void setLength(float value) { length = value; }
    long getNumOfTicks() const;
    const vxLineArray2DOLD* getLines() const { return lines.get(); }

    void dump(short depth, std::ostream& out) const;

private:
    void resetFields();

    vxUserSettings* owner;
    short order;
    short location = vxAxisGeometry::kOut;
    float length = 0.0f;
    std::unique_ptr<vxLineArray2DOLD> lines;
};

}  // namespace Velarix
