// The tick lists of the logarithmic and the power scales.
#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "axes/vxAxisScaling.h"
#include "axes/vxDecimalGrid.h"

namespace Velarix {

// Linear ticks spaced unevenly on the log axis, from a small positive start;
// or, equidistant, the powers of the base.
void vxAxisScaling::setUpLogarithmicScaling() {
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    if (useEquidistantLogScaling) {
        if (setUpEquidistantLogValues(min, max)) setUpMinorValues();
        return;
    }
    const double interval = setUpLinearValues(min, max, kFixedTolerance);
    if (interval == 0.0) return;
    if (majorValuesUC.front() <= 0.0) setUpLogStartValue(interval);
    setUpLogMinorValues(interval);
}

// A first tick of 0 or below has no place on a log axis: it becomes the
// interval divided down by 1, 2, 5 or 10 times a power of ten to lie
// below the data.
void vxAxisScaling::setUpLogStartValue(double interval) {
    const double q = interval / minDataUC;
    const double p = vxDecimalGrid::powerOfTen(int(std::floor(std::log10(q))));
    const double s = std::ceil(q / p);
    double value = s <= 1.0   ? interval / p
                   : s <= 2.0 ? interval / 2.0 / p
                   : s <= 5.0 ? interval / 5.0 / p
                              : interval / 10.0 / p;
    if (useIntegersOnly) value = interval > 1.0 ? std::max(value, 1.0) : 0.1;
    majorValuesUC.front() = value;
    vxDecimalGrid::snap(majorValuesUC, 0, 1, {}, value * kMaxSnapShift);
    minUC = majorValuesUC.front();
}

// Minor values step by interval / numOfMinorIntervals from each major
// value, so that a shortened first interval has the same step.
void vxAxisScaling::setUpLogMinorValues(double interval) {
    const long parts = numOfMinorIntervals;
    const long intervals = long(majorValuesUC.size()) - 1;
    if (parts <= 1 || intervals < 1) return;
    if (!reserveMinorValues(double(parts - 1) * double(intervals))) return;
    const double step = interval / double(parts);
    MinorGrid grid;
    for (long i = 0; i < intervals; ++i) {
        const double low = majorValuesUC[size_t(i)];
        const double high = majorValuesUC[size_t(i) + 1] - kFixedTolerance;
        const size_t first = minorValuesUC.size();
        for (long k = 1; k < parts && low + double(k) * step < high; ++k) {
            minorValuesUC.push_back(low + double(k) * step);
        }
        snapMinorValues(first, i, step, grid);
    }
}

double vxAxisScaling::powerOfBase(double exponent) const {
    if (base == 10.0 && std::fabs(exponent) < 400.0)
        return vxDecimalGrid::powerOfTen(int(exponent));
    return std::pow(base, exponent);
}

bool vxAxisScaling::setUpEquidistantLogValues(double min, double max) {
    const double lnBase = std::log(base);
    const double a = std::floor(std::log(min) / lnBase + kFixedTolerance);
    const double b = std::ceil(std::log(max) / lnBase - kFixedTolerance);
    if (!std::isfinite(a) || !std::isfinite(b) || b < a || b - a > double(kMaxNumOfIntervals)) {
        setError(vxErrChart::kScaling, where(L"setUpLogarithmicScaling", 1));
        return false;
    }
    numOfMajorIntervals = long(b - a);
    try {
        majorValuesUC.assign(size_t(numOfMajorIntervals) + 1, 0.0);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpLogarithmicScaling"));
        return false;
    }
    for (size_t i = 0; i < majorValuesUC.size(); ++i) majorValuesUC[i] = powerOfBase(a + double(i));
    majorValuesUC.front() = hasPredefinedMinUC ? minUC : powerOfBase(a);
    majorValuesUC.back() = hasPredefinedMaxUC ? maxUC : powerOfBase(b);
    minUC = majorValuesUC.front();
    maxUC = majorValuesUC.back();
    return true;
}

// Ticks even in root space, raised to the power.
void vxAxisScaling::setUpPowerScaling() {
    const double min = hasPredefinedMinUC ? minUC : minDataUC;
    const double max = hasPredefinedMaxUC ? maxUC : maxDataUC;
    const double e = 1.0 / power;
    const double a = std::floor(std::pow(min, e) + kFixedTolerance);
    const double b = std::ceil(std::pow(max, e) - kFixedTolerance);
    if (!std::isfinite(a) || !std::isfinite(b) || !(b > a)) {
        setError(vxErrChart::kScaling, where(L"setUpPowerScaling", 1));
        return;
    }
    const double interval = calculateIntervalLength(a, b);
    if (isError()) return;
    const long count = countMajorIntervals(a, b, interval);
    if (count < 0) return;
    numOfMajorIntervals = count;
    std::vector<double> roots;
    try {
        roots.resize(size_t(count) + 1);
        majorValuesUC.resize(roots.size());
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpPowerScaling"));
        return;
    }
    for (size_t i = 0; i < roots.size(); ++i) roots[i] = a + double(i) * interval;
    majorGridDigit = vxDecimalGrid::gridExponent({interval, a});
    vxDecimalGrid::snapTo(roots, 0, roots.size(), majorGridDigit, interval * kMaxSnapShift);
    for (size_t i = 0; i < roots.size(); ++i) majorValuesUC[i] = std::pow(roots[i], power);
    snapPowers(majorValuesUC, majorValuesUC.size());
    majorValuesUC.front() = hasPredefinedMinUC ? minUC : std::pow(a, power);
    majorValuesUC.back() = hasPredefinedMaxUC ? maxUC : std::pow(b, power);
    minUC = majorValuesUC.front();
    maxUC = majorValuesUC.back();
    setUpPowerMinorValues(roots);
}

// The even subdivision in root space, of which only the first
// numOfMinorIntervals + 1 values are raised to the power; the others stay
// in root space, as the scale has always drawn them.
void vxAxisScaling::setUpPowerMinorValues(std::vector<double>& roots) {
    std::swap(majorValuesUC, roots);
    const bool made = setUpMinorValues();
    std::swap(majorValuesUC, roots);
    if (!made) return;
    const size_t raised =
        std::min(minorValuesUC.size(), size_t(std::max(0L, numOfMinorIntervals + 1)));
    for (size_t i = 0; i < raised; ++i) minorValuesUC[i] = std::pow(minorValuesUC[i], power);
    snapPowers(minorValuesUC, raised);
}

// Powers of decimal roots to 15 significant digits, each moving by no more
// than dust.
void vxAxisScaling::snapPowers(std::vector<double>& values, size_t end) {
    for (size_t i = 0; i < end; ++i) {
        vxDecimalGrid::snap(values, i, i + 1, {}, std::fabs(values[i]) * 1e-13);
    }
}

}  // namespace Velarix
