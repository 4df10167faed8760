// The axes of a chart. Script calls name their axis by the index that comes
// first ("all" 0, "x" 1, "y" 2, "z" 3): index 0 changes the default axis and
// every axis the script has named so far; another index changes that axis,
// made on first use as a copy of the default. At set-up the chart's axes are
// made from these: axis i (from 0) copies the named axis i + 1 or the
// default.
//
// The calls of the background options of titles and tick labels carry no
// axis index and change every axis.
#pragma once

#include <map>
#include <memory>
#include <ostream>
#include <vector>

#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;
class vxAxisItem;
class vxFormatSettings;
class vxLayerManager;
class vxUserSettings;

class vxAxisManager : public vxErrorHolder {
public:
    // The layer type of axes, and its sub-types for the axes drawn behind
    // and over the series.
    static constexpr long kLayerType = 40;
    static constexpr long kBackSubType = 1;
    static constexpr long kFrontSubType = 2;

    explicit vxAxisManager(vxUserSettings* owner);
    ~vxAxisManager() override;

    bool set(const vxAxisManager* from);  // null clears
    void assign(vxAssign& assign);

    // Makes the chart's axes from the script's; the first error stops.
    void setUpAxes(long count);
    // Scales a Cartesian chart's two axes for the plot: axis 0 along the
    // bottom, axis 1 along the left side, each with its span [min, max],
    // data type (1 category, 2 value, 3 date-time) and date and time flags.
    // Then the marks, the labels in the format settings, and the titles.
    struct AxisSpan {
        double min = 0.0;
        double max = 1.0;
        short dataType = 2;
        bool hasDate = false;
        bool hasTime = false;
        // Places of categories that stand between the marks, for labels.
        std::vector<double> categories;
        // How far from its value a category's label stands (bars of a
        // numeric interval axis fill the step before their value).
        double categoryShift = 0.0;
    };
    void setUpCartesian(const float plot[4], const std::vector<AxisSpan>& spans, short chartKind,
                        bool isBarOrAreaDateTime, const vxFormatSettings* settings);
    // The union of the axes' bounds: lines, marks, labels and titles; false
    // when no axis shows anything.
    bool getOuterBounds(float bounds[4]);
    // One layer with the axes drawn behind the series (front false) or
    // over them (front true), clipped to `clip`.
    void setUpLayers(vxLayerManager* layerMng, const float clip[4], bool front);

    bool isHorizontal() const { return horizontal; }
    void setIsHorizontal(bool value) { horizontal = value; }
    long getNumOfAxes() const { return static_cast<long>(axes.size()); }
    long getNumOfInputAxes() const { return static_cast<long>(inputAxes.size()); }
    vxAxisItem* getAxis(long index) const;
    vxAxisItem* getDefaultAxis() const { return defaultAxis.get(); }
    // The axis the script named by `index` (1 for "x"), null before.
    vxAxisItem* getInputAxis(long index) const;
    const std::vector<long>& getScalingAxisIndices() const { return scalingAxisIndices; }
    // One -1: every axis; one 0: none; otherwise sorted, each once.
    void setScalingAxisIndices(const std::vector<long>& indices);

    void dump(short depth, std::ostream& out) const;

private:
    vxAxisItem* attachInputAxisItem(long index);
    void assignTo(vxAxisItem& axis, vxAssign& assign, long offset);
    float crossing(long axis, const float plot[4]) const;

    vxUserSettings* owner;
    bool horizontal = false;
    float centerPointDC[2] = {};
    float ovalRadiusDC[2] = {};
    float innerRadiusPercent = 0.0f;
    float startAngle = 0.0f;
    float arcAngle = 360.0f;
    std::vector<long> scalingAxisIndices;
    std::vector<std::unique_ptr<vxAxisItem>> axes;
    std::map<long, std::unique_ptr<vxAxisItem>> inputAxes;
    std::unique_ptr<vxAxisItem> defaultAxis;
    float outerBounds[4] = {};
    bool hasOuterBounds = false;
    bool doRecalcBounds = true;
};

}  // namespace Velarix
