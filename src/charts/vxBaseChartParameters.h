// The static description of a chart type: its coordinate system, how many
// series one data set takes, where items stand on the interval axis, the
// angles of polar charts, the reference value of bars and areas, and the
// seven appearance flags the chart function gave.
#pragma once

#include <ostream>

namespace Velarix {

class vxAssign;

class vxBaseChartParameters {
public:
    // Appearance flags in the order of their bits (1, 2, 4, ... 64).
    enum Flag : int {
        kShadow = 0,
        kLabel,
        kSymbol,
        kHorizontal,
        kStacked,
        kProportional,
        kOval,
        kNumOfFlags
    };
    // The largest-negative double: a reference value that was never set.
    static constexpr double kNoReferenceValue = -1.7976931348623157e+308;

    vxBaseChartParameters() { setDefaults(); }

    void setDefaults();
    void copyFrom(const vxBaseChartParameters* other);  // null: the defaults
    void dump(short depth, std::ostream& out) const;

    // Reads the chart function's first argument, the sum of the flag bits,
    // and moves the assign's argument cursor past it. "proportional" turns
    // "stacked" on.
    void assignFlags(vxAssign& assign);
    // Clears each flag whose entry in the chart class's mask is false.
    void maskFlags(const bool mask[kNumOfFlags]);

    short getChartType() const { return chartType; }
    void setChartType(short value) { chartType = value; }
    short getCoordinateSystem() const { return coordinateSystem; }
    void setCoordinateSystem(short value) { coordinateSystem = value; }
    long getNumOfDimensions() const { return numOfDimensions; }
    void setNumOfDimensions(long value) { numOfDimensions = value; }
    long getNumOfIntervalAxes() const { return numOfIntervalAxes; }
    void setNumOfIntervalAxes(long value) { numOfIntervalAxes = value; }
    long getMinNumOfDataSeries() const { return minNumOfDataSeries; }
    void setMinNumOfDataSeries(long value) { minNumOfDataSeries = value; }
    long getNumOfSubValues() const { return numOfSubValues; }
    void setNumOfSubValues(long value) { numOfSubValues = value; }
    bool doShiftIntervalValues() const { return shiftIntervalValues; }
    void setShiftIntervalValues(bool value) { shiftIntervalValues = value; }
    bool doShowOneSeriesPerInterval() const { return showOneSeriesPerInterval; }
    void setShowOneSeriesPerInterval(bool value) { showOneSeriesPerInterval = value; }
    float getStartAngle() const { return startAngle; }
    // Stored reduced into [0, 360).
    void setStartAngle(float degrees);
    float getArcAngle() const { return arcAngle; }
    void setArcAngle(float degrees) { arcAngle = degrees; }
    float getInnerRadiusPercent() const { return innerRadiusPercent; }
    void setInnerRadiusPercent(float value) { innerRadiusPercent = value < 0.0f ? 0.0f : value; }
    bool isWedge() const { return wedge; }
    void setWedge(bool value) { wedge = value; }
    bool hasReferenceValue() const { return referenceValueShown; }
    void setHasReferenceValue(bool value) { referenceValueShown = value; }
    double getReferenceValue() const { return referenceValue; }
    void setReferenceValue(double value) { referenceValue = value; }
    bool doSplitStackedValues() const { return splitStackedValues; }
    void setSplitStackedValues(bool value) { splitStackedValues = value; }

    bool isPartArc() const { return arcAngle < 360.0f; }
    bool hasInnerRadius() const { return innerRadiusPercent > 0.001f; }
    // A reference value is shown and was set.
    bool isReferenceValueSet() const;

    bool getFlag(Flag flag) const { return flags[flag]; }
    void setFlag(Flag flag, bool value) { flags[flag] = value; }
    bool doShowShadows() const { return flags[kShadow]; }
    bool doShowLabels() const { return flags[kLabel]; }
    bool doShowSymbols() const { return flags[kSymbol]; }
    bool isHorizontal() const { return flags[kHorizontal]; }
    bool isStacked() const { return flags[kStacked]; }
    bool isProportional() const { return flags[kProportional]; }
    bool isOval() const { return flags[kOval]; }

    // The series a data set holds before its value series: one interval
    // series (the item positions, or the angles of a radar) for a chart
    // whose items have one numeric dimension, none otherwise.
    long getNumOfIntervalSeries() const { return numOfDimensions == 1 ? 1 : 0; }

private:
    short chartType;
    short coordinateSystem;
    long numOfDimensions;
    long numOfIntervalAxes;
    long minNumOfDataSeries;
    long numOfSubValues;
    bool shiftIntervalValues;
    bool showOneSeriesPerInterval;
    float startAngle;
    float arcAngle;
    float innerRadiusPercent;
    bool wedge;
    bool referenceValueShown;
    double referenceValue;
    bool splitStackedValues;
    bool flags[kNumOfFlags];
};

}  // namespace Velarix
