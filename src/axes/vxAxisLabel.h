// The title of an axis: one or more lines of text beside the axis's tick
// labels, away from the plot. AxisLabelText gives the lines, AxisLabelStyle
// the font and angle, AxisLabelOptions the place and offsets.
//
// Places (the keypad codes of titles and legends): an axis under or over
// the plot takes the column of the code (left, centre, right) along the
// plot; an axis beside the plot takes its row (top, centre, bottom). Code 0
// takes the axis's default: centred. The title of a vertical axis reads
// upward unless its style gives an angle.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "axes/vxAxisGeometry.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxLabel;
class vxLayer;
class vxUserSettings;

class vxAxisLabel : public vxErrorHolder {
public:
    explicit vxAxisLabel(vxUserSettings* owner);
    ~vxAxisLabel() override;

    bool set(const vxAxisLabel* from);  // null resets

    // Each after the axis index.
    void assignText(vxAssign& assign);
    void assignStyle(vxAssign& assign);
    void assignOptions(vxAssign& assign);
    void assignBackground(vxAssign& assign);
    // No axis index comes first.
    void assignBackgroundOptions(vxAssign& assign);

    bool hasText() const { return !inputStrings.empty(); }
    // Readies the title for an axis: its default place and angle.
    void setUp(long axisIndex, bool horizontal);
    // Places the title beside `outer`, the room the axis's line and labels
    // take, along the plot's extent.
    void place(const float outer[4], const float plot[4], const vxAxisGeometry& geometry);
    bool getBounds(float bounds[4]) const;
    bool addTo(vxLayer& layer) const;

    short getLocation() const { return location; }
    const std::vector<std::wstring>& getInputStrings() const { return inputStrings; }
    vxLabel* getLabel() const { return label.get(); }

    void dump(short depth, std::ostream& out) const;

private:
    void resetFields();

    vxUserSettings* owner;
    float defaultOrientation = 0.0f;
    short defaultLocation = 0;
    short location = 0;
    float hOffset = 0.0f;
    float vOffset = 0.0f;
    float gap = 25.0f;
    bool useRelativeGaps = true;
    bool hasOwnOrientation = false;
    std::vector<std::wstring> inputStrings;
    std::unique_ptr<vxLabel> label;
};

}  // namespace Velarix
