#include "data/vxDataValueSeries.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "data/vxDataSorter.h"

namespace Velarix {

namespace {

// The tests of vxDateTime::hasDate and hasTime on a stored value: a date
// has a Julian day above 1, a time a fraction.
bool hasDatePart(double v) {
    return v > 1.0000000000000002;
}

bool hasTimePart(double v) {
    return v != std::floor(v);
}

}  // namespace

vxDataValueSeries::vxDataValueSeries() : vxErrorHolder(L"vxDataValueSeries") {}

vxDataValueSeries::~vxDataValueSeries() = default;

void vxDataValueSeries::init() {
    mDataType = kNumberType;
    mLowerLimit = kDefaultLowerLimit;
    mUpperLimit = kDefaultUpperLimit;
    std::vector<double>().swap(mValues);
    std::vector<double>().swap(mCategories);
    mNumOfDateComponents = -1;
    mNumOfTimeComponents = -1;
    mIsAscendingSorted = false;
    mIsDescendingSorted = false;
    mIsUnique = false;
    resetStatistics();
}

void vxDataValueSeries::copy(const vxDataValueSeries* from) {
    if (from == this) return;
    init();
    if (!from) return;
    try {
        mValues = from->mValues;
        mCategories = from->mCategories;
        mSortedValues = from->mSortedValues;
    } catch (const std::bad_alloc&) {
        init();
        setError(vxErrRuntime::kOutOfMemory, where(L"copy"));
        return;
    }
    mDataType = from->mDataType;
    mLowerLimit = from->mLowerLimit;
    mUpperLimit = from->mUpperLimit;
    mNumOfInvalidValues = from->mNumOfInvalidValues;
    mNumOfDateComponents = from->mNumOfDateComponents;
    mNumOfTimeComponents = from->mNumOfTimeComponents;
    mIsAscendingSorted = from->mIsAscendingSorted;
    mIsDescendingSorted = from->mIsDescendingSorted;
    mIsUnique = from->mIsUnique;
    mStats = from->mStats;
    mHasSortedValues = from->mHasSortedValues;
}

void vxDataValueSeries::resetStatistics() {
    mStats = Statistics();
    mNumOfInvalidValues = -1;
    std::vector<double>().swap(mSortedValues);
    mHasSortedValues = false;
}

void vxDataValueSeries::fill(std::vector<double> values, short dataType, double lowerLimit,
                             double upperLimit, short option) {
    init();
    mValues = std::move(values);
    mDataType = dataType;
    mLowerLimit = lowerLimit;
    mUpperLimit = upperLimit;
    if (dataType == kDateTimeType) countDateTimeComponents();
    applyOption(option);
}

void vxDataValueSeries::countDateTimeComponents() {
    mNumOfDateComponents = 0;
    mNumOfTimeComponents = 0;
    for (double& v : mValues) {
        // The reader negates a value written with a date and a time, so
        // that a time of 00:00 is still known to have been written. The
        // mark goes before the limits are looked at: a date limit of the
        // script is meant for the date, not for its marked form.
        const bool hasBoth = v <= 0.0 && v > kInvalidValue;
        if (hasBoth) v = std::fabs(v);
        if (!isValidValue(v)) continue;
        if (hasBoth || hasDatePart(v)) ++mNumOfDateComponents;
        if (hasBoth || hasTimePart(v)) ++mNumOfTimeComponents;
    }
}

void vxDataValueSeries::applyOption(short option) {
    if (option < kReverse || option > (kReverse | kSort | kUnique)) return;
    resetStatistics();
    if ((option & kSort) && !sortValues()) return;
    if ((option & kUnique) && !removeDuplicates()) return;
    if (option & kReverse) reverseValues();
}

void vxDataValueSeries::reverseValues() {
    std::reverse(mValues.begin(), mValues.end());
    std::swap(mIsAscendingSorted, mIsDescendingSorted);
}

bool vxDataValueSeries::sortValues() {
    try {
        vxDataSorter::sortAscending(mValues);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"sortValues"));
        return false;
    }
    mIsAscendingSorted = true;
    mIsDescendingSorted = false;
    return true;
}

bool vxDataValueSeries::removeDuplicates() {
    if (mIsAscendingSorted || mIsDescendingSorted) {
        // Equal values are neighbours in either order.
        mValues.erase(std::unique(mValues.begin(), mValues.end()), mValues.end());
    } else if (!removeLaterDuplicates()) {
        return false;
    }
    mIsUnique = true;
    return true;
}

// Keeps the first occurrence of each value, in the order of the series:
// the positions are ordered by value, and each run of equal values marks
// its earliest position to be kept.
bool vxDataValueSeries::removeLaterDuplicates() {
    const std::size_t n = mValues.size();
    try {
        std::vector<std::size_t> order(n);
        std::vector<char> keep(n, 0);
        for (std::size_t i = 0; i < n; ++i) order[i] = i;
        std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
            return vxDataSorter::toKey(mValues[a]) < vxDataSorter::toKey(mValues[b]);
        });
        for (std::size_t i = 0; i < n; ++i) {
            std::size_t first = order[i];
            while (i + 1 < n && mValues[order[i + 1]] == mValues[first])
                first = std::min(first, order[++i]);
            keep[first] = 1;
        }
        std::size_t kept = 0;
        for (std::size_t i = 0; i < n; ++i) {
            if (keep[i]) mValues[kept++] = mValues[i];
        }
        mValues.resize(kept);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"removeDuplicates"));
        return false;
    }
    return true;
}

void vxDataValueSeries::dropFractions() {
    for (double& v : mValues) {
        if (isValidValue(v)) v = std::trunc(v);
    }
    resetStatistics();
    mIsUnique = false;
}

void vxDataValueSeries::resize(long n) {
    const std::size_t length = n > 0 ? static_cast<std::size_t>(n) : 0;
    const bool grows = length > mValues.size();
    try {
        mValues.resize(length, kInvalidValue);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"resize"));
        return;
    }
    resetStatistics();
    if (!grows) return;
    mIsAscendingSorted = false;
    mIsDescendingSorted = false;
    mIsUnique = false;
}

double vxDataValueSeries::value(long i) const {
    return i >= 0 && i < size() ? mValues[static_cast<std::size_t>(i)] : kInvalidValue;
}

bool vxDataValueSeries::isValid(long i) const {
    return i >= 0 && i < size() && isValidValue(mValues[static_cast<std::size_t>(i)]);
}

void vxDataValueSeries::setLowerLimit(double limit) {
    mLowerLimit = limit;
    resetStatistics();
}

void vxDataValueSeries::setUpperLimit(double limit) {
    mUpperLimit = limit;
    resetStatistics();
}

long vxDataValueSeries::getNumOfInvalidValues() {
    if (mNumOfInvalidValues < 0) {
        mNumOfInvalidValues = static_cast<long>(std::count_if(
            mValues.begin(), mValues.end(), [this](double v) { return !isValidValue(v); }));
    }
    return mNumOfInvalidValues;
}

long vxDataValueSeries::getNumOfValidValues() {
    return size() - getNumOfInvalidValues();
}

}  // namespace Velarix
