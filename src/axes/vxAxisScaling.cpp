// Life cycle of a scale: defaults, copies, the two script functions and the
// log form.
#include "axes/vxAxisScaling.h"

#include <cmath>

#include "data/vxDataDump.h"
#include "host/vxLog.h"
#include "script/vxAssign.h"

namespace Velarix {

vxAxisScaling::vxAxisScaling() : vxErrorHolder(L"vxAxisScaling") {}

vxAxisScaling::~vxAxisScaling() = default;

void vxAxisScaling::init() {
    const vxAxisScaling defaults;
    set(&defaults);
}

bool vxAxisScaling::set(const vxAxisScaling* other) {
    if (!other) {
        init();
        return true;
    }
    if (other == this) return true;
    try {
        majorValuesUC = other->majorValuesUC;
        minorValuesUC = other->minorValuesUC;
        numOfMinorDateTimeIntervals = other->numOfMinorDateTimeIntervals;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"set"));
        return false;
    }
    type = other->type;
    base = other->base;
    power = other->power;
    maxNumOfMajorIntervals = other->maxNumOfMajorIntervals;
    maxNumOfMinorIntervals = other->maxNumOfMinorIntervals;
    numOfMajorIntervals = other->numOfMajorIntervals;
    numOfMinorIntervals = other->numOfMinorIntervals;
    minDataUC = other->minDataUC;
    maxDataUC = other->maxDataUC;
    minDataExtFactor = other->minDataExtFactor;
    maxDataExtFactor = other->maxDataExtFactor;
    minUC = other->minUC;
    maxUC = other->maxUC;
    minDC = other->minDC;
    maxDC = other->maxDC;
    hasPredefinedMinUC = other->hasPredefinedMinUC;
    hasPredefinedMaxUC = other->hasPredefinedMaxUC;
    doReverseScaling = other->doReverseScaling;
    useIntegersOnly = other->useIntegersOnly;
    doSuppressZeroLabel = other->doSuppressZeroLabel;
    useEquidistantLogScaling = other->useEquidistantLogScaling;
    factor = other->factor;
    axisDataType = other->axisDataType;
    majorScalingBase = other->majorScalingBase;
    minorScalingBase = other->minorScalingBase;
    hasDateComponents = other->hasDateComponents;
    hasTimeComponents = other->hasTimeComponents;
    yearIncrement = other->yearIncrement;
    isBarOrAreaDateTimeChart = other->isBarOrAreaDateTimeChart;
    origNumOfMajorIntervals = other->origNumOfMajorIntervals;
    origNumOfMinorIntervals = other->origNumOfMinorIntervals;
    origMajorScalingBase = other->origMajorScalingBase;
    origMinorScalingBase = other->origMinorScalingBase;
    origHasPredefinedMinUC = other->origHasPredefinedMinUC;
    origHasPredefinedMaxUC = other->origHasPredefinedMaxUC;
    origMinUC = other->origMinUC;
    origMaxUC = other->origMaxUC;
    weekStartIndex = other->weekStartIndex;
    isOneIntervalAcrossZero = other->isOneIntervalAcrossZero;
    majorGridDigit = other->majorGridDigit;
    return true;
}

// A limit left empty clears one that an earlier Scaling gave; base and power
// are read for the types that use them and kept otherwise.
void vxAxisScaling::assign(vxAssign& a) {
    type = a.getShort(0, kLinear);
    hasPredefinedMinUC = !a.isVoid(1);
    minUC = a.getDouble(1, 0.0);
    hasPredefinedMaxUC = !a.isVoid(2);
    maxUC = a.getDouble(2, 0.0);
    if (a.getNote(1).find(L':') != std::wstring::npos) hasTimeComponents = true;
    if (a.getNote(2).find(L':') != std::wstring::npos) hasTimeComponents = true;
    numOfMajorIntervals = a.getLong(3, 0);
    numOfMinorIntervals = a.getLong(4, 0);
    if (type == kLogarithmic || type == kExponential) base = a.getDouble(5, 10.0);
    if (type == kPower) power = a.getDouble(5, 2.0);
    useEquidistantLogScaling = a.getBool(6, false);
    // Negative counts are the date-time keywords, whose kinds are one less.
    majorScalingBase = numOfMajorIntervals < 0 ? short(numOfMajorIntervals - 1) : 1;
    minorScalingBase = numOfMinorIntervals < 0 ? short(numOfMinorIntervals - 1) : 1;
    origNumOfMajorIntervals = numOfMajorIntervals;
    origNumOfMinorIntervals = numOfMinorIntervals;
    origMajorScalingBase = majorScalingBase;
    origMinorScalingBase = minorScalingBase;
    origHasPredefinedMinUC = hasPredefinedMinUC;
    origHasPredefinedMaxUC = hasPredefinedMaxUC;
    origMinUC = minUC;
    origMaxUC = maxUC;
    // The kinds are checked as a pair here; against the data's components
    // at the set-up, when they are known.
    if (numOfMajorIntervals < 0) {
        maxNumOfMajorIntervals = 1000;
        verifyDateTimePair(majorScalingBase, minorScalingBase);
    }
}

void vxAxisScaling::assignOptions(vxAssign& a) {
    doReverseScaling = a.getBool(0, false);
    useIntegersOnly = a.getBool(1, false);
    doSuppressZeroLabel = a.getBool(2, false);
}

double vxAxisScaling::getMajorValue(long i) const {
    return i >= 0 && i < getNumOfMajorValues() ? majorValuesUC[size_t(i)] : 0.0;
}

double vxAxisScaling::getMinorValue(long i) const {
    return i >= 0 && i < getNumOfMinorValues() ? minorValuesUC[size_t(i)] : 0.0;
}

double vxAxisScaling::tol(double x) {
    constexpr double e = 2.220446049250313e-16;
    return std::fabs(x) * e + e;
}

void vxAxisScaling::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxAxisScaling");
    vxDumpLine(out, "short type:                          ", type);
    vxDumpLine(out, "double base:                         ", base);
    vxDumpLine(out, "double power:                        ", power);
    vxDumpLine(out, "long maxNumOfMajorIntervals:         ", maxNumOfMajorIntervals);
    vxDumpLine(out, "long maxNumOfMinorIntervals:         ", maxNumOfMinorIntervals);
    vxDumpLine(out, "long numOfMajorIntervals:            ", numOfMajorIntervals);
    vxDumpLine(out, "long numOfMinorIntervals:            ", numOfMinorIntervals);
    vxDumpLine(out, "vector<double> majorValuesUC:        ", vxDataDumpText(majorValuesUC));
    vxDumpLine(out, "vector<double> minorValuesUC:        ", vxDataDumpText(minorValuesUC));
    vxDumpLine(out, "double minDataUC:                    ", minDataUC);
    vxDumpLine(out, "double maxDataUC:                    ", maxDataUC);
    vxDumpLine(out, "double minDataExtFactor:             ", minDataExtFactor);
    vxDumpLine(out, "double maxDataExtFactor:             ", maxDataExtFactor);
    vxDumpLine(out, "double minUC:                        ", minUC);
    vxDumpLine(out, "double maxUC:                        ", maxUC);
    vxDumpLine(out, "float minDC:                         ", minDC);
    vxDumpLine(out, "float maxDC:                         ", maxDC);
    vxDumpLine(out, "bool hasPredefinedMinUC:             ", hasPredefinedMinUC);
    vxDumpLine(out, "bool hasPredefinedMaxUC:             ", hasPredefinedMaxUC);
    vxDumpLine(out, "bool doReverseScaling:               ", doReverseScaling);
    vxDumpLine(out, "bool useIntegersOnly:                ", useIntegersOnly);
    vxDumpLine(out, "bool doSuppressZeroLabel:            ", doSuppressZeroLabel);
    vxDumpLine(out, "bool useEquidistantLogScaling:       ", useEquidistantLogScaling);
    vxDumpLine(out, "double factor:                       ", factor);
    vxDumpLine(out, "short axisDataType:                  ", axisDataType);
    dumpDateTimeFields(out);
    vxDumpEnd(out);
}

void vxAxisScaling::dumpDateTimeFields(std::ostream& out) const {
    vxDumpLine(out, "short majorScalingBase:              ", majorScalingBase);
    vxDumpLine(out, "short minorScalingBase:              ", minorScalingBase);
    vxDumpLine(out, "bool hasDateComponents:              ", hasDateComponents);
    vxDumpLine(out, "bool hasTimeComponents:              ", hasTimeComponents);
    vxDumpLine(out, "long yearIncrement:                  ", yearIncrement);
    vxDumpLine(out, "vector<long> numOfMinorDateTimeIntervals: ",
               vxDataDumpText(numOfMinorDateTimeIntervals));
    vxDumpLine(out, "bool isBarOrAreaDateTimeChart:       ", isBarOrAreaDateTimeChart);
    vxDumpLine(out, "long origNumOfMajorIntervals:        ", origNumOfMajorIntervals);
    vxDumpLine(out, "long origNumOfMinorIntervals:        ", origNumOfMinorIntervals);
    vxDumpLine(out, "short origMajorScalingBase:          ", origMajorScalingBase);
    vxDumpLine(out, "short origMinorScalingBase:          ", origMinorScalingBase);
    vxDumpLine(out, "bool origHasPredefinedMinUC:         ", origHasPredefinedMinUC);
    vxDumpLine(out, "bool origHasPredefinedMaxUC:         ", origHasPredefinedMaxUC);
    vxDumpLine(out, "double origMinUC:                    ", origMinUC);
    vxDumpLine(out, "double origMaxUC:                    ", origMaxUC);
    vxDumpLine(out, "short weekStartIndex:                ", weekStartIndex);
}

}  // namespace Velarix
