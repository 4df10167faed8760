#include "data/vxDataStackedSeries.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "data/vxDataDump.h"
#include "host/vxLog.h"

namespace Velarix {

namespace {

constexpr double kNearZero = 1e-10;

}  // namespace

vxDataStackedSeries::vxDataStackedSeries() : vxErrorHolder(L"vxDataStackedSeries") {}

vxDataStackedSeries::~vxDataStackedSeries() = default;

void vxDataStackedSeries::init(long numOfChartSeries, double r, bool split) {
    mNumOfPositiveValues = 0;
    mNumOfNegativeValues = 0;
    mMaxPositiveSeriesIndex = -1;
    mMaxNegativeSeriesIndex = -1;
    mDoSplitStackedValues = split;
    mReferenceValue = r;
    mPositiveStackedSum = 0.0;
    mNegativeStackedSum = 0.0;
    mPositiveProportionalSum = 0.0;
    mNegativeProportionalSum = 0.0;
    const std::size_t n = static_cast<std::size_t>(std::max(numOfChartSeries, 0L)) + 1;
    try {
        mStackedValues.assign(n, r);
        mProportionalValues.assign(n, r);
    } catch (const std::bad_alloc&) {
        mStackedValues.clear();
        mProportionalValues.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"init"));
    }
}

void vxDataStackedSeries::copy(const vxDataStackedSeries* from) {
    if (from == this) return;
    init(0, 0.0, true);
    if (!from) return;
    try {
        mStackedValues = from->mStackedValues;
        mProportionalValues = from->mProportionalValues;
    } catch (const std::bad_alloc&) {
        init(0, 0.0, true);
        setError(vxErrRuntime::kOutOfMemory, where(L"copy"));
        return;
    }
    mNumOfPositiveValues = from->mNumOfPositiveValues;
    mNumOfNegativeValues = from->mNumOfNegativeValues;
    mMaxPositiveSeriesIndex = from->mMaxPositiveSeriesIndex;
    mMaxNegativeSeriesIndex = from->mMaxNegativeSeriesIndex;
    mDoSplitStackedValues = from->mDoSplitStackedValues;
    mReferenceValue = from->mReferenceValue;
    mPositiveStackedSum = from->mPositiveStackedSum;
    mNegativeStackedSum = from->mNegativeStackedSum;
    mPositiveProportionalSum = from->mPositiveProportionalSum;
    mNegativeProportionalSum = from->mNegativeProportionalSum;
}

void vxDataStackedSeries::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxDataStackedSeries");
    vxDumpLine(out, "long numOfPositiveValues:          ", mNumOfPositiveValues);
    vxDumpLine(out, "long numOfNegativeValues:          ", mNumOfNegativeValues);
    vxDumpLine(out, "long maxPositiveSeriesIndex:       ", mMaxPositiveSeriesIndex);
    vxDumpLine(out, "long maxNegativeSeriesIndex:       ", mMaxNegativeSeriesIndex);
    vxDumpLine(out, "bool doSplitStackedValues:         ", mDoSplitStackedValues);
    vxDumpLine(out, "double referenceValue:             ", mReferenceValue);
    vxDumpLine(out, "double positiveStackedSum:         ", mPositiveStackedSum);
    vxDumpLine(out, "double negativeStackedSum:         ", mNegativeStackedSum);
    vxDumpLine(out, "double positiveProportionalSum:    ", mPositiveProportionalSum);
    vxDumpLine(out, "double negativeProportionalSum:    ", mNegativeProportionalSum);
    vxDumpLine(out, "vector<double> stackedValues:      ", vxDataDumpText(mStackedValues));
    vxDumpLine(out, "vector<double> proportionalValues: ", vxDataDumpText(mProportionalValues));
    vxDumpEnd(out);
}

long vxDataStackedSeries::getNumOfChartSeries() const {
    return mStackedValues.empty() ? 0 : static_cast<long>(mStackedValues.size()) - 1;
}

double vxDataStackedSeries::getStackedValue(long index) const {
    return isIndex(index) ? mStackedValues[static_cast<std::size_t>(index) + 1] : 0.0;
}

double vxDataStackedSeries::getProportionalValue(long index) const {
    return isIndex(index) ? mProportionalValues[static_cast<std::size_t>(index) + 1] : 0.0;
}

void vxDataStackedSeries::add(long index, double value) {
    if (!isIndex(index)) {
        setError(vxErrRuntime::kIndexOutOfRange, where(L"add"));
        return;
    }
    const std::size_t i = static_cast<std::size_t>(index);
    const double base = mDoSplitStackedValues ? splitBase(index, value) : mStackedValues[i];
    mStackedValues[i + 1] = base + value;
    if (value > 0.0) ++mNumOfPositiveValues;
    if (value < 0.0) ++mNumOfNegativeValues;
}

void vxDataStackedSeries::skip(long index) {
    if (!isIndex(index)) {
        setError(vxErrRuntime::kIndexOutOfRange, where(L"skip"));
        return;
    }
    const std::size_t i = static_cast<std::size_t>(index);
    mStackedValues[i + 1] = mDoSplitStackedValues ? mReferenceValue : mStackedValues[i];
}

double vxDataStackedSeries::splitBase(long index, double value) const {
    const bool below = value < 0.0;
    for (long k = index; k >= 1; --k) {
        double element = mStackedValues[static_cast<std::size_t>(k)];
        if (below ? element < mReferenceValue : element > mReferenceValue) return element;
    }
    return mReferenceValue;
}

template <class Test>
long vxDataStackedSeries::lastElementWhere(Test test) const {
    for (long k = getNumOfChartSeries(); k >= 1; --k) {
        if (test(mStackedValues[static_cast<std::size_t>(k)])) return k;
    }
    return 0;
}

void vxDataStackedSeries::setUpExtremes() {
    if (mStackedValues.empty()) return;
    const auto [lowest, highest] =
        std::minmax_element(mStackedValues.begin(), mStackedValues.end());
    mPositiveStackedSum = *highest;
    mNegativeStackedSum = *lowest;
    const double r = mReferenceValue;
    const double top = mPositiveStackedSum;
    const double bottom = mNegativeStackedSum;
    if (mDoSplitStackedValues) {
        mMaxPositiveSeriesIndex = lastElementWhere([r](double e) { return e > r; }) - 1;
        mMaxNegativeSeriesIndex = lastElementWhere([r](double e) { return e < r; }) - 1;
    } else {
        mMaxPositiveSeriesIndex =
            lastElementWhere([top](double e) { return std::fabs(e - top) <= kNearZero; }) - 1;
        mMaxNegativeSeriesIndex =
            lastElementWhere([bottom](double e) { return std::fabs(e - bottom) <= kNearZero; }) - 1;
    }
}

void vxDataStackedSeries::setUpProportionalValues() {
    const double scale = std::max(mPositiveStackedSum, -mNegativeStackedSum);
    if (scale < kNearZero) {
        std::fill(mProportionalValues.begin(), mProportionalValues.end(), 0.0);
        mPositiveProportionalSum = 0.0;
        mNegativeProportionalSum = 0.0;
        return;
    }
    for (std::size_t i = 0; i < mStackedValues.size(); ++i) {
        mProportionalValues[i] = mStackedValues[i] / scale;
    }
    mPositiveProportionalSum = mPositiveStackedSum * (1.0 / scale);
    mNegativeProportionalSum = mNegativeStackedSum * (1.0 / scale);
}

}  // namespace Velarix
