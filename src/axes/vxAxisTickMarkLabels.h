// The labels of one order (major or minor) of tick marks. Each label is a
// copy of the reference label, which holds the style the script gave
// (AxisMajorTickLabelStyle, ...Background, ...BackgroundOptions), with the
// value of its tick printed in its format, or a text of the script.
//
// Texts from AxisMajorTickLabelTexts / AxisMinorTickLabelTexts are formats
// when one of them holds a "|" ("|f1| kg", "Q|Q|"): they are then taken in
// turn, tick by tick. Texts without a bar are the labels themselves, taken
// in order; ticks past the last text get none.
//
// Visibility: from the start index on, every visibilityIntervals[k]-th
// value gets a label, k counting the labels and cycling the list. Minor
// labels count within each major interval, and start again at each major
// tick unless label shifting is off.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "axes/vxAxisGeometry.h"
#include "script/vxAssign.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAxisScaling;
class vxFormatDateTime;
class vxFormatNumber;
class vxFormatSettings;
class vxLabel;
class vxLayer;
class vxUserSettings;

class vxAxisTickMarkLabels : public vxErrorHolder {
public:
    vxAxisTickMarkLabels(vxUserSettings* owner, short order);
    ~vxAxisTickMarkLabels() override;

    bool set(const vxAxisTickMarkLabels* from);  // null resets

    // ---- script, each after the axis index ------------------------------
    // Font name, size, style, colour, alignment, angle, width and height
    // limits, ellipsis.
    void assignStyle(vxAssign& assign);
    // Location, offsets, visibility intervals, start index (one-based),
    // and for minor labels whether the count starts again at each major.
    void assignOptions(vxAssign& assign);
    void assignTexts(vxAssign& assign);
    void assignBackground(vxAssign& assign);
    // Margins, shape and its options; no axis index comes first.
    void assignBackgroundOptions(vxAssign& assign);

    // ---- set-up ---------------------------------------------------------
    // The values and intervals of the scale for this order.
    void storeScalingValues(const vxAxisScaling& scaling);
    // The places of the categories whose items stand between the marks, as
    // many as the major marks have room for.
    void storeCategoryValues(const vxAxisScaling& scaling, const std::vector<double>& categories);
    // The formats: the script's, each checked (2002 on date axes at
    // "/setUpFormats/2", 2001 elsewhere at "/setUpFormats/3"), or one
    // derived from the values and the axis.
    void setUpFormats(const vxAxisScaling& scaling, short axisType,
                      const vxFormatSettings* settings);
    void setUpVisibilityFlags();
    // Builds, places and measures the labels of the visible values, which
    // are the values stored before; `positions` are their places along the
    // axis.
    void setUpLabels(const vxAxisScaling& scaling, short axisType, const vxFormatSettings* settings,
                     const std::vector<float>& positions, const vxAxisGeometry& geometry);
    // The text of value i in its format ("" for a suppressed zero).
    std::wstring formatValue(long index, short axisType, const vxFormatSettings* settings);

    // The union of the labels' boxes; false when there is no label.
    bool getBounds(float bounds[4]) const;
    bool addTo(vxLayer& layer) const;

    bool isVisible() const { return visible; }
    void setVisible(bool value) { visible = value; }
    short getOrder() const { return order; }
    short getLocation() const { return location; }
    long getNumOfLabels() const { return static_cast<long>(labels.size()); }
    const vxLabel* getLabel(long index) const;
    vxLabel* getReferenceLabel() const { return referenceLabel.get(); }
    const std::vector<std::wstring>& getFormats() const { return formats; }
    const std::vector<double>& getValues() const { return valuesUC; }
    const std::vector<short>& getVisibilityFlags() const { return visibilityFlags; }
    // The gap between the line's marks and the labels, in device units.
    float getGapDC() const;
    float getMaxLabelWidth() const { return maxLabelWidth; }
    float getMaxLabelHeight() const { return maxLabelHeight; }
    // The sizes of the first and last label, width and height.
    void getOutermostLabelSize(short side, float size[2]) const;

    void dump(short depth, std::ostream& out) const;

private:
    void resetFields();
    bool textsAreFormats() const;
    std::wstring defaultFormat(const vxAxisScaling& scaling, short axisType,
                               const vxFormatSettings* settings) const;
    static bool readsAsZero(const std::wstring& text, bool isDate);
    std::wstring formatWith(long index, short axisType, vxFormatNumber& number,
                            vxFormatDateTime& date) const;
    // Puts the text in label `used`, made as a copy of the reference label
    // when there is none to take again.
    bool makeLabel(size_t used, const std::wstring& text, float position,
                   const vxAxisGeometry& geometry);
    // The reference label changed: labels made before are copies of
    // another style.
    void styleChanged() { ++styleVersion; }
    void placeLabel(vxLabel& label, float position, const vxAxisGeometry& geometry) const;
    void measureLabels();
    float gapOf(const vxLabel& label) const;

    vxUserSettings* owner;
    short order;
    bool visible = true;
    std::vector<std::wstring> origFormats;
    std::vector<std::wstring> formats;
    std::vector<double> valuesUC;
    std::vector<long> intervals;
    std::vector<long> visibilityIntervals;
    std::vector<short> visibilityFlags;
    bool mDoShiftLabels = true;
    short location = vxAxisGeometry::kOut;
    float hOffset = 0.0f;
    float vOffset = 0.0f;
    float gap = 25.0f;
    bool useRelativeGaps = true;
    long startIndex = 0;
    bool suppressZero = false;
    float maxLabelWidth = 0.0f;
    float maxLabelHeight = 0.0f;
    float outermostLabelWidths[2] = {};
    float outermostLabelHeights[2] = {};
    std::vector<std::unique_ptr<vxLabel>> labels;
    long styleVersion = 0;
    long labelsVersion = -1;
    std::unique_ptr<vxLabel> referenceLabel;
    // Where the texts came from, for a format found bad at set-up.
    vxAssign::CallPlace textsCall;
};

}  // namespace Velarix
