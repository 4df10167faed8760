// Categories of a value series and the counts that replace its values for
// frequency charts.
#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include "data/vxDataValueSeries.h"

namespace Velarix {

namespace {

constexpr long kDropped = -1;

// The classes of a range count: `intervals` of equal width between min and
// max, and with open ends one below min (index 0) and one above max (the
// last). Values are shifted by a small part of the range before they are
// placed, so that one lying on an edge by rounding goes to the side the
// closure asks for.
struct RangeClasses {
    bool leftClosed;
    bool openEnds;
    double min;
    double max;
    double width;
    double shift;
    long last;

    // The class of a value, kDropped when it lies outside without open ends.
    long classOf(double v) const {
        if (leftClosed) {
            v += shift;
            if (v < min) return openEnds ? 0 : kDropped;
        } else {
            v -= shift;
            if (v <= min) return openEnds ? 0 : kDropped;
        }
        if (v <= max) return innerClassOf(v) + (openEnds ? 1 : 0);
        return openEnds ? last : kDropped;
    }

    // A range without width has one class that holds its single value.
    long innerClassOf(double v) const {
        return width > 0.0 ? static_cast<long>(std::trunc((v - min) / width)) : 0;
    }
};

}  // namespace

void vxDataValueSeries::setUpCategories() {
    if (!setUpSortedValues()) return;
    try {
        std::vector<double> found;
        for (double v : mSortedValues) {
            if (found.empty() || v != found.back()) found.push_back(v);
        }
        mCategories.swap(found);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpCategories"));
    }
}

void vxDataValueSeries::attachCategories(const vxDataValueSeries& other) {
    if (&other == this) return;
    try {
        mCategories = other.mCategories;
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"attachCategories"));
    }
}

void vxDataValueSeries::setUpDataFrequencies(const std::vector<double>& categories) {
    if (!setUpSortedValues()) return;
    try {
        std::vector<double> counts(categories.size(), 0.0);
        std::vector<double> kept(categories);
        for (std::size_t i = 0; i < kept.size(); ++i) {
            auto equal = std::equal_range(mSortedValues.begin(), mSortedValues.end(), kept[i]);
            counts[i] = static_cast<double>(equal.second - equal.first);
        }
        storeCounts(counts, kept);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpDataFrequencies"));
    }
}

void vxDataValueSeries::setUpRangeFrequencies(bool leftClosed, bool openEnds, double min,
                                              double max, long intervals) {
    if (intervals < 1) {
        setError(vxErrRuntime::kDivisionByZero, where(L"setUpRangeFrequencies", 4));
        return;
    }
    try {
        const std::size_t numOfClasses = static_cast<std::size_t>(intervals) + (openEnds ? 2 : 0);
        std::vector<double> counts(numOfClasses, 0.0);
        std::vector<double> edges(numOfClasses);
        const double width = (max - min) / static_cast<double>(intervals);
        for (std::size_t i = 0; i < numOfClasses; ++i) {
            edges[i] = min + static_cast<double>(i) * width;
        }
        if (!countRanges(leftClosed, openEnds, min, max, intervals, counts)) return;
        storeCounts(counts, edges);
    } catch (const std::bad_alloc&) {
        setError(vxErrRuntime::kOutOfMemory, where(L"setUpRangeFrequencies"));
    }
}

bool vxDataValueSeries::countRanges(bool leftClosed, bool openEnds, double min, double max,
                                    long intervals, std::vector<double>& counts) {
    const RangeClasses classes{leftClosed,
                               openEnds,
                               min,
                               max,
                               (max - min) / static_cast<double>(intervals),
                               (max - min) * 1e-9,
                               static_cast<long>(counts.size()) - 1};
    for (double v : mValues) {
        if (!isValidValue(v)) continue;
        long index = classes.classOf(v);
        if (index == kDropped) continue;
        if (index > classes.last) {
            setError(vxErrRuntime::kIndexOutOfRange,
                     where(L"setUpRangeFrequencies", leftClosed ? 2 : 3));
            return false;
        }
        counts[static_cast<std::size_t>(index)] += 1.0;
    }
    return true;
}

// The counts become the values of the series, valid under the default
// limits; the data type stays.
void vxDataValueSeries::storeCounts(std::vector<double>& counts,
                                    std::vector<double>& newCategories) {
    mValues.swap(counts);
    mCategories.swap(newCategories);
    mLowerLimit = kDefaultLowerLimit;
    mUpperLimit = kDefaultUpperLimit;
    mIsAscendingSorted = false;
    mIsDescendingSorted = false;
    mIsUnique = false;
    resetStatistics();
}

}  // namespace Velarix
