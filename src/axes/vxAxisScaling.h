// The scale of one axis: from the span of the chart's data and what the
// script said in Scaling and ScalingOptions it settles the axis limits
// (minUC, maxUC), the major and minor tick values in user coordinates, and
// the mapping from user coordinates to the device coordinates of the axis.
//
// Kinds of scale (the keyword of Scaling, the type, the mapped quantity t):
//   "linear" 1 v;  "percent" 2 the percent value of v;  "log" 3 ln v / ln base;
//   "power" 4 base^v (exponential);  "prob" 5 v^power;  "1/x" 6 100 P(v), P the
//   standard normal distribution function.
// The keywords and the set-ups are offset in this way on purpose.
//
// Date-time axes (axis data type 3) work in plain days: the data limits,
// the computed limits and the tick values are plain days, while the values
// given to toDC, isInScale and removeTicksOutside, and the results of toUC,
// are in the stored form (the sign of a value with a date and a time is
// ignored). Predefined limits, read in the stored form, are turned into
// plain days by setUp. Their ticks fall on calendar units, the interval
// kinds of majorScalingBase and minorScalingBase: -2 year, -3 quarter,
// -4 month, -5 week, -6 day, -7 hour, -8 to -13 minutes of 30, 20, 15, 10,
// 5 and 1, -14 to -19 seconds of 30, 20, 15, 10, 5 and 1; -1 is an even
// division and 1 no calendar kind. Dates that are all equal get a day on
// each side, a value with a time an hour.
//
// Faults raise error 2100 and stop the set-up; limits and tick lists then
// hold whatever they held. Besides the locations of the rules themselves
// (verifyScalingLimits/1 to 17, calculateIntervalLength/1,
// calculateScalingFactor/1, verifyDateTimeScales/3 for a minor kind the
// major doesn't allow, setUpMajorDateTimeScalingValues/N for more than 5000
// ticks, N being 1 for years to 18 for seconds and 19 for even parts) these
// guard against input that would loop, overflow or give NaN:
//   verifyScalingLimits/18   a limit, base or power that is NaN or infinite,
//                            or a span beyond the largest double
//   verifyScalingLimits/19   a logarithmic scale of base 1
//   verifyScalingLimits/20   data limits in the wrong order, no limit given
//   calculateIntervalLength/2  maxNumOfMajorIntervals under 1 or over
//                            kMaxNumOfIntervals, or a count over it
//   calculateIntervalLength/3  an interval that isn't a positive number
//   countMajorIntervals/1    more than kMaxNumOfIntervals major intervals
//   setUpMinorValues/1       more than kMaxNumOfMinorValues minor values
//   setUpLogarithmicScaling/1  more than kMaxNumOfIntervals powers of the base
//   setUpPowerScaling/1      root-space limits that aren't numbers in order
//                            (negative data under an even power, ...)
//   setUpProbabilityScaling/1  a negative count
//   setUp/1                  a type outside 1 to 6
//   setUpDateTimeScaling/1   dates before the calendar or after year 32767
//   verifyDateTimeScales/1   a date kind (year to day) on times alone
//   verifyDateTimeScales/2   a count of major intervals with a minor kind
//   setUpMinorDateTimeScalingValues/1  more than kMaxNumOfMinorValues minors
#pragma once

#include <limits>
#include <ostream>
#include <vector>

#include "axes/vxDecimalGrid.h"
#include "settings/vxErrorHolder.h"

namespace Velarix {

class vxAssign;

class vxAxisScaling : public vxErrorHolder {
public:
    enum Type : short {
        kLinear = 1,
        kPercent = 2,
        kLogarithmic = 3,
        kExponential = 4,
        kPower = 5,
        kProbability = 6
    };
    // Axis data types.
    static constexpr short kCategoryAxis = 1;
    static constexpr short kValueAxis = 2;
    static constexpr short kDateTimeAxis = 3;
    // The chart kind whose predefined limits are whole numbers.
    static constexpr short kBarChart2DKind = 10;
    // Bounds that keep bad input from making endless tick lists.
    static constexpr long kMaxNumOfIntervals = 10000;
    static constexpr long kMaxNumOfMinorValues = 10000;
    // The fixed tolerance of limits and positions.
    static constexpr double kFixedTolerance = 1e-10;
    // A tick moves to its decimal value by no more than this part of its
    // interval: farther, the values are beyond decimal digits and stay.
    static constexpr double kMaxSnapShift = 1e-6;

    vxAxisScaling();
    ~vxAxisScaling() override;

    virtual void setUp(short chartKind, short axisDataType);
    virtual void init();
    virtual bool set(const vxAxisScaling* other);  // null: init()
    // Scaling, from the scale type on: type, min, max, major count, minor
    // count, base or power, equidistant flag.
    virtual void assign(vxAssign& a);
    // ScalingOptions, from the first flag on: reverse, integers only,
    // suppress the zero label.
    virtual void assignOptions(vxAssign& a);
    virtual float toDC(double value) const;
    virtual void toDC(const std::vector<double>& values, std::vector<float>& out) const;
    // The value that toDC maps to dc. A probability scale answers within
    // -6 to 6, where its distribution function is flat.
    double toUC(float dc) const;
    virtual bool isInScale(double value) const;
    virtual void calculateScalingFactor();
    virtual void toggleReverseScaling();
    virtual void removeTicksOutside(double lowUC, double highUC);

    // The percent value of a value on a percent scale, by the data span.
    double toPercentValue(double value) const;
    // The standard normal distribution function, 0 below -6 and 1 above 6,
    // and its inverse within -6 to 6.
    static double normalDistribution(double x);
    static double inverseNormalDistribution(double p);

    const std::vector<double>& getMajorValues() const { return majorValuesUC; }
    const std::vector<double>& getMinorValues() const { return minorValuesUC; }
    double getMajorValue(long i) const;  // 0 out of range
    double getMinorValue(long i) const;
    long getNumOfMajorValues() const { return long(majorValuesUC.size()); }
    long getNumOfMinorValues() const { return long(minorValuesUC.size()); }
    bool isLinear() const { return type == kLinear; }
    bool isPercent() const { return type == kPercent; }
    bool isLogarithmic() const { return type == kLogarithmic; }
    bool isExponential() const { return type == kExponential; }
    bool isPower() const { return type == kPower; }
    bool isProbability() const { return type == kProbability; }
    bool hasMajorValues() const { return !majorValuesUC.empty(); }
    bool hasMinorValues() const { return !minorValuesUC.empty(); }
    bool hasMajorDateTimeBase() const { return majorScalingBase != 1; }
    void dump(short depth, std::ostream& out) const;

    short getType() const { return type; }
    void setType(short value) { type = value; }
    double getBase() const { return base; }
    void setBase(double value) { base = value; }
    double getPower() const { return power; }
    void setPower(double value) { power = value; }
    long getMaxNumOfMajorIntervals() const { return maxNumOfMajorIntervals; }
    void setMaxNumOfMajorIntervals(long value) { maxNumOfMajorIntervals = value; }
    long getMaxNumOfMinorIntervals() const { return maxNumOfMinorIntervals; }
    void setMaxNumOfMinorIntervals(long value) { maxNumOfMinorIntervals = value; }
    long getNumOfMajorIntervals() const { return numOfMajorIntervals; }
    void setNumOfMajorIntervals(long value) { numOfMajorIntervals = value; }
    long getNumOfMinorIntervals() const { return numOfMinorIntervals; }
    void setNumOfMinorIntervals(long value) { numOfMinorIntervals = value; }
    double getMinDataUC() const { return minDataUC; }
    void setMinDataUC(double value) { minDataUC = value; }
    double getMaxDataUC() const { return maxDataUC; }
    void setMaxDataUC(double value) { maxDataUC = value; }
    double getMinDataExtFactor() const { return minDataExtFactor; }
    void setMinDataExtFactor(double value) { minDataExtFactor = value; }
    double getMaxDataExtFactor() const { return maxDataExtFactor; }
    void setMaxDataExtFactor(double value) { maxDataExtFactor = value; }
    double getMinUC() const { return minUC; }
    void setMinUC(double value) { minUC = value; }
    double getMaxUC() const { return maxUC; }
    void setMaxUC(double value) { maxUC = value; }
    float getMinDC() const { return minDC; }
    void setMinDC(float value) { minDC = value; }
    float getMaxDC() const { return maxDC; }
    void setMaxDC(float value) { maxDC = value; }
    bool getHasPredefinedMinUC() const { return hasPredefinedMinUC; }
    void setHasPredefinedMinUC(bool value) { hasPredefinedMinUC = value; }
    bool getHasPredefinedMaxUC() const { return hasPredefinedMaxUC; }
    void setHasPredefinedMaxUC(bool value) { hasPredefinedMaxUC = value; }
    bool getDoReverseScaling() const { return doReverseScaling; }
    void setDoReverseScaling(bool value) { doReverseScaling = value; }
    bool getUseIntegersOnly() const { return useIntegersOnly; }
    void setUseIntegersOnly(bool value) { useIntegersOnly = value; }
    bool getDoSuppressZeroLabel() const { return doSuppressZeroLabel; }
    void setDoSuppressZeroLabel(bool value) { doSuppressZeroLabel = value; }
    bool getUseEquidistantLogScaling() const { return useEquidistantLogScaling; }
    void setUseEquidistantLogScaling(bool value) { useEquidistantLogScaling = value; }
    double getFactor() const { return factor; }
    void setFactor(double value) { factor = value; }
    short getAxisDataType() const { return axisDataType; }
    void setAxisDataType(short value) { axisDataType = value; }
    short getMajorScalingBase() const { return majorScalingBase; }
    void setMajorScalingBase(short value) { majorScalingBase = value; }
    short getMinorScalingBase() const { return minorScalingBase; }
    void setMinorScalingBase(short value) { minorScalingBase = value; }
    bool getHasDateComponents() const { return hasDateComponents; }
    void setHasDateComponents(bool value) { hasDateComponents = value; }
    bool getHasTimeComponents() const { return hasTimeComponents; }
    void setHasTimeComponents(bool value) { hasTimeComponents = value; }
    long getYearIncrement() const { return yearIncrement; }
    void setYearIncrement(long value) { yearIncrement = value; }
    const std::vector<long>& getNumOfMinorDateTimeIntervals() const {
        return numOfMinorDateTimeIntervals;
    }
    void setNumOfMinorDateTimeIntervals(const std::vector<long>& value) {
        numOfMinorDateTimeIntervals = value;
    }
    bool getIsBarOrAreaDateTimeChart() const { return isBarOrAreaDateTimeChart; }
    void setIsBarOrAreaDateTimeChart(bool value) { isBarOrAreaDateTimeChart = value; }
    long getOrigNumOfMajorIntervals() const { return origNumOfMajorIntervals; }
    void setOrigNumOfMajorIntervals(long value) { origNumOfMajorIntervals = value; }
    long getOrigNumOfMinorIntervals() const { return origNumOfMinorIntervals; }
    void setOrigNumOfMinorIntervals(long value) { origNumOfMinorIntervals = value; }
    short getOrigMajorScalingBase() const { return origMajorScalingBase; }
    void setOrigMajorScalingBase(short value) { origMajorScalingBase = value; }
    short getOrigMinorScalingBase() const { return origMinorScalingBase; }
    void setOrigMinorScalingBase(short value) { origMinorScalingBase = value; }
    bool getOrigHasPredefinedMinUC() const { return origHasPredefinedMinUC; }
    void setOrigHasPredefinedMinUC(bool value) { origHasPredefinedMinUC = value; }
    bool getOrigHasPredefinedMaxUC() const { return origHasPredefinedMaxUC; }
    void setOrigHasPredefinedMaxUC(bool value) { origHasPredefinedMaxUC = value; }
    double getOrigMinUC() const { return origMinUC; }
    void setOrigMinUC(double value) { origMinUC = value; }
    double getOrigMaxUC() const { return origMaxUC; }
    void setOrigMaxUC(double value) { origMaxUC = value; }
    // The first day of a week for week ticks: 0 Sunday, 1 Monday, ... as the
    // format settings' weekStartIndex.
    short getWeekStartIndex() const { return weekStartIndex; }
    void setWeekStartIndex(short value) { weekStartIndex = value; }

    // The relative tolerance of x: |x| e + e, e the machine epsilon.
    static double tol(double x);
    // fmod(value, interval), 0 when it lies within `tolerance` of a whole
    // interval, and made positive: value minus it is the grid point below.
    static double remainderOnGrid(double value, double interval, double tolerance);

protected:
    void restoreFromScript(short dataType);
    void verifyScalingLimits();
    double calculateIntervalLength(double min, double max);
    double findNiceInterval(double min, double max, long lowN, long highN);

    void setUpLinearScaling();
    void setUpPercentScaling();
    void setUpLogarithmicScaling();
    void setUpExponentialScaling();
    void setUpPowerScaling();
    void setUpProbabilityScaling();

    // The date-time road.
    void setUpDateTimeScaling();
    void verifyDateTimeScales(short major, short minor);
    void verifyDateTimePair(short major, short minor);
    void determineMajorBase();
    void determineMinorBase();
    void setUpMajorDateTimeScalingValues();
    void setUpMinorDateTimeScalingValues();
    void clipDateTimeScaling();

private:
    bool isLimitSetFinite() const;
    void setUpEqualDataLimits();
    void setUpEqualDateLimits();
    void setUpDateTimeRoad();
    void correctDateTimeEnd();
    double floorToDateTimeKind(double value, short kind) const;
    double addDateTimeSteps(double from, short kind, long k, long months) const;
    long findYearIncrement(double min, double max) const;
    bool setUpCalendarValues(double min, double end, short kind);
    bool setUpPlainDateTimeValues(double min, double max);
    double nextMinorDateTimeValue(double low, double high, long k) const;
    void countMinorDateTimeIntervals();
    double countByShortestMantissa(double min, double max);
    long countMajorIntervals(double min, double max, double interval);
    // The major values from min to max, as the linear scale builds them;
    // remTolerance is the tolerance of a remainder of almost one interval.
    // Sets minUC and maxUC. Returns the interval, 0 on error.
    double setUpLinearValues(double min, double max, double remTolerance);
    // Divides each major interval into numOfMinorIntervals parts.
    bool setUpMinorValues();
    // The step of the last minor interval and the exponent of its grid.
    struct MinorGrid {
        double step = std::numeric_limits<double>::quiet_NaN();
        int stepDigit = vxDecimalGrid::kNoDigit;
    };
    void snapMinorValues(size_t first, long i, double step, MinorGrid& grid);
    bool setUpEquidistantLogValues(double min, double max);
    void setUpLogStartValue(double interval);
    void setUpLogMinorValues(double interval);
    double powerOfBase(double exponent) const;
    void setUpPowerMinorValues(std::vector<double>& roots);
    static void snapPowers(std::vector<double>& values, size_t end);
    bool reserveMinorValues(double count);  // error beyond the bound

    double mapped(double value) const;  // t(v) of the type
    double unmapped(double t) const;
    double mappedMinUC() const;
    float mapToDC(double value, double tMin) const;
    double toAxisDays(double value) const;
    void dumpDateTimeFields(std::ostream& out) const;

    short type = kLinear;
    double base = 10.0;
    double power = 2.0;
    long maxNumOfMajorIntervals = 12;
    long maxNumOfMinorIntervals = 1000;
    long numOfMajorIntervals = 0;
    long numOfMinorIntervals = 0;
    std::vector<double> majorValuesUC;
    std::vector<double> minorValuesUC;
    double minDataUC = 0.0;
    double maxDataUC = 0.0;
    double minDataExtFactor = 0.0;
    double maxDataExtFactor = 0.0;
    double minUC = 0.0;
    double maxUC = 0.0;
    float minDC = 0.0f;
    float maxDC = 0.0f;
    bool hasPredefinedMinUC = false;
    bool hasPredefinedMaxUC = false;
    bool doReverseScaling = false;
    bool useIntegersOnly = false;
    bool doSuppressZeroLabel = false;
    bool useEquidistantLogScaling = false;
    double factor = 0.0;
    short axisDataType = 0;
    short majorScalingBase = 1;
    short minorScalingBase = 1;
    bool hasDateComponents = false;
    bool hasTimeComponents = false;
    long yearIncrement = 1;
    std::vector<long> numOfMinorDateTimeIntervals;
    bool isBarOrAreaDateTimeChart = false;
    long origNumOfMajorIntervals = 0;
    long origNumOfMinorIntervals = 0;
    short origMajorScalingBase = 1;
    short origMinorScalingBase = 1;
    bool origHasPredefinedMinUC = false;
    bool origHasPredefinedMaxUC = false;
    double origMinUC = 0.0;
    double origMaxUC = 0.0;
    short weekStartIndex = 0;
    // Set by calculateIntervalLength: the automatic choice gave one interval
    // from min to max.
    bool isOneIntervalAcrossZero = false;
    // The exponent of the decimal grid of the major values (in root space on
    // a power scale); vxDecimalGrid::kNoDigit when unknown.
    int majorGridDigit = vxDecimalGrid::kNoDigit;
};

}  // namespace Velarix
