// The statistics of a value series, each group computed in one pass.
#include <algorithm>
#include <cmath>
#include <limits>
#include <new>

#include "data/vxDataSorter.h"
#include "data/vxDataValueSeries.h"

namespace Velarix {

namespace {

constexpr double kEpsilon = 2.220446049250313e-16;
constexpr double kNearZero = 1e-10;
constexpr double kLargest = std::numeric_limits<double>::max();

double relativeTolerance(double x) {
    return std::fabs(x) * kEpsilon + kEpsilon;
}

double power(double v, short k) {
    double result = v;
    for (short i = 1; i < k; ++i) result *= v;
    return result;
}

bool isMomentOrder(short k) {
    return k >= 1 && k <= 4;
}

}  // namespace

// Sums, extremes and the powers 2 to 4 of the valid values.
struct vxDataValueSeries::SumPass {
    long n = 0;
    double sum = 0.0, absoluteSum = 0.0, positiveSum = 0.0, negativeSum = 0.0;
    double min = kLargest, max = -kLargest, absoluteMin = kLargest, absoluteMax = 0.0;
    double positiveMin = kLargest, positiveMax = 0.0, negativeMin = 0.0, negativeMax = -kLargest;
    double powerSums[3] = {0.0, 0.0, 0.0};

    void add(double v) {
        ++n;
        sum += v;
        double magnitude = std::fabs(v);
        absoluteSum += magnitude;
        if (v > 0.0) {
            positiveSum += v;
            positiveMin = std::min(positiveMin, v);
            positiveMax = std::max(positiveMax, v);
        } else if (v < 0.0) {
            negativeSum += v;
            negativeMin = std::min(negativeMin, v);
            negativeMax = std::max(negativeMax, v);
        }
        min = std::min(min, v);
        max = std::max(max, v);
        absoluteMin = std::min(absoluteMin, magnitude);
        absoluteMax = std::max(absoluteMax, magnitude);
        double square = v * v;
        powerSums[0] += square;
        powerSums[1] += square * v;
        powerSums[2] += square * square;
    }
};

bool vxDataValueSeries::calculateSums() {
    SumPass pass;
    for (double v : mValues) {
        if (isValidValue(v)) pass.add(v);
    }
    mNumOfInvalidValues = size() - pass.n;
    if (pass.n == 0) return false;
    storeSums(pass);
    storeExtremes(pass);
    return true;
}

void vxDataValueSeries::storeSums(const SumPass& pass) {
    Statistics& s = mStats;
    const double n = static_cast<double>(pass.n);
    s.sum = pass.sum;
    s.absoluteSum = pass.absoluteSum;
    s.positiveSum = pass.positiveSum;
    s.negativeSum = pass.negativeSum;
    s.mean = pass.sum / n;
    s.moment[0] = s.mean;
    for (int k = 1; k < 4; ++k) s.moment[k] = pass.powerSums[k - 1] / n;
    s.rootMeanSquare = std::sqrt(s.moment[1]);
    s.hasSum = s.hasAbsoluteSum = s.hasPositiveSum = s.hasNegativeSum = true;
    s.hasMean = s.hasRootMeanSquare = true;
    for (bool& has : s.hasMoment) has = true;
}

void vxDataValueSeries::storeExtremes(const SumPass& pass) {
    Statistics& s = mStats;
    s.minValue = pass.min;
    s.maxValue = pass.max;
    s.absoluteMinValue = pass.absoluteMin;
    s.absoluteMaxValue = pass.absoluteMax;
    s.positiveMinValue = pass.positiveMin == kLargest ? 0.0 : pass.positiveMin;
    s.positiveMaxValue = pass.positiveMax;
    s.negativeMinValue = pass.negativeMin;
    s.negativeMaxValue = pass.negativeMax == -kLargest ? 0.0 : pass.negativeMax;
    s.hasMinValue = s.hasMaxValue = s.hasAbsoluteMinValue = s.hasAbsoluteMaxValue = true;
    s.hasPositiveMinValue = s.hasPositiveMaxValue = true;
    s.hasNegativeMinValue = s.hasNegativeMaxValue = true;
}

// Everything about the mean: mean deviation, the central moments and with
// the second of them standard deviation, variance and standard error.
bool vxDataValueSeries::calculateDeviations() {
    if (!mStats.hasMean && !calculateSums()) return false;
    const double mean = mStats.mean;
    double absoluteSum = 0.0;
    double sums[4] = {0.0, 0.0, 0.0, 0.0};
    for (double v : mValues) {
        if (!isValidValue(v)) continue;
        double d = v - mean;
        double square = d * d;
        absoluteSum += std::fabs(d);
        sums[0] += d;
        sums[1] += square;
        sums[2] += square * d;
        sums[3] += square * square;
    }
    Statistics& s = mStats;
    const double n = static_cast<double>(getNumOfValidValues());
    s.meanDeviation = absoluteSum / n;
    for (int k = 0; k < 4; ++k) s.momentMean[k] = sums[k] / n;
    s.standardDeviation = std::sqrt(s.momentMean[1]);
    s.variance = s.standardDeviation * s.standardDeviation;
    s.standardError = s.standardDeviation / std::sqrt(n);
    s.hasMeanDeviation = s.hasStandardDeviation = s.hasVariance = s.hasStandardError = true;
    for (bool& has : s.hasMomentMean) has = true;
    return true;
}

bool vxDataValueSeries::setUpSortedValues() {
    if (mHasSortedValues) return true;
    try {
        std::vector<double> sorted;
        sorted.reserve(static_cast<std::size_t>(getNumOfValidValues()));
        for (double v : mValues) {
            if (isValidValue(v)) sorted.push_back(v);
        }
        if (mIsDescendingSorted) std::reverse(sorted.begin(), sorted.end());
        if (!mIsAscendingSorted && !mIsDescendingSorted) vxDataSorter::sortAscending(sorted);
        mSortedValues.swap(sorted);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpSortedValues"));
        return false;
    }
    mHasSortedValues = true;
    return true;
}

bool vxDataValueSeries::calculateMedian() {
    if (!setUpSortedValues() || mSortedValues.empty()) return false;
    const std::vector<double>& sorted = mSortedValues;
    const std::size_t half = sorted.size() / 2;
    mStats.median = sorted.size() % 2 ? sorted[half] : 0.5 * sorted[half - 1] + 0.5 * sorted[half];
    mStats.hasMedian = true;
    return true;
}

bool vxDataValueSeries::calculateMedianDeviation() {
    if (!mStats.hasMedian && !calculateMedian()) return false;
    double absoluteSum = 0.0;
    for (double v : mValues) {
        if (isValidValue(v)) absoluteSum += std::fabs(v - mStats.median);
    }
    mStats.medianDeviation = absoluteSum / static_cast<double>(getNumOfValidValues());
    mStats.hasMedianDeviation = true;
    return true;
}

// Gaps below the tolerance of the range count as equal values.
bool vxDataValueSeries::calculateMinDifference() {
    if (!setUpSortedValues() || mSortedValues.empty()) return false;
    const std::vector<double>& sorted = mSortedValues;
    const double tolerance = relativeTolerance(sorted.back() - sorted.front());
    double smallest = kLargest;
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        double gap = sorted[i] - sorted[i - 1];
        if (gap >= tolerance && gap < smallest) smallest = gap;
    }
    mStats.minDifference = smallest == kLargest ? -1.0 : smallest;
    mStats.hasMinDifference = true;
    return true;
}

bool vxDataValueSeries::calculateGeometricMean() {
    long n = 0;
    double logSum = 0.0;
    for (double v : mValues) {
        if (!isValidValue(v)) continue;
        if (v < kNearZero) {
            setError(vxErrRuntime::kLogarithm, where(L"calculateGeometricMean"));
            return false;
        }
        logSum += std::log(v);
        ++n;
    }
    if (n == 0) return false;
    mStats.geometricMean = std::exp(logSum / static_cast<double>(n));
    mStats.hasGeometricMean = true;
    return true;
}

bool vxDataValueSeries::calculateHarmonicMean() {
    long n = 0;
    double inverseSum = 0.0;
    for (double v : mValues) {
        if (!isValidValue(v)) continue;
        if (std::fabs(v) < kNearZero) {
            setError(vxErrRuntime::kDivisionByZero, where(L"calculateHarmonicMean", 1));
            return false;
        }
        inverseSum += 1.0 / v;
        ++n;
    }
    if (n == 0) return false;
    if (std::fabs(inverseSum) < kNearZero) {
        setError(vxErrRuntime::kDivisionByZero, where(L"calculateHarmonicMean", 2));
        return false;
    }
    mStats.harmonicMean = static_cast<double>(n) / inverseSum;
    mStats.hasHarmonicMean = true;
    return true;
}

double vxDataValueSeries::getMomentOrigin(short k, double origin) {
    if (!isMomentOrder(k)) return 0.0;
    long n = 0;
    double sum = 0.0;
    for (double v : mValues) {
        if (!isValidValue(v)) continue;
        sum += power(v - origin, k);
        ++n;
    }
    if (n > 0) {
        mStats.momentOrigin = sum / static_cast<double>(n);
        mStats.hasMomentOrigin = true;
    }
    return mStats.momentOrigin;
}

double vxDataValueSeries::percentile(double p) {
    if (!setUpSortedValues() || mSortedValues.empty() || std::isnan(p)) return 0.0;
    const std::vector<double>& sorted = mSortedValues;
    const double n = static_cast<double>(sorted.size());
    const double position = p * 0.01 * n;
    const double q = std::trunc(position);
    if (q >= n) return sorted.back();
    if (q < 1.0) return q == 0.0 ? sorted.front() : 0.0;
    const std::size_t i = static_cast<std::size_t>(q);
    return sorted[i - 1] + (sorted[i] - sorted[i - 1]) * (position - q);
}

// The getters: each computes its group when its flag is not yet set.

double vxDataValueSeries::getSum() {
    if (!mStats.hasSum) calculateSums();
    return mStats.sum;
}

double vxDataValueSeries::getAbsoluteSum() {
    if (!mStats.hasAbsoluteSum) calculateSums();
    return mStats.absoluteSum;
}

double vxDataValueSeries::getPositiveSum() {
    if (!mStats.hasPositiveSum) calculateSums();
    return mStats.positiveSum;
}

double vxDataValueSeries::getNegativeSum() {
    if (!mStats.hasNegativeSum) calculateSums();
    return mStats.negativeSum;
}

double vxDataValueSeries::getMinValue() {
    if (!mStats.hasMinValue) calculateSums();
    return mStats.minValue;
}

double vxDataValueSeries::getMaxValue() {
    if (!mStats.hasMaxValue) calculateSums();
    return mStats.maxValue;
}

double vxDataValueSeries::getAbsoluteMinValue() {
    if (!mStats.hasAbsoluteMinValue) calculateSums();
    return mStats.absoluteMinValue;
}

double vxDataValueSeries::getAbsoluteMaxValue() {
    if (!mStats.hasAbsoluteMaxValue) calculateSums();
    return mStats.absoluteMaxValue;
}

double vxDataValueSeries::getPositiveMinValue() {
    if (!mStats.hasPositiveMinValue) calculateSums();
    return mStats.positiveMinValue;
}

double vxDataValueSeries::getPositiveMaxValue() {
    if (!mStats.hasPositiveMaxValue) calculateSums();
    return mStats.positiveMaxValue;
}

double vxDataValueSeries::getNegativeMinValue() {
    if (!mStats.hasNegativeMinValue) calculateSums();
    return mStats.negativeMinValue;
}

double vxDataValueSeries::getNegativeMaxValue() {
    if (!mStats.hasNegativeMaxValue) calculateSums();
    return mStats.negativeMaxValue;
}

double vxDataValueSeries::getMinDifference() {
    if (!mStats.hasMinDifference) calculateMinDifference();
    return mStats.minDifference;
}

double vxDataValueSeries::getMean() {
    if (!mStats.hasMean) calculateSums();
    return mStats.mean;
}

double vxDataValueSeries::getGeometricMean() {
    if (!mStats.hasGeometricMean) calculateGeometricMean();
    return mStats.geometricMean;
}

double vxDataValueSeries::getHarmonicMean() {
    if (!mStats.hasHarmonicMean) calculateHarmonicMean();
    return mStats.harmonicMean;
}

double vxDataValueSeries::getRootMeanSquare() {
    if (!mStats.hasRootMeanSquare) calculateSums();
    return mStats.rootMeanSquare;
}

double vxDataValueSeries::getMedian() {
    if (!mStats.hasMedian) calculateMedian();
    return mStats.median;
}

double vxDataValueSeries::getMeanDeviation() {
    if (!mStats.hasMeanDeviation) calculateDeviations();
    return mStats.meanDeviation;
}

double vxDataValueSeries::getMedianDeviation() {
    if (!mStats.hasMedianDeviation) calculateMedianDeviation();
    return mStats.medianDeviation;
}

double vxDataValueSeries::getStandardDeviation() {
    if (!mStats.hasStandardDeviation) calculateDeviations();
    return mStats.standardDeviation;
}

double vxDataValueSeries::getStandardError() {
    if (!mStats.hasStandardError) calculateDeviations();
    return mStats.standardError;
}

double vxDataValueSeries::getVariance() {
    if (!mStats.hasVariance) calculateDeviations();
    return mStats.variance;
}

double vxDataValueSeries::getMoment(short k) {
    if (!isMomentOrder(k)) return 0.0;
    if (!mStats.hasMoment[k - 1]) calculateSums();
    return mStats.moment[k - 1];
}

double vxDataValueSeries::getMomentMean(short k) {
    if (!isMomentOrder(k)) return 0.0;
    if (!mStats.hasMomentMean[k - 1]) calculateDeviations();
    return mStats.momentMean[k - 1];
}

}  // namespace Velarix
