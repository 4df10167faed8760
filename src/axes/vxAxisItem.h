// One axis of a chart: its line, its scale, the tick marks and tick labels
// of both orders, and its title. The chart scales it for a frame
// (setUpHScaling for an axis along the bottom, setUpVScaling for one along
// the left side); the item then puts its marks and labels beside the line
// and hands everything to a layer.
//
// AxisOptions gives the place of the axis, "none" (not drawn), "back" (the
// default: drawn behind the series) or "front" (over them), and whether the
// axis moves to the zero of the other axis.
#pragma once

#include <memory>
#include <ostream>
#include <vector>

#include "axes/vxAxisGeometry.h"
#include "script/vxAssign.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAxisLabel;
class vxAxisScaling;
class vxAxisTickMarkLabels;
class vxAxisTickMarks;
class vxFormatSettings;
class vxLayer;
class vxLine2DOLD;
class vxUserSettings;

class vxAxisItem : public vxErrorHolder {
public:
    enum Location : short { kNone = 0, kBack = 1, kFront = 2 };
    // The direction of an axis along the bottom, as a float.
    static constexpr float kHorizontalPhi = 1.5707963f;

    vxAxisItem(vxUserSettings* owner, long axisIndex);
    ~vxAxisItem() override;

    // Takes every field and part of `from`; null resets.
    bool set(const vxAxisItem* from);
    // A call of the Axis... group, Scaling or ScalingOptions, whose axis
    // index the manager has read and stepped over.
    void assign(vxAssign& assign);

    // Scales the axis for the frame (left, top, right, bottom) and the data
    // span [min, max]: across for an axis along the bottom, upward for one
    // along the left side. Error 2100 at "/setUpHScaling/1" or
    // "/setUpVScaling/1" for a frame under one unit long.
    void setUpHScaling(const float frame[4], double min, double max, bool countAll, bool hasDate,
                       bool hasTime, short chartKind, bool isBarOrAreaDateTime = false);
    void setUpVScaling(const float frame[4], double min, double max, bool countAll, bool hasDate,
                       bool hasTime, short chartKind, bool isBarOrAreaDateTime = false);
    // The line across the frame at `across` (its y for an axis along the
    // bottom, its x for one along the side), then the marks.
    void setUpTickMarks(const float plot[4], float across);
    void setUpLabels(const vxFormatSettings* settings);
    // Places of categories whose items stand between the marks; their
    // labels stand at them instead of at the marks. Empty: at the marks.
    void setCategoryValues(std::vector<double> values, double shift = 0.0) {
        categoryValues = std::move(values);
        categoryShift = shift;
    }
    void placeTitle(const float plot[4]);
    // Line, marks, labels and title.
    bool getBounds(float bounds[4]) const;
    bool addTo(vxLayer& layer) const;

    // The two ends of the line: x1, y1, x2, y2.
    void getAxisEnds(float ends[4]) const;
    // Where major tick i meets the line; false out of range.
    bool getTickPoint(long index, float point[2]) const;
    // Where the ticks of an order (1 major, 2 minor) stand along the line,
    // whether the axis shows its marks or not: x of an axis along the
    // bottom, y of one along the side.
    void getTickPositions(short order, std::vector<float>& positions) const;
    long getNumOfMajorTicks() const;
    long getNumOfMinorTicks() const;
    float toDC(double value) const;

    long getAxisIndex() const { return axisIndex; }
    short getAxisType() const { return axisType; }
    void setAxisType(short value) { axisType = value; }
    float getPhi() const { return phi; }
    void setPhi(float value) { phi = value; }
    bool isHorizontal() const { return geometry.horizontal; }
    short getAxisLocation() const { return axisLocation; }
    bool getDoRelocateAxis() const { return doRelocateAxis; }
    bool isShown() const { return axisLocation != kNone; }
    const vxAxisGeometry& getGeometry() const { return geometry; }

    vxAxisScaling* getScaling() const { return scaling.get(); }
    vxLine2DOLD* getAxisLine() const { return axisLine.get(); }
    vxAxisTickMarks* getTickMarks(short order) const;
    vxAxisTickMarkLabels* getTickMarkLabels(short order) const;
    vxAxisLabel* getAxisLabel() const { return axisLabel.get(); }

    void dump(short depth, std::ostream& out) const;

private:
    bool createParts();
    void resetFields();
    void assignOptions(vxAssign& assign);
    void assignLine(vxAssign& assign);
    vxErrorHolder* assignTickMarkLabels(vxAssign& assign);
    void setUpScaling(const float frame[4], bool horizontal, double min, double max, bool countAll,
                      bool hasDate, bool hasTime, short chartKind, bool isBarOrAreaDateTime);
    long maxNumOfMajorIntervals(float length, double min, double max, bool countAll) const;
    void tickPositions(const std::vector<double>& values, std::vector<float>& out) const;
    void rowBeyondMinorLabels(vxAxisGeometry& place) const;
    void percentPositions(const std::vector<double>& values, std::vector<float>& out) const;
    bool takePartError(const vxErrorHolder* part);
    // Takes the scale's error, placed at the Scaling call that set the
    // scale up.
    bool takeScalingError();

    vxUserSettings* owner;
    long axisIndex;
    short axisType = 2;  // a value axis
    bool doRelocateAxis = false;
    short axisLocation = kBack;
    short mirrorConstant = 0;
    float phi = 0.0f;
    vxAxisGeometry geometry;
    std::unique_ptr<vxLine2DOLD> axisLine;
    std::unique_ptr<vxAxisScaling> scaling;
    std::unique_ptr<vxAxisTickMarks> majorTicks;
    std::unique_ptr<vxAxisTickMarks> minorTicks;
    std::unique_ptr<vxAxisTickMarkLabels> majorLabels;
    std::unique_ptr<vxAxisTickMarkLabels> minorLabels;
    std::unique_ptr<vxAxisLabel> axisLabel;
    vxAssign::CallPlace scalingCall;
    std::vector<double> categoryValues;
    double categoryShift = 0.0;
};

}  // namespace Velarix
