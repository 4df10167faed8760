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
    numOfPositiveValues = 0;
    numOfNegativeValues = 0;
    maxPositiveSeriesIndex = -1;
    maxNegativeSeriesIndex = -1;
    doSplit = split;
    referenceValue = r;
    positiveStackedSum = 0.0;
    negativeStackedSum = 0.0;
    positiveProportionalSum = 0.0;
    negativeProportionalSum = 0.0;
    const std::size_t n = static_cast<std::size_t>(std::max(numOfChartSeries, 0L)) + 1;
    try {
        stackedValues.assign(n, r);
        proportionalValues.assign(n, r);
    } catch (const std::bad_alloc&) {
        stackedValues.clear();
        proportionalValues.clear();
        setError(vxErrRuntime::kOutOfMemory, where(L"init"));
    }
}

void vxDataStackedSeries::copy(const vxDataStackedSeries* from) {
    if (from == this) return;
    init(0, 0.0, true);
    if (!from) return;
    try {
        stackedValues = from->stackedValues;
        proportionalValues = from->proportionalValues;
    } catch (const std::bad_alloc&) {
        init(0, 0.0, true);
        setError(vxErrRuntime::kOutOfMemory, where(L"copy"));
        return;
    }
    numOfPositiveValues = from->numOfPositiveValues;
    numOfNegativeValues = from->numOfNegativeValues;
    maxPositiveSeriesIndex = from->maxPositiveSeriesIndex;
    maxNegativeSeriesIndex = from->maxNegativeSeriesIndex;
    doSplit = from->doSplit;
    referenceValue = from->referenceValue;
    positiveStackedSum = from->positiveStackedSum;
    negativeStackedSum = from->negativeStackedSum;
    positiveProportionalSum = from->positiveProportionalSum;
    negativeProportionalSum = from->negativeProportionalSum;
}

void vxDataStackedSeries::dump(short depth, std::ostream& out) const {
    if (depth <= 0) return;
    vxDumpHeader(out, "vxDataStackedSeries");
    vxDumpLine(out, "long numOfPositiveValues:         ", numOfPositiveValues);
    vxDumpLine(out, "long numOfNegativeValues:         ", numOfNegativeValues);
    vxDumpLine(out, "long maxPositiveSeriesIndex:      ", maxPositiveSeriesIndex);
    vxDumpLine(out, "long maxNegativeSeriesIndex:      ", maxNegativeSeriesIndex);
    vxDumpLine(out, "bool doSplitStackedValues:        ", doSplit);
    vxDumpLine(out, "double referenceValue:            ", referenceValue);
    vxDumpLine(out, "double positiveStackedSum:        ", positiveStackedSum);
    vxDumpLine(out, "double negativeStackedSum:        ", negativeStackedSum);
    vxDumpLine(out, "double positiveProportionalSum:   ", positiveProportionalSum);
    vxDumpLine(out, "double negativeProportionalSum:   ", negativeProportionalSum);
    vxDumpLine(out, "vector<double> stackedValues:      ", vxDataDumpText(stackedValues));
    vxDumpLine(out, "vector<double> proportionalValues: ", vxDataDumpText(proportionalValues));
    vxDumpEnd(out);
}

long vxDataStackedSeries::getNumOfChartSeries() const {
    return stackedValues.empty() ? 0 : static_cast<long>(stackedValues.size()) - 1;
}

double vxDataStackedSeries::getStackedValue(long index) const {
    return isIndex(index) ? stackedValues[static_cast<std::size_t>(index) + 1] : 0.0;
}

double vxDataStackedSeries::getProportionalValue(long index) const {
    return isIndex(index) ? proportionalValues[static_cast<std::size_t>(index) + 1] : 0.0;
}

void vxDataStackedSeries::add(long index, double value) {
    if (!isIndex(index)) {
        setError(vxErrRuntime::kIndexOutOfRange, where(L"add"));
        return;
    }
    const std::size_t i = static_cast<std::size_t>(index);
    const double base = doSplit ? splitBase(index, value) : stackedValues[i];
    stackedValues[i + 1] = base + value;
    if (value > 0.0) ++numOfPositiveValues;
    if (value < 0.0) ++numOfNegativeValues;
}

void vxDataStackedSeries::skip(long index) {
    if (!isIndex(index)) {
        setError(vxErrRuntime::kIndexOutOfRange, where(L"skip"));
        return;
    }
    const std::size_t i = static_cast<std::size_t>(index);
    stackedValues[i + 1] = doSplit ? referenceValue : stackedValues[i];
}

double vxDataStackedSeries::splitBase(long index, double value) const {
    const bool below = value < 0.0;
    for (long k = index; k >= 1; --k) {
        double element = stackedValues[static_cast<std::size_t>(k)];
        if (below ? element < referenceValue : element > referenceValue) return element;
    }
    return referenceValue;
}

template <class Test>
long vxDataStackedSeries::lastElementWhere(Test test) const {
    for (long k = getNumOfChartSeries(); k >= 1; --k) {
        if (test(stackedValues[static_cast<std::size_t>(k)])) return k;
    }
    return 0;
}

void vxDataStackedSeries::setUpExtremes() {
    if (stackedValues.empty()) return;
    const auto [lowest, highest] = std::minmax_element(stackedValues.begin(), stackedValues.end());
    positiveStackedSum = *highest;
    negativeStackedSum = *lowest;
    const double r = referenceValue;
    const double top = positiveStackedSum;
    const double bottom = negativeStackedSum;
    if (doSplit) {
        maxPositiveSeriesIndex = lastElementWhere([r](double e) { return e > r; }) - 1;
        maxNegativeSeriesIndex = lastElementWhere([r](double e) { return e < r; }) - 1;
    } else {
        maxPositiveSeriesIndex =
            lastElementWhere([top](double e) { return std::fabs(e - top) <= kNearZero; }) - 1;
        maxNegativeSeriesIndex =
            lastElementWhere([bottom](double e) { return std::fabs(e - bottom) <= kNearZero; }) - 1;
    }
}

void vxDataStackedSeries::setUpProportionalValues() {
    const double scale = std::max(positiveStackedSum, -negativeStackedSum);
    if (scale < kNearZero) {
        std::fill(proportionalValues.begin(), proportionalValues.end(), 0.0);
        positiveProportionalSum = 0.0;
        negativeProportionalSum = 0.0;
        return;
    }
    for (std::size_t i = 0; i < stackedValues.size(); ++i) {
        proportionalValues[i] = stackedValues[i] / scale;
    }
    positiveProportionalSum = positiveStackedSum * (1.0 / scale);
    negativeProportionalSum = negativeStackedSum * (1.0 / scale);
}

}  // namespace Velarix
