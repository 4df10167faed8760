// The mapping between user and device coordinates, and the tests and cuts
// that work on the finished scale.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <new>

#include "Utilities/Sources/vxDateTime.h"
#include "axes/vxAxisScaling.h"

namespace Velarix {

// t of the type, on values in the axis's own units.
double vxAxisScaling::mapped(double x) const {
    switch (type) {
        case kPercent:
            return toPercentValue(x);
        case kLogarithmic:
            return std::log(x) / std::log(base);
        case kExponential:
            return std::pow(base, x);
        case kPower:
            return std::pow(x, power);
        case kProbability:
            return 100.0 * normalDistribution(x);
        default:
            return x;
    }
}

double vxAxisScaling::unmapped(double t) const {
    switch (type) {
        case kPercent:
            if (minDataUC > 0.0) return t * (maxDataUC - minDataUC) / 100.0 + minDataUC;
            if (maxDataUC <= 0.0) return t * (maxDataUC - minDataUC) / 100.0 + maxDataUC;
            if (std::fabs(minDataUC) > maxDataUC) return -t * minDataUC / 100.0;
            return t * maxDataUC / 100.0;
        case kLogarithmic:
            return std::pow(base, t);
        case kExponential:
            return t > 0.0 ? std::log(t) / std::log(base) : -DBL_MAX;
        case kPower:
            return t < 0.0 ? -std::pow(-t, 1.0 / power) : std::pow(t, 1.0 / power);
        case kProbability:
            return inverseNormalDistribution(t / 100.0);
        default:
            return t;
    }
}

// A percent scale's limits are percent values already.
double vxAxisScaling::mappedMinUC() const {
    return type == kPercent ? minUC : mapped(minUC);
}

double vxAxisScaling::toAxisDays(double value) const {
    return axisDataType == kDateTimeAxis ? vxDateTime::toPlainDays(std::fabs(value)) : value;
}

void vxAxisScaling::calculateScalingFactor() {
    const bool isMapped = type == kLogarithmic || type == kExponential || type == kPower;
    const double s = isMapped ? mapped(maxUC) - mapped(minUC) : maxUC - minUC;
    if (!std::isfinite(s) || std::fabs(s) < tol(s)) {
        setError(vxErrChart::kScaling, where(L"calculateScalingFactor", 1));
        return;
    }
    // In single precision, as the device numbers are; a span beyond the
    // floats is divided in double.
    const float extent = maxDC - minDC;
    factor = std::fabs(s) <= double(FLT_MAX) ? double(extent / float(s)) : double(extent) / s;
}

// A result that is no number lies at the start of the axis; one beyond the
// floats at the largest float of its sign.
float vxAxisScaling::mapToDC(double value, double tMin) const {
    const double x = toAxisDays(value);
    if (type == kLogarithmic && x <= 0.0) return 0.0f;
    const double t = mapped(x);
    const double dc = doReverseScaling ? factor * tMin - factor * t + double(maxDC)
                                       : factor * t - factor * tMin + double(minDC);
    if (std::isnan(dc)) return minDC;
    return float(std::clamp(dc, -double(FLT_MAX), double(FLT_MAX)));
}

float vxAxisScaling::toDC(double value) const {
    return mapToDC(value, mappedMinUC());
}

void vxAxisScaling::toDC(const std::vector<double>& values, std::vector<float>& out) const {
    try {
        out.resize(values.size());
    } catch (const std::bad_alloc&) {
        out.clear();
        return;
    }
    const double tMin = mappedMinUC();
    for (size_t i = 0; i < values.size(); ++i) out[i] = mapToDC(values[i], tMin);
}

double vxAxisScaling::toUC(float dc) const {
    if (factor == 0.0 || !std::isfinite(factor)) return minUC;
    const double tMin = mappedMinUC();
    const double t = doReverseScaling ? tMin - (double(dc) - double(maxDC)) / factor
                                      : (double(dc) - double(minDC)) / factor + tMin;
    const double x = unmapped(t);
    return axisDataType == kDateTimeAxis ? vxDateTime::toStoredForm(x) : x;
}

bool vxAxisScaling::isInScale(double value) const {
    double x = toAxisDays(value);
    if (type == kPercent) x = toPercentValue(x);
    return x >= minUC - kFixedTolerance && x <= maxUC + kFixedTolerance;
}

void vxAxisScaling::toggleReverseScaling() {
    doReverseScaling = !doReverseScaling;
}

void vxAxisScaling::removeTicksOutside(double lowUC, double highUC) {
    const double low = toAxisDays(lowUC);
    const double high = toAxisDays(highUC);
    auto outside = [low, high](double v) { return v < low || v > high; };
    std::erase_if(majorValuesUC, outside);
    std::erase_if(minorValuesUC, outside);
    numOfMajorIntervals = std::max(0L, long(majorValuesUC.size()) - 1);
    if (!numOfMinorDateTimeIntervals.empty()) countMinorDateTimeIntervals();
}

}  // namespace Velarix
