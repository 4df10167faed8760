// The set-up of a scale and the checks of its limits before any tick is
// made.
#include <cmath>

#include "Utilities/Sources/vxDateTime.h"
#include "axes/vxAxisScaling.h"
#include "axes/vxDecimalGrid.h"

namespace Velarix {

void vxAxisScaling::setUp(short chartKind, short dataType) {
    restoreFromScript(dataType);
    if (chartKind == kBarChart2DKind) {
        if (hasPredefinedMinUC) minUC = std::floor(minUC);
        if (hasPredefinedMaxUC) maxUC = std::floor(maxUC);
    }
    if (dataType == kDateTimeAxis) {
        setUpDateTimeRoad();
        if (!isError()) calculateScalingFactor();
        return;
    }
    verifyScalingLimits();
    if (isError()) return;
    switch (type) {
        case kLinear:
            setUpLinearScaling();
            break;
        case kPercent:
            setUpPercentScaling();
            break;
        case kLogarithmic:
            setUpLogarithmicScaling();
            break;
        case kExponential:
            setUpExponentialScaling();
            break;
        case kPower:
            setUpPowerScaling();
            break;
        case kProbability:
            setUpProbabilityScaling();
            break;
        default:
            setError(vxErrChart::kScaling, where(L"setUp", 1));
            return;
    }
    if (isError()) return;
    calculateScalingFactor();
}

// What the script asked, so that a set-up may run again. Predefined limits
// of a date-time axis are read in the stored form and kept in plain days.
void vxAxisScaling::restoreFromScript(short dataType) {
    axisDataType = dataType;
    numOfMajorIntervals = origNumOfMajorIntervals;
    numOfMinorIntervals = origNumOfMinorIntervals;
    hasPredefinedMinUC = origHasPredefinedMinUC;
    hasPredefinedMaxUC = origHasPredefinedMaxUC;
    majorScalingBase = origMajorScalingBase;
    minorScalingBase = origMinorScalingBase;
    minUC = origMinUC;
    maxUC = origMaxUC;
    if (dataType == kDateTimeAxis) {
        if (hasPredefinedMinUC) minUC = vxDateTime::toPlainDays(std::fabs(minUC));
        if (hasPredefinedMaxUC) maxUC = vxDateTime::toPlainDays(std::fabs(maxUC));
    }
    majorValuesUC.clear();
    minorValuesUC.clear();
    numOfMinorDateTimeIntervals.clear();
    majorGridDigit = vxDecimalGrid::kNoDigit;
}

bool vxAxisScaling::isLimitSetFinite() const {
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    if (!std::isfinite(min) || !std::isfinite(max) || !std::isfinite(max - min)) return false;
    if (type == kPercent && !std::isfinite(maxDataUC - minDataUC)) return false;
    if ((type == kLogarithmic || type == kExponential) && !std::isfinite(base)) return false;
    return type != kPower || std::isfinite(power);
}

void vxAxisScaling::verifyScalingLimits() {
    auto fail = [this](int n) { setError(vxErrChart::kScaling, where(L"verifyScalingLimits", n)); };
    if (!isLimitSetFinite()) return fail(18);
    const bool hasMin = hasPredefinedMinUC, hasMax = hasPredefinedMaxUC;
    if (hasMin && hasMax && maxUC - minUC < tol(maxUC - minUC)) return fail(1);
    if (hasMin && !hasMax && maxDataUC - minUC < tol(maxDataUC - minUC)) return fail(2);
    if (!hasMin && hasMax && maxUC - minDataUC < tol(maxUC - minDataUC)) return fail(3);
    const double dataSpan = maxDataUC - minDataUC;
    if (!hasMin && !hasMax && dataSpan < -tol(dataSpan)) return fail(20);
    if (type == kLogarithmic) {
        if (base < tol(base)) return fail(4);
        if (std::fabs(std::log(base)) < kFixedTolerance) return fail(19);
        if (hasMin ? minUC < tol(minUC) : minDataUC < tol(minDataUC)) return fail(hasMin ? 5 : 6);
        if (hasMax ? maxUC < tol(maxUC) : maxDataUC < tol(maxDataUC)) return fail(hasMax ? 7 : 8);
    }
    if (type == kExponential && base < tol(base)) return fail(9);
    if (type == kPower && std::fabs(power) < 1.0) {
        if (hasMin ? minUC < tol(minUC) : minDataUC < tol(minDataUC)) return fail(hasMin ? 10 : 11);
        if (hasMax ? maxUC < tol(maxUC) : maxDataUC < tol(maxDataUC)) return fail(hasMax ? 12 : 13);
    }
    if (type == kProbability) {
        if (hasMin ? minUC < tol(minUC) : minDataUC < tol(minDataUC)) return fail(hasMin ? 14 : 15);
        if (hasMax ? maxUC > 100.0 - tol(maxUC) : maxDataUC > 100.0 - tol(maxDataUC)) {
            return fail(hasMax ? 16 : 17);
        }
    }
    if (!hasMin && !hasMax && std::fabs(dataSpan) < tol(dataSpan)) {
        if (axisDataType == kDateTimeAxis) {
            setUpEqualDateLimits();
        } else {
            setUpEqualDataLimits();
        }
        // The made-up limits are predefined from now on and meet the tests
        // of the type once.
        verifyScalingLimits();
    }
}

// All data equal: a span of whole numbers around the value.
void vxAxisScaling::setUpEqualDataLimits() {
    const double a = std::fabs(minDataUC);
    const double whole = std::round(a);
    const bool positive = minDataUC > 0.0;
    double low = 0.0, high = 0.0;
    if (a < kFixedTolerance) {
        low = -1.0;
        high = 1.0;
    } else if (std::fabs(a - whole) < kFixedTolerance) {
        low = positive ? whole - 1.0 : -whole - 1.0;
        high = positive ? whole + 1.0 : -whole + 1.0;
    } else {
        low = positive ? std::floor(a) : -std::floor(a) - 1.0;
        high = positive ? std::floor(a) + 1.0 : -std::floor(a);
    }
    minUC = minDataUC = low;
    maxUC = maxDataUC = high;
    hasPredefinedMinUC = hasPredefinedMaxUC = true;
}

}  // namespace Velarix
