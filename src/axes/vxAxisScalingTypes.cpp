// The tick lists of the linear, percent and exponential scales, and the
// minor values that divide major intervals evenly.
#include <algorithm>
#include <cmath>
#include <new>

#include "axes/vxAxisScaling.h"
#include "axes/vxDecimalGrid.h"

namespace Velarix {

void vxAxisScaling::setUpLinearScaling() {
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    if (setUpLinearValues(min, max, tol(std::max(std::fabs(min), std::fabs(max)))) == 0.0) return;
    // Values tiny beside the limits are zero that the sums missed.
    const double zeroBound = 0.001 * std::max(std::fabs(minUC), std::fabs(maxUC));
    for (size_t i = 0; i + 1 < majorValuesUC.size(); ++i) {
        if (std::fabs(majorValuesUC[i]) < zeroBound) majorValuesUC[i] = 0.0;
    }
    setUpMinorValues();
}

void vxAxisScaling::setUpPercentScaling() {
    const double min = hasPredefinedMinUC ? minUC : toPercentValue(minDataUC);
    const double max = hasPredefinedMaxUC ? maxUC : toPercentValue(maxDataUC);
    if (setUpLinearValues(min, max, kFixedTolerance) == 0.0) return;
    setUpMinorValues();
}

void vxAxisScaling::setUpExponentialScaling() {
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    if (setUpLinearValues(min, max, kFixedTolerance) == 0.0) return;
    setUpMinorValues();
}

double vxAxisScaling::toPercentValue(double value) const {
    const double span = maxDataUC - minDataUC;
    if (minDataUC > 0.0 || maxDataUC <= 0.0) {
        if (span == 0.0) return 0.0;
        return minDataUC > 0.0 ? (value - minDataUC) * 100.0 / span
                               : (value - maxDataUC) * 100.0 / span;
    }
    if (std::fabs(minDataUC) > maxDataUC) return -100.0 * value / minDataUC;
    return 100.0 * value / maxDataUC;
}

// The grid below min (or min itself when given), then one interval after
// the other; a given max replaces the last value. Returns the interval, 0
// on error.
double vxAxisScaling::setUpLinearValues(double min, double max, double remTolerance) {
    const double interval = calculateIntervalLength(min, max);
    if (isError()) return 0.0;
    const long count = countMajorIntervals(min, max, interval);
    if (count < 0) return 0.0;
    numOfMajorIntervals = count;
    try {
        majorValuesUC.assign(size_t(count) + 1, 0.0);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLinearValues"));
        return 0.0;
    }
    const bool fromMin = hasPredefinedMinUC || isOneIntervalAcrossZero;
    const bool toMax = hasPredefinedMaxUC || isOneIntervalAcrossZero;
    double value = fromMin ? min : min - remainderOnGrid(min, interval, remTolerance);
    majorValuesUC[0] = value;
    for (size_t i = 1; i < majorValuesUC.size(); ++i) majorValuesUC[i] = value += interval;
    if (toMax) majorValuesUC.back() = max;
    // Given limits stay as they are; the others go to their decimal values,
    // on the grid of the interval from the first value.
    const double first = majorValuesUC.front();
    const double onGrid =
        vxDecimalGrid::roundToPowerOfTen(first, vxDecimalGrid::lastDigitExponent(interval));
    const double anchor = std::fabs(onGrid - first) <= interval * kMaxSnapShift ? onGrid : first;
    const size_t end = majorValuesUC.size() - (toMax ? 1 : 0);
    majorGridDigit = vxDecimalGrid::gridExponent({interval, anchor});
    vxDecimalGrid::snapTo(majorValuesUC, fromMin ? 1 : 0, end, majorGridDigit,
                          interval * kMaxSnapShift);
    minUC = majorValuesUC.front();
    maxUC = majorValuesUC.back();
    return interval;
}

bool vxAxisScaling::reserveMinorValues(double count) {
    minorValuesUC.clear();
    if (count > double(kMaxNumOfMinorValues)) {
        setError(vxErrChart::kScaling, where(L"setUpMinorValues", 1));
        return false;
    }
    try {
        minorValuesUC.reserve(size_t(std::max(0.0, count)));
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpMinorValues"));
        return false;
    }
    return true;
}

// The inner points of each major interval divided into
// numOfMinorIntervals equal parts, in order.
bool vxAxisScaling::setUpMinorValues() {
    const long parts = numOfMinorIntervals;
    const long intervals = long(majorValuesUC.size()) - 1;
    if (parts <= 1 || intervals < 1) return true;
    if (!reserveMinorValues(double(parts - 1) * double(intervals))) return false;
    MinorGrid grid;
    for (long i = 0; i < intervals; ++i) {
        const double low = majorValuesUC[size_t(i)];
        const double step = (majorValuesUC[size_t(i) + 1] - low) / double(parts);
        const size_t first = minorValuesUC.size();
        for (long k = 1; k < parts; ++k) minorValuesUC.push_back(low + double(k) * step);
        snapMinorValues(first, i, step, grid);
    }
    return true;
}

// The minors of major interval i, from `first` on, go to the grid of its
// step and its low end; the low ends after the first lie on the grid of
// the majors when it is known.
void vxAxisScaling::snapMinorValues(size_t first, long i, double step, MinorGrid& grid) {
    if (step != grid.step) {
        grid.step = step;
        grid.stepDigit = vxDecimalGrid::lastDigitExponent(step);
    }
    int lowDigit = majorGridDigit;
    if (i == 0 || majorGridDigit == vxDecimalGrid::kNoDigit) {
        lowDigit = std::min(lowDigit, vxDecimalGrid::lastDigitExponent(majorValuesUC[size_t(i)]));
    }
    vxDecimalGrid::snapTo(minorValuesUC, first, minorValuesUC.size(),
                          std::min(grid.stepDigit, lowDigit), std::fabs(step) * kMaxSnapShift);
}

}  // namespace Velarix
